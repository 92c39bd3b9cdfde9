// In which order the events of a command come, and why it ends.
#include "host/ui/command_runner.h"
#include "tests/host/application_events.h"
#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;

class CommandLife : public HostTest {
 protected:
  CommandLife() { session().openDesign(machine()); }

  /// A command that shows a dialog with a line and, at a minimum of one, a selection input.
  std::unique_ptr<RecordedCommand> dialogCommand(const std::string& id, std::size_t minimum = 0) {
    auto made = commandWithButton(id);
    made->build = [minimum](const Ptr<Command>& command) {
      command->commandInputs()->addStringValueInput("line", "");
      command->commandInputs()->addSelectionInput("selection", "", "")->setSelectionLimits(minimum);
    };
    return made;
  }

  ApplicationEvents application{ui(), log};
};

TEST_F(CommandLife, WithADialogGoesFromStartingToTerminated) {
  const auto command = dialogCommand("Dialog");
  session().press("Dialog");
  EXPECT_EQ(takeLog(), Log({"starting(Dialog)", "created", "createdAny(Dialog)", "activate"}));
  session().type("line", "x");
  EXPECT_EQ(takeLog(), Log({"inputChanged(line)"}));
  session().pressOk();
  EXPECT_EQ(log, Log({"execute", "deactivate", "destroy(1)", "terminated(Dialog 1)"}));
}

TEST_F(CommandLife, WithoutInputsExecutesAtOnceAndShowsNothing) {
  const auto command = commandWithButton("Plain");
  session().press("Plain");
  EXPECT_EQ(log,
            Log({"starting(Plain)", "created", "createdAny(Plain)", "execute", "destroy(1)", "terminated(Plain 1)"}));
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(CommandLife, WithoutInputsWaitsWhenItIsNotToExecuteByItself) {
  const auto command = commandWithButton("Plain");
  command->build = [](const Ptr<Command>& made) { made->isAutoExecute(false); };
  session().press("Plain");
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_EQ(log.back(), "activate");
}

TEST_F(CommandLife, EndsWithReasonTwoByCancelOrEscape) {
  const auto command = dialogCommand("Dialog");
  for (void (headless::Session::*leave)() : {&headless::Session::pressCancel, &headless::Session::pressEscape}) {
    session().press("Dialog");
    log.clear();
    (session().*leave)();
    EXPECT_EQ(takeLog(), Log({"deactivate", "destroy(2)", "terminated(Dialog 2)"}));
  }
}

TEST_F(CommandLife, EndsWithReasonThreeWhenTheExecutionFails) {
  const auto command = dialogCommand("Dialog");
  command->execute.then = [](const Ptr<CommandEventArgs>& arguments) { arguments->executeFailed(true); };
  session().press("Dialog");
  log.clear();
  session().pressOk();
  EXPECT_EQ(log, Log({"execute", "deactivate", "destroy(3)", "terminated(Dialog 3)"}));
}

TEST_F(CommandLife, EndsWithReasonFourWhenAnotherStarts) {
  const auto first = dialogCommand("First");
  const auto second = dialogCommand("Second");
  session().press("First");
  log.clear();
  session().press("Second");
  EXPECT_EQ(log, Log({"starting(Second)", "execute", "deactivate", "destroy(4)", "terminated(First 4)", "created",
                      "createdAny(Second)", "activate"}));
  EXPECT_EQ(ui()->activeCommand(), "Second");
}

TEST_F(CommandLife, EndsWithReasonFiveWhenItsDocumentIsClosed) {
  const auto command = dialogCommand("Dialog");
  session().press("Dialog");
  log.clear();
  session().closeDocument();
  EXPECT_EQ(log, Log({"deactivate", "destroy(5)", "terminated(Dialog 5)"}));
}

TEST_F(CommandLife, EndsWithReasonFiveWhenAnotherDocumentIsOpenedOrTheHostEnds) {
  const auto command = dialogCommand("Dialog");
  session().press("Dialog");
  log.clear();
  session().openDesign(machine());
  EXPECT_EQ(takeLog().back(), "terminated(Dialog 5)");
  session().press("Dialog");
  log.clear();
  end();
  EXPECT_EQ(log, Log({"deactivate", "destroy(5)", "terminated(Dialog 5)"}));
}

TEST_F(CommandLife, IsNotExecutedByAnotherWhenItsInputsAreInvalid) {
  const auto first = dialogCommand("First", 1);
  const auto second = dialogCommand("Second");
  session().press("First");
  log.clear();
  session().press("Second");
  EXPECT_EQ(log[1], "deactivate");
  EXPECT_THAT(log, testing::Not(testing::Contains("execute")));
}

TEST_F(CommandLife, IsNotExecutedByAnotherWhenItDoesNotWantTo) {
  const auto first = dialogCommand("First");
  const auto second = dialogCommand("Second");
  first->build = [](const Ptr<Command>& made) {
    made->commandInputs()->addStringValueInput("line", "");
    EXPECT_TRUE(made->isExecutedWhenPreEmpted());
    made->isExecutedWhenPreEmpted(false);
  };
  session().press("First");
  log.clear();
  session().press("Second");
  EXPECT_THAT(log, testing::Not(testing::Contains("execute")));
}

TEST_F(CommandLife, EndsTheOneOfItsOwnDefinitionToo) {
  const auto command = dialogCommand("Dialog");
  session().press("Dialog");
  const Ptr<Command> before = command->command;
  session().press("Dialog");
  EXPECT_NE(command->command, before) << "each start makes a new command";
  EXPECT_FALSE(before->isValid());
  EXPECT_TRUE(command->command->isValid());
}

TEST_F(CommandLife, DoesNotBeginWhenAHandlerStopsIt) {
  const auto command = dialogCommand("Dialog");
  application.starting.then = [](const Ptr<ApplicationCommandEventArgs>& arguments) {
    EXPECT_FALSE(arguments->isCanceled());
    arguments->isCanceled(true);
  };
  session().press("Dialog");
  EXPECT_EQ(log, Log({"starting(Dialog)"}));
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_FALSE(command->definition->execute());
}

TEST_F(CommandLife, DoesNotBeginWhenAHandlerDeletesItsDefinition) {
  const auto command = dialogCommand("Dialog");
  application.starting.then = [&](const auto&) { command->definition->deleteMe(); };
  session().press("Dialog");
  EXPECT_EQ(log, Log({"starting(Dialog)"}));
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(CommandLife, LeavesTheRunningOneAloneWhenAHandlerStopsIt) {
  const auto running = dialogCommand("Running");
  const auto stopped = dialogCommand("Stopped");
  session().press("Running");
  application.starting.then = [](const Ptr<ApplicationCommandEventArgs>& arguments) { arguments->isCanceled(true); };
  session().press("Stopped");
  EXPECT_EQ(ui()->activeCommand(), "Running");
}

TEST_F(CommandLife, IsReportedWithItsDefinition) {
  const auto command = dialogCommand("Dialog");
  Ptr<CommandDefinition> reported;
  application.terminated.then = [&](const Ptr<ApplicationCommandEventArgs>& arguments) {
    reported = arguments->commandDefinition();
  };
  session().press("Dialog");
  EXPECT_EQ(command->command->parentCommandDefinition(), command->definition);
  session().pressCancel();
  EXPECT_EQ(reported, command->definition);
}

TEST_F(CommandLife, EndsWithoutItsDefinitionWhenThatWasDeleted) {
  const auto command = dialogCommand("Dialog");
  session().press("Dialog");
  EXPECT_TRUE(command->definition->deleteMe());
  EXPECT_FALSE(command->command->parentCommandDefinition());
  bool hasDefinition = true;
  application.terminated.then = [&](const Ptr<ApplicationCommandEventArgs>& arguments) {
    hasDefinition = arguments->commandDefinition();
  };
  session().pressCancel();
  EXPECT_FALSE(hasDefinition);
  EXPECT_EQ(log.back(), "terminated(Dialog 2)");
}

TEST_F(CommandLife, IsTheActiveCommandUntilItEnds) {
  const auto command = dialogCommand("Dialog");
  EXPECT_EQ(ui()->activeCommand(), "SelectCommand");
  session().press("Dialog");
  EXPECT_EQ(ui()->activeCommand(), "Dialog");
  session().pressCancel();
  EXPECT_EQ(ui()->activeCommand(), "SelectCommand");
}

TEST_F(CommandLife, OfTheHostsOwnIsReportedLikeAnyOther) {
  EXPECT_TRUE(ui()->commandDefinitions()->itemById("SelectCommand")->execute());
  EXPECT_EQ(log, Log({"starting(SelectCommand)", "createdAny(SelectCommand)", "terminated(SelectCommand 1)"}));
}

TEST_F(CommandLife, IsUsableUntilItsLastEvent) {
  const auto command = dialogCommand("Dialog");
  bool wasValid = false;
  command->destroy.then = [&](const Ptr<CommandEventArgs>& arguments) {
    wasValid = arguments->command()->isValid() && arguments->command()->commandInputs()->count() == 2;
  };
  application.terminated.then = [&](const auto&) { EXPECT_FALSE(command->command->isValid()); };
  session().press("Dialog");
  session().pressCancel();
  EXPECT_TRUE(wasValid);
}

TEST_F(CommandLife, GoesOnWhenAHandlerRaises) {
  const auto command = dialogCommand("Dialog");
  command->activate.then = [](const auto&) { throw std::runtime_error("no luck"); };
  session().press("Dialog");
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_EQ(takeErrors(), Log({"activate(Dialog): no luck"}));
}

TEST_F(CommandLife, ShowsOptionsAndSizesAsTheyWereSet) {
  const auto command = dialogCommand("Dialog");
  session().press("Dialog");
  const Ptr<Command> made = command->command;
  EXPECT_TRUE(made->isOKButtonVisible() && made->isAutoExecute() && made->isRepeatable());
  EXPECT_EQ(made->okButtonText(), "OK");
  EXPECT_TRUE(made->setDialogInitialSize(425, 400));
  EXPECT_FALSE(made->setDialogInitialSize(0, 100) || made->setDialogMinimumSize(10, -1));
  EXPECT_EQ(session().dialog().width, 425);
  EXPECT_EQ(session().dialog().height, 400);
  EXPECT_EQ(session().dialog().cancelText, "Cancel");
  made->isOKButtonVisible(false);
  EXPECT_EQ(session().dialog().cancelText, "CLOSE");
  made->cancelButtonText("Leave");
  made->okButtonText("Apply");
  EXPECT_EQ(session().dialog().cancelText, "Leave");
  EXPECT_EQ(session().dialog().okText, "Apply");
  EXPECT_FALSE(session().dialog().hasOkButton);
}

}  // namespace
}  // namespace tests
