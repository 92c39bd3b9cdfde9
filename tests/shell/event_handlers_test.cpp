#include "shell/event_handlers.h"

#include <tuple>

#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

namespace core = adsk::core;

using headless::ExecuteFromTerminated;
using headless::ExecuteInDialog;
using headless::FaultAnswer;
using headless::Profile;
using ::testing::Combine;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using ::testing::Values;

class CommandRestart : public AddInTest {
 protected:
  /// Ends the command whose dialog is open.
  void end(core::CommandTerminationReason reason) { host().ui().runner().end(reason); }

  std::size_t restarts() {
    const auto counts = host().gate().countsByName();
    const auto found = counts.find("CommandDefinition.execute");
    return found == counts.end() ? 0 : found->second;
  }

  void apply() {
    session().pick("Base");
    session().click("idBtnApply");
  }

  static Profile endingOnExecute() {
    Profile profile = usualProfile();
    profile.executeInDialog = ExecuteInDialog::EndsCommand;
    return profile;
  }
};

using CommandAndReason = std::pair<std::string, std::size_t>;

class TerminationReason : public CommandRestart, public WithRow<CommandAndReason> {};

TABLE(
    Each, TerminationReason, [](const auto& row) { return row.first + "_" + std::to_string(row.second); },
    everyPair(std::vector<std::string>{"idAssetsMatMng", "idAssetsMatMngOnTools"}, numbersBelow(7)));

TABLE_TEST(TerminationReason, RestartsTheCommandIfItIsOne) {
  const auto& [command, reason] = row();
  start();
  session().press(command);
  ASSERT_TRUE(session().isDialogOpen());
  end(static_cast<core::CommandTerminationReason>(reason));
  const bool isRestarted = reason == 1;
  EXPECT_EQ(restarts(), isRestarted ? 1U : 0U);
  ASSERT_EQ(session().isDialogOpen(), isRestarted);
  if (isRestarted) {
    EXPECT_EQ(session().dialog().commandId, command);
  }
}

TEST_F(CommandRestart, ReadsTheEventInThisOrder) {
  startDialog();
  host().gate().startTrace();
  end(core::CompletedTerminationReason);
  const std::vector<std::string> calls = callsIn(host().gate());
  ASSERT_GE(calls.size(), 4U);
  EXPECT_THAT(
      std::vector<std::string>(calls.begin(), calls.begin() + 4),
      ElementsAre("ApplicationCommandEventArgs.commandId()", "ApplicationCommandEventArgs.terminationReason()",
                  "ApplicationCommandEventArgs.commandDefinition()", "CommandDefinition(idAssetsMatMng).execute()"));
}

TEST_F(CommandRestart, HappensEachTime) {
  startDialog();
  for (int i = 0; i < 3; ++i) {
    end(core::CompletedTerminationReason);
    ASSERT_TRUE(session().isDialogOpen());
  }
  EXPECT_EQ(restarts(), 3U);
}

TEST_F(CommandRestart, BringsTheDialogBackWhereTheHostEndsTheCommandOnApply) {
  startDialog(endingOnExecute());
  session().choose("idAppearanceList", "RAL 5015 Sky blue");
  apply();
  EXPECT_EQ(restarts(), 1U);
  EXPECT_EQ(ownLook(body("Machine", "Base")), "RAL 5015 Sky blue");
  EXPECT_EQ(shown("idAppearanceList"), "RAL 5015 Sky blue");
  EXPECT_THAT(session().picked(), IsEmpty());
}

TEST_F(CommandRestart, IsNotNeededWhereTheDialogStaysOpen) {
  startDialog();
  apply();
  EXPECT_EQ(restarts(), 0U);
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(CommandRestart, WorksAtOnceToo) {
  Profile profile = endingOnExecute();
  profile.executeFromTerminated = ExecuteFromTerminated::AtOnce;
  startDialog(profile);
  apply();
  EXPECT_EQ(restarts(), 1U);
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(CommandRestart, LeavesTheDialogClosedWhereTheHostRefusesIt) {
  Profile profile = endingOnExecute();
  profile.executeFromTerminated = ExecuteFromTerminated::Refused;
  startDialog(profile);
  apply();
  EXPECT_EQ(restarts(), 1U);
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(CommandRestart, RaisesWithoutADefinition) {
  startDialog();
  host().gate().setFault({1, FaultAnswer::Nothing, "ApplicationCommandEventArgs.commandDefinition"});
  end(core::CompletedTerminationReason);
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandTerminated(idAssetsMatMng): std::exception:")));
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(CommandRestart, DoesNotConcernTheHelpCommand) {
  start();
  session().press("idOpenHelp");
  session().press("idOpenHelpOnTools");
  EXPECT_EQ(restarts(), 0U);
}

class ForeignCommand : public CommandRestart, public WithRow<const char*> {};

TABLE(Ids, ForeignCommand, byText,
      {"FitCommand", "idAssetsMatMn", "idAssetsMatMng2", "IDASSETSMATMNG", "xidAssetsMatMng"});

TABLE_TEST(ForeignCommand, IsNotRestarted) {
  start();
  auto& foreign = host().ui().definitions().addNative(row(), "Foreign");
  host().gate().startTrace();
  host().ui().runner().start(foreign);
  EXPECT_THAT(callsIn(host().gate()), ElementsAre("ApplicationCommandEventArgs.commandId()"));
}

TEST_F(CommandRestart, RaisesAfterStopTookTheDefinition) {
  startDialog();
  ASSERT_TRUE(session().stopAddIn());
  end(core::CompletedTerminationReason);
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandTerminated(idAssetsMatMng): std::exception:")));
  EXPECT_FALSE(session().isDialogOpen());
}

TEST(EventHandlers, RaiseWithoutAnEvent) {
  EXPECT_THROW(tintora::cmdCreatedHandler.notify(nullptr), std::exception);
  EXPECT_THROW(tintora::cmdHelpCreatedHandler.notify(nullptr), std::exception);
  EXPECT_THROW(tintora::cmdExecuteHandler.notify(nullptr), std::exception);
  EXPECT_THROW(tintora::cmdInputChangedHandler.notify(nullptr), std::exception);
  EXPECT_THROW(tintora::commandEndingHandler.notify(nullptr), std::exception);
}

}  // namespace
}  // namespace tests
