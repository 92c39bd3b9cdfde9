// What executing means for the design: one step per execution, and what becomes of everything else.
#include "host/ui/command_runner.h"
#include "tests/host/application_events.h"
#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;
using headless::Profile;

// A dialog whose line renames the design's looks: every key applies a look to the body "Base", as an edit made in an
// input-changed event, and so does the execution.
class Execution : public HostDialogTest {
 protected:
  Execution() { prepareEdits(); }

  void start(Profile profile) {
    application = nullptr;
    HostDialogTest::start(std::move(profile));
    application = std::make_unique<ApplicationEvents>(ui(), log);
    prepareEdits();
  }
  void openEditor() {
    open([](const Inputs& inputs) {
      inputs->addStringValueInput("line", "");
      inputs->addSelectionInput("selection", "", "")->setSelectionLimits(0);
    });
  }
  std::string look() { return base().appearance ? base().appearance->name : ""; }
  Log steps() { return host().document()->history.undoSteps(); }
  bool executeHere(bool terminate) const { return dialog->command->doExecute(terminate); }
  void apply(const std::string& name) {
    const auto made = std::make_shared<headless::model::Appearance>();
    made->name = name;
    host().document()->history.assign(base().appearance, made);
  }

  std::unique_ptr<ApplicationEvents> application = std::make_unique<ApplicationEvents>(ui(), log);

 private:
  headless::model::Body& base() { return *session().design().root().bodies.front(); }
  void prepareEdits() {
    dialog->inputChanged.then = [this](const Ptr<InputChangedEventArgs>& arguments) {
      if (arguments->input()->id() == "line") {
        apply("typed");
      }
    };
  }
};

TEST_F(Execution, IsOneStepNamedAfterTheCommand) {
  openEditor();
  dialog->execute.then = [this](const auto&) { apply("executed"); };
  session().type("line", "ab");
  session().pressOk();
  EXPECT_EQ(look(), "executed");
  EXPECT_EQ(steps(), Log({"Dialog name"}));
  session().undo();
  EXPECT_EQ(look(), "");
  session().redo();
  EXPECT_EQ(look(), "executed");
}

TEST_F(Execution, ThatChangesNothingIsNoStep) {
  openEditor();
  session().pressOk();
  EXPECT_EQ(steps(), Log({}));
}

TEST_F(Execution, ThatFailsTakesBackWhatTheCommandChanged) {
  openEditor();
  dialog->execute.then = [this](const Ptr<CommandEventArgs>& arguments) {
    apply("executed");
    EXPECT_FALSE(arguments->executeFailed());
    EXPECT_TRUE(arguments->executeFailed(true));
  };
  session().type("line", "a");
  session().pressOk();
  EXPECT_EQ(look(), "");
  EXPECT_EQ(steps(), Log({}));
  EXPECT_TRUE(session().messageBoxes().empty());
}

TEST_F(Execution, ThatFailsShowsItsMessage) {
  openEditor();
  dialog->execute.then = [](const Ptr<CommandEventArgs>& arguments) {
    arguments->executeFailed(true);
    arguments->executeFailedMessage("It is too heavy.");
    EXPECT_EQ(arguments->executeFailedMessage(), "It is too heavy.");
  };
  session().pressOk();
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(session().messageBoxes().front().text, "It is too heavy.");
  EXPECT_EQ(session().messageBoxes().front().icon, CriticalIconType);
}

TEST_F(Execution, DoesNotHappenOnCancelAndItsChangesAreTakenBack) {
  openEditor();
  session().type("line", "a");
  EXPECT_EQ(look(), "typed");
  session().pressCancel();
  EXPECT_EQ(look(), "");
  EXPECT_EQ(steps(), Log({}));
}

TEST_F(Execution, DoesNotHappenOnCancelButItsChangesStayInHostsThatKeepThem) {
  start(profileWith([](Profile& profile) { profile.cancelledChanges = headless::CancelledChanges::Kept; }));
  openEditor();
  session().type("line", "a");
  session().pressCancel();
  EXPECT_EQ(look(), "typed");
  EXPECT_EQ(steps(), Log({"Dialog name"}));
}

TEST_F(Execution, WithoutEndingLeavesTheDialogOpenAndMakesAStep) {
  openEditor();
  session().type("line", "a");
  log.clear();
  EXPECT_TRUE(executeHere(false));
  EXPECT_EQ(log, Log({"execute"}));
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_EQ(steps(), Log({"Dialog name"}));
  session().pressCancel();
  EXPECT_EQ(look(), "typed") << "what was executed stays";
}

TEST_F(Execution, WithoutEndingMakesAStepEachTime) {
  openEditor();
  for (const char* name : {"one", "two"}) {
    dialog->execute.then = [this, name](const auto&) { apply(name); };
    EXPECT_TRUE(executeHere(false));
  }
  EXPECT_EQ(steps(), Log({"Dialog name", "Dialog name"}));
  session().undo();
  EXPECT_EQ(look(), "one");
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(Execution, WithEndingIsLikeOk) {
  openEditor();
  EXPECT_TRUE(executeHere(true));
  EXPECT_EQ(log, Log({"execute", "deactivate", "destroy(1)", "terminated(Dialog 1)"}));
}

TEST_F(Execution, WithoutEndingEndsTheDialogInHostsThatDoSo) {
  start(profileWith([](Profile& profile) { profile.executeInDialog = headless::ExecuteInDialog::EndsCommand; }));
  openEditor();
  EXPECT_TRUE(executeHere(false));
  EXPECT_EQ(log, Log({"execute", "deactivate", "destroy(1)", "terminated(Dialog 1)"}));
  EXPECT_FALSE(executeHere(false)) << "the command is gone";
}

TEST_F(Execution, ByProgramThatFailsSaysSo) {
  openEditor();
  dialog->execute.then = [](const Ptr<CommandEventArgs>& arguments) { arguments->executeFailed(true); };
  EXPECT_FALSE(executeHere(false));
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_FALSE(executeHere(true));
  EXPECT_EQ(log.back(), "terminated(Dialog 3)");
}

TEST_F(Execution, WithoutValidInputsIsRefusedInHostsThatDoSo) {
  start(profileWith([](Profile& profile) { profile.executeNeedsValidInputs = true; }));
  open([](const Inputs& inputs) { inputs->addSelectionInput("selection", "", ""); });
  EXPECT_FALSE(executeHere(false));
  EXPECT_EQ(log, Log({}));
  session().pick("Base");
  EXPECT_TRUE(executeHere(false));
}

TEST_F(Execution, WithoutValidInputsSucceedsElsewhere) {
  open([](const Inputs& inputs) { inputs->addSelectionInput("selection", "", ""); });
  EXPECT_TRUE(executeHere(false));
  EXPECT_EQ(log, Log({"execute"}));
}

TEST_F(Execution, InsideAnExecutionIsRefusedAndReported) {
  openEditor();
  dialog->execute.then = [this](const auto&) { EXPECT_FALSE(executeHere(false)); };
  session().pressOk();
  EXPECT_EQ(takeErrors(), Log({"Command.doExecute: the add-in executed Dialog inside an execution"}));
  EXPECT_EQ(std::count(log.begin(), log.end(), "execute"), 1);
}

TEST_F(Execution, IsRefusedBeforeTheDialogIsShown) {
  dialog->build = [](const Ptr<Command>& command) {
    command->commandInputs()->addStringValueInput("line", "");
    EXPECT_FALSE(command->doExecute(true));
  };
  session().press("Dialog");
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_THAT(log, testing::Not(testing::Contains("execute")));
}

TEST_F(Execution, InsideAnInputChangedEventEndsTheDialogWhenToldTo) {
  openEditor();
  dialog->inputChanged.then = [this](const auto&) { EXPECT_TRUE(executeHere(true)); };
  session().type("line", "abc");
  EXPECT_EQ(log, Log({"inputChanged(line)", "execute", "deactivate", "destroy(1)", "terminated(Dialog 1)"}));
}

TEST_F(Execution, WhenActivatedMayEndTheCommandBeforeAnybodySeesIt) {
  start(profileWith([](Profile& profile) { profile.preselectionUsed = true; }));
  session().pick("Base");
  dialog->activate.then = [this](const auto&) { EXPECT_TRUE(executeHere(true)); };
  openEditor();
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(Execution, WorksWithoutADocument) {
  session().closeDocument();
  dialog->inputChanged.then = nullptr;
  openEditor();
  session().type("line", "a");
  session().pressOk();
  EXPECT_EQ(log.back(), "terminated(Dialog 1)");
}

}  // namespace
}  // namespace tests
