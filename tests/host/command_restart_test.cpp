// Starting commands by program: from outside of events, from inside a command's own, and from the event that tells of
// its end.
#include "host/ui/command_runner.h"
#include "tests/host/application_events.h"
#include "tests/host/host_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace adsk::core;
using headless::ExecuteFromTerminated;
using headless::Profile;

class StartByProgram : public HostTest {
 protected:
  StartByProgram() { prepare(); }

  void startWith(ExecuteFromTerminated how) {
    application = nullptr;
    dialog = nullptr;
    other = nullptr;
    Profile profile;
    profile.executeFromTerminated = how;
    start(profile);
    prepare();
  }
  /// Restarts the dialog once, from the event that tells of its end, and keeps what execute() answered.
  void restartOnce() {
    application->terminated.then = [this](const Ptr<ApplicationCommandEventArgs>& arguments) {
      if (arguments->commandId() == "Dialog" && !answer) {
        answer = arguments->commandDefinition()->execute();
        log.push_back(*answer ? "yes" : "no");
      }
    };
  }

  std::unique_ptr<RecordedCommand> dialog;
  std::unique_ptr<RecordedCommand> other;
  std::unique_ptr<ApplicationEvents> application;
  std::optional<bool> answer;

 private:
  void prepare() {
    session().openDesign(machine());
    dialog = commandWithButton("Dialog");
    other = commandWithButton("Other");
    for (RecordedCommand* each : {dialog.get(), other.get()}) {
      each->build = [](const Ptr<Command>& command) { command->commandInputs()->addStringValueInput("line", ""); };
    }
    application = std::make_unique<ApplicationEvents>(ui(), log);
  }
};

TEST_F(StartByProgram, IsTheSameAsPressingTheButton) {
  EXPECT_TRUE(dialog->definition->execute());
  EXPECT_TRUE(dialog->definition->execute(NamedValues::create()));
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(StartByProgram, IsRefusedInsideTheCommandsOwnEvents) {
  const auto tryIt = [this](const auto&) { EXPECT_FALSE(other->definition->execute()); };
  dialog->build = [tryIt](const Ptr<Command>& command) {
    command->commandInputs()->addStringValueInput("line", "");
    tryIt(command);
  };
  dialog->execute.then = tryIt;
  dialog->inputChanged.then = tryIt;
  dialog->activate.then = tryIt;
  dialog->deactivate.then = tryIt;
  dialog->destroy.then = tryIt;
  application->starting.then = tryIt;
  application->createdAny.then = tryIt;
  session().press("Dialog");
  session().type("line", "x");
  session().pressOk();
  EXPECT_EQ(takeErrors().size(), 8U) << "each is reported";
  EXPECT_EQ(ui()->activeCommand(), "SelectCommand");
}

TEST_F(StartByProgram, FromTheEndWaitsForAllHandlers) {
  restartOnce();
  ApplicationRecorder later(log, "laterHandler");
  ui()->commandTerminated()->add(&later);
  session().press("Dialog");
  log.clear();
  session().pressCancel();
  EXPECT_EQ(log, Log({"deactivate", "destroy(2)", "terminated(Dialog 2)", "yes", "laterHandler(Dialog 2)",
                      "starting(Dialog)", "created", "createdAny(Dialog)", "activate"}));
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(StartByProgram, FromTheEndHappensInsideTheCallInHostsThatDoSo) {
  startWith(ExecuteFromTerminated::AtOnce);
  restartOnce();
  session().press("Dialog");
  log.clear();
  session().pressCancel();
  EXPECT_EQ(log, Log({"deactivate", "destroy(2)", "terminated(Dialog 2)", "starting(Dialog)", "created",
                      "createdAny(Dialog)", "activate", "yes"}));
}

TEST_F(StartByProgram, FromTheEndIsRefusedInHostsThatDoSo) {
  startWith(ExecuteFromTerminated::Refused);
  restartOnce();
  session().press("Dialog");
  session().pressCancel();
  EXPECT_EQ(log.back(), "no");
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(StartByProgram, FromTheEndOfOneStartsNothingInTheEventsOfTheNext) {
  startWith(ExecuteFromTerminated::AtOnce);
  restartOnce();
  session().press("Dialog");
  dialog->activate.then = [this](const auto&) { EXPECT_FALSE(other->definition->execute()); };
  session().pressCancel();
  EXPECT_EQ(takeErrors().size(), 1U);
  EXPECT_EQ(ui()->activeCommand(), "Dialog");
}

class Restart : public StartByProgram, public WithRow<ExecuteFromTerminated> {
 protected:
  void SetUp() override { startWith(row()); }
};

TABLE(FromTheEnd, Restart,
      [](const auto& row) { return row == ExecuteFromTerminated::AtOnce ? "AtOnce" : "AfterHandlers"; },
      {ExecuteFromTerminated::AfterHandlers, ExecuteFromTerminated::AtOnce});

TABLE_TEST(Restart, WhenAnotherCommandTakesOverFollowsThatOne) {
  restartOnce();
  session().press("Dialog");
  log.clear();
  session().press("Other");
  EXPECT_EQ(ui()->activeCommand(), "Dialog");
  EXPECT_EQ(log, Log({"starting(Other)", "execute", "deactivate", "destroy(4)", "terminated(Dialog 4)", "yes",
                      "created", "createdAny(Other)", "activate", "starting(Dialog)", "execute", "deactivate",
                      "destroy(4)", "terminated(Other 4)", "created", "createdAny(Dialog)", "activate"}));
}

TABLE_TEST(Restart, WhenTheDocumentClosesHappensWithoutIt) {
  restartOnce();
  session().press("Dialog");
  session().closeDocument();
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_EQ(host().document(), nullptr);
  session().type("line", "x");
  session().pressOk();
}

TABLE_TEST(Restart, WhenAnotherDocumentOpensHappensThere) {
  restartOnce();
  session().press("Dialog");
  session().openDesign(flatDesign(1));
  EXPECT_TRUE(host().document()->history.isOpen()) << "the dialog that came back has a transaction";
  session().pressCancel();
}

TABLE_TEST(Restart, WhenTheHostEndsDoesNotHappen) {
  restartOnce();
  session().press("Dialog");
  log.clear();
  end();
  EXPECT_THAT(log, testing::Not(testing::Contains("created")));
}

TABLE_TEST(Restart, OfADefinitionThatIsDeletedMeanwhileDoesNotHappen) {
  restartOnce();
  ApplicationRecorder deleting(log, "deleting");
  deleting.then = [this](const auto&) { dialog->definition->deleteMe(); };
  session().press("Dialog");
  if (row() == ExecuteFromTerminated::AfterHandlers) {
    ui()->commandTerminated()->add(&deleting);
  }
  session().pressCancel();
  EXPECT_EQ(session().isDialogOpen(), row() == ExecuteFromTerminated::AtOnce);
}

TEST_F(StartByProgram, OfTwoCommandsThatAlwaysComeBackIsStopped) {
  application->terminated.then = [](const Ptr<ApplicationCommandEventArgs>& arguments) {
    arguments->commandDefinition()->execute();
  };
  session().press("Dialog");
  session().press("Other");
  EXPECT_EQ(takeErrors(), Log({"events: the events of the dialog do not come to rest"}));
  application->terminated.then = nullptr;
}

}  // namespace
}  // namespace tests
