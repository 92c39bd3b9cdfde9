#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AddInUnderEachProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(AddInUnderEachProfile);

TABLE_TEST(AddInUnderEachProfile, RunRegistersAndStopRemovesEverything) {
  load(profile());
  EXPECT_TRUE(session().runAddIn());
  EXPECT_EQ(session().toolbar().size(), 4U);
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_THAT(session().toolbar(), IsEmpty());
}

TABLE_TEST(AddInUnderEachProfile, StartsAgainAfterItWasStopped) {
  start(profile());
  ASSERT_TRUE(session().stopAddIn());
  ASSERT_TRUE(session().runAddIn());
  openDialog();
  EXPECT_EQ(shown("idLibAssets"), "RAL_COLORS");
}

TABLE_TEST(AddInUnderEachProfile, StartsAgainAfterItWasUnloaded) {
  startDialog(profile());
  finish();
  startDialog(profile());
  EXPECT_EQ(shown("idLibAssets"), "RAL_COLORS");
}

using AddIn = AddInTest;

TEST_F(AddIn, RunAnswersFalseWithoutAUserInterface) {
  load();
  host().state().hasUserInterface = false;
  EXPECT_FALSE(session().runAddIn());
  EXPECT_THAT(session().toolbar(), IsEmpty());
}

TEST_F(AddIn, StopAfterARunWithoutAUserInterfaceTouchesNothing) {
  load();
  host().state().hasUserInterface = false;
  session().runAddIn();
  host().gate().startTrace();
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_THAT(callsIn(host().gate()), IsEmpty());
}

TEST_F(AddIn, StopWithoutRunTouchesNothing) {
  load();
  host().gate().startTrace();
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_THAT(callsIn(host().gate()), IsEmpty());
}

TEST_F(AddIn, SecondStopTouchesNothing) {
  start();
  EXPECT_TRUE(session().stopAddIn());
  host().gate().startTrace();
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_THAT(callsIn(host().gate()), IsEmpty());
}

TEST_F(AddIn, StopThatMissedTheWorkspaceCanBeRepeated) {
  start();
  host().gate().setFault({1, FaultAnswer::Nothing, "Workspaces.itemById"});
  EXPECT_FALSE(session().stopAddIn());
  EXPECT_EQ(session().toolbar().size(), 4U);
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_THAT(session().toolbar(), IsEmpty());
}

TEST_F(AddIn, SecondRunFindsThePanelsAndIsRefusedASecondDefinition) {
  start();
  EXPECT_FALSE(session().runAddIn());
  EXPECT_EQ(session().toolbar().size(), 4U);
  EXPECT_EQ(host().ui().workspaceList().find("FusionSolidEnvironment")->panels().size(), 2U);
}

TEST_F(AddIn, StopAfterTwoRunsRemovesEverything) {
  start();
  session().runAddIn();
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_THAT(session().toolbar(), IsEmpty());
  EXPECT_EQ(host().ui().definitions().find("idAssetsMatMng"), nullptr);
}

TEST_F(AddIn, StopReleasesTheUserInterfaceAndKeepsTheApplication) {
  load();
  const auto application = host().application();
  const int applicationBefore = application->refcount();
  const int interfaceBefore = host().ui().refcount();
  ASSERT_TRUE(session().runAddIn());
  EXPECT_EQ(application->refcount(), applicationBefore + 1);
  EXPECT_EQ(host().ui().refcount(), interfaceBefore + 1);
  ASSERT_TRUE(session().stopAddIn());
  EXPECT_EQ(application->refcount(), applicationBefore + 1);
  EXPECT_EQ(host().ui().refcount(), interfaceBefore);
  session().unloadAddIn();
  EXPECT_EQ(application->refcount(), applicationBefore);
}

TEST_F(AddIn, SecondRunHoldsTheHostNoTighterThanTheFirst) {
  start();
  const auto application = host().application();
  const int applicationBefore = application->refcount();
  const int interfaceBefore = host().ui().refcount();
  session().runAddIn();
  EXPECT_EQ(application->refcount(), applicationBefore);
  EXPECT_EQ(host().ui().refcount(), interfaceBefore);
}

TEST_F(AddIn, RunWithoutAnApplicationAnswersFalseAndLetsGoOfTheOneBefore) {
  load();
  const auto application = host().application();
  const int before = application->refcount();
  ASSERT_TRUE(session().runAddIn());
  ASSERT_TRUE(session().stopAddIn());
  ASSERT_EQ(application->refcount(), before + 1);
  host().gate().setFault({1, FaultAnswer::Nothing, "Application.get"});
  EXPECT_FALSE(session().runAddIn());
  EXPECT_EQ(application->refcount(), before);
}

TEST_F(AddIn, HandlersStayAttachedUntilTheModuleIsUnloaded) {
  start();
  ASSERT_TRUE(session().stopAddIn());
  EXPECT_EQ(host().ui().terminatedHandlerCount(), 1U);
  session().unloadAddIn();
  EXPECT_EQ(host().ui().terminatedHandlerCount(), 0U);
}

TEST_F(AddIn, StopForgetsTheAppliedAppearancesOfTheSelection) {
  start();
  auto& base = *design().root().bodies.front();
  base.appearance = look("Blue");
  const auto applied = host().materials().appearance(base.appearance);
  const int referencesBefore = applied->refcount();
  openDialog();
  session().pick("Base");
  session().pressCancel();
  EXPECT_GT(applied->refcount(), referencesBefore);
  ASSERT_TRUE(session().stopAddIn());
  EXPECT_EQ(applied->refcount(), referencesBefore);
}

}  // namespace
}  // namespace tests
