// The module comes and goes as often as the host likes and leaves nothing behind.
#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

using headless::Module;

class ModuleReload : public AddInTest {
 protected:
  /// Handlers of the add-in that some event of the host still knows.
  std::size_t handlersLeft() { return host().ui().terminatedHandlerCount(); }
};

TEST_F(ModuleReload, LeavesNothingBehindAHundredTimes) {
  load();
  session().openDesign(machine());
  session().unloadAddIn();
  for (int round = 1; round <= 100; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    session().loadAddIn(folder.module());
    ASSERT_TRUE(session().runAddIn());
    ASSERT_EQ(session().toolbar().size(), 4U);
    ASSERT_EQ(handlersLeft(), 1U);
    ASSERT_TRUE(session().stopAddIn());
    ASSERT_TRUE(session().toolbar().empty());
    session().unloadAddIn();
    ASSERT_FALSE(Module::isResident(folder.module()));
    ASSERT_EQ(handlersLeft(), 0U);
  }
  session().loadAddIn(folder.module());
}

TEST_F(ModuleReload, BeginsAfreshEachTime) {
  start();
  for (int round = 1; round <= 10; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    openDialog();
    session().pick("Base");
    session().click("idBtnApply");
    session().pressCancel();
    ASSERT_TRUE(session().stopAddIn());
    session().unloadAddIn();
    ASSERT_FALSE(Module::isResident(folder.module()));
    session().loadAddIn(folder.module());
    ASSERT_TRUE(session().runAddIn());
  }
  openDialog();
  EXPECT_EQ(markup("idActAppearance"), "");
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(ModuleReload, WithAnOpenDialogClosesIt) {
  startDialog();
  session().pick("Base");
  session().unloadAddIn();
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_FALSE(Module::isResident(folder.module()));
  session().loadAddIn(folder.module());
}

TEST_F(ModuleReload, WithoutStopDetachesTheHandlers) {
  start();
  session().unloadAddIn();
  EXPECT_EQ(handlersLeft(), 0U);
  // The buttons are still there, but nobody hears them any more.
  session().press("idAssetsMatMng");
  EXPECT_FALSE(session().isDialogOpen());
  session().loadAddIn(folder.module());
}

TEST_F(ModuleReload, WithoutRunIsNoMatter) {
  load();
  EXPECT_TRUE(session().stopAddIn());
  session().unloadAddIn();
  EXPECT_FALSE(Module::isResident(folder.module()));
  session().loadAddIn(folder.module());
}

TEST_F(ModuleReload, TwoModulesDoNotShareAnything) {
  start();
  session().stopAddIn();
  session().unloadAddIn();
  const AddInFolder other("Other");
  session().loadAddIn(other.module());
  EXPECT_FALSE(Module::isResident(folder.module()));
  EXPECT_TRUE(session().runAddIn());
  EXPECT_TRUE(session().stopAddIn());
  session().unloadAddIn();
  session().loadAddIn(folder.module());
}

}  // namespace
}  // namespace tests
