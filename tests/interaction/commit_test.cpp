// What Apply and the remove button have in common: both buttons are disabled, then what was changed becomes one undo
// step, whatever the host makes of "execute without ending".
#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::CancelledChanges;
using headless::EditClearsSelection;
using headless::ExecuteInDialog;
using headless::FaultAnswer;
using headless::Profile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The body "Base" shows a look of its own; either button changes that.
template <class Fixture>
class WithPaintedBase : public Fixture {
 protected:
  void openWithBasePicked(Profile profile = usualProfile()) {
    this->start(std::move(profile));
    baseBody().appearance = this->look("Old paint");
    this->openDialog();
    // Otherwise Apply puts the old look back.
    assignAppearancesOnly(this->session());
    this->session().choose("idAppearanceList", "RAL 3000 Flame red");
    this->session().pick("Base");
  }

  headless::model::Body& baseBody() { return *this->design().root().bodies.front(); }
  std::string baseLook() { return this->ownLook(baseBody()); }
  headless::CommandObject* activeCommand() { return this->host().ui().runner().active().get(); }
};

std::string lookAfter(const std::string& button) {
  return button == applyButton ? "RAL 3000 Flame red" : "";
}

class Commit : public WithPaintedBase<AddInTest>, public WithRow<std::string> {
 protected:
  const std::string& button() const { return row(); }
};

TABLE(Buttons, Commit, byText, {applyButton, removeButton});

// Where the selection stays, nothing but the reaction itself disables the buttons.
TABLE_TEST(Commit, DisablesApplyAndAfterARemovalTheRemoveButtonToo) {
  Profile profile;
  profile.editClearsSelection = EditClearsSelection::Never;
  openWithBasePicked(profile);
  ASSERT_TRUE(isEnabled(applyButton));
  ASSERT_TRUE(isEnabled(removeButton));
  session().click(button());
  EXPECT_FALSE(isEnabled(applyButton));
  EXPECT_EQ(isEnabled(removeButton), button() == applyButton);
}

TABLE_TEST(Commit, ExecutesWithoutEndingAsItsLastCall) {
  openWithBasePicked();
  const Lines reaction = reactionTo(button(), traceOf(session(), [&] { session().click(button()); }));
  ASSERT_GE(reaction.size(), 4U);
  const Lines last(reaction.end() - 4, reaction.end());
  EXPECT_THAT(last, ElementsAre("BoolValueCommandInput(idBtnApply).isEnabled=(false) -> true",
                                HasSubstr("InputChangedEventArgs.inputs()"), HasSubstr(".command()"),
                                "Command(idAssetsMatMng).doExecute(false) -> true"));
  EXPECT_EQ(containing("doExecute", reaction).size(), 1U);
  EXPECT_THAT(containing("isEnabled()", reaction), IsEmpty());
}

TABLE_TEST(Commit, MakesOneUndoStepThatCanBeTakenBackAndDoneAgain) {
  openWithBasePicked();
  session().click(button());
  EXPECT_EQ(baseLook(), lookAfter(button()));
  EXPECT_EQ(history().undoSteps().size(), 1U);
  EXPECT_FALSE(history().hasPendingChanges());
  session().undo();
  EXPECT_EQ(baseLook(), "Old paint");
  EXPECT_THAT(history().undoSteps(), IsEmpty());
  session().redo();
  EXPECT_EQ(baseLook(), lookAfter(button()));
}

TABLE_TEST(Commit, LeavesTheDialogOpen) {
  openWithBasePicked();
  const auto* command = activeCommand();
  session().click(button());
  EXPECT_EQ(activeCommand(), command);
  EXPECT_TRUE(session().isDialogOpen());
  session().pick("Base");
  EXPECT_TRUE(isEnabled(applyButton));
}

TABLE_TEST(Commit, OpensANewDialogWhereTheHostEndsTheCommand) {
  Profile profile;
  profile.executeInDialog = ExecuteInDialog::EndsCommand;
  openWithBasePicked(profile);
  const adsk::core::Ptr<headless::CommandObject> ended = host().ui().runner().active();
  session().click(button());
  EXPECT_NE(activeCommand(), ended.get());
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_EQ(baseLook(), lookAfter(button()));
  EXPECT_EQ(history().undoSteps().size(), 1U);
  EXPECT_THAT(host().gate().misuses(), IsEmpty());
  session().pick("Base");
  EXPECT_TRUE(isEnabled(applyButton));
}

TABLE_TEST(Commit, CallsNothingAfterTheHostEndedTheCommand) {
  Profile profile;
  profile.executeInDialog = ExecuteInDialog::EndsCommand;
  openWithBasePicked(profile);
  const Lines reaction = reactionTo(button(), traceOf(session(), [&] { session().click(button()); }));
  EXPECT_EQ(reaction.back(), "Command(idAssetsMatMng).doExecute(false) -> true");
}

TABLE_TEST(Commit, LeavesNoDialogWhereTheHostEndsTheCommandAndRefusesToRestartIt) {
  Profile profile;
  profile.executeInDialog = ExecuteInDialog::EndsCommand;
  profile.executeFromTerminated = headless::ExecuteFromTerminated::Refused;
  openWithBasePicked(profile);
  session().click(button());
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_EQ(baseLook(), lookAfter(button()));
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

/// The host clears the selection at the first change, and then refuses to execute without one.
Profile refusing() {
  Profile profile;
  profile.executeNeedsValidInputs = true;
  profile.editClearsSelection = EditClearsSelection::AtOnce;
  return profile;
}

TABLE_TEST(Commit, IgnoresThatExecutingIsRefused) {
  openWithBasePicked(refusing());
  const Lines reaction = reactionTo(button(), traceOf(session(), [&] { session().click(button()); }));
  EXPECT_EQ(reaction.back(), "Command(idAssetsMatMng).doExecute(false) -> false");
  EXPECT_EQ(baseLook(), lookAfter(button()));
  EXPECT_THAT(history().undoSteps(), IsEmpty());
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_FALSE(isEnabled(applyButton));
}

TABLE_TEST(Commit, WhatWasNotExecutedIsRolledBackByCancel) {
  openWithBasePicked(refusing());
  session().click(button());
  session().pressCancel();
  EXPECT_EQ(baseLook(), "Old paint");
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

TABLE_TEST(Commit, WhatWasNotExecutedStaysWhereTheHostKeepsIt) {
  Profile profile = refusing();
  profile.cancelledChanges = CancelledChanges::Kept;
  openWithBasePicked(profile);
  session().click(button());
  session().pressCancel();
  EXPECT_EQ(baseLook(), lookAfter(button()));
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

TABLE_TEST(Commit, DoesNotHappenAfterAnError) {
  openWithBasePicked();
  host().gate().setFault({1, FaultAnswer::Exception, "BRepBody.appearance="});
  const Lines reaction = reactionTo(button(), traceOf(session(), [&] { session().click(button()); }));
  EXPECT_THAT(takeErrors(), ElementsAre(HasSubstr("inputChanged(" + button() + "): std::runtime_error")));
  EXPECT_THAT(containing("doExecute", reaction), IsEmpty());
  EXPECT_TRUE(isEnabled(applyButton));
  EXPECT_TRUE(isEnabled(removeButton));
  EXPECT_EQ(baseLook(), "Old paint");
}

class CommitUnderProfile : public WithPaintedBase<AddInUnderProfile> {};

TABLE_OF_PROFILES(CommitUnderProfile);

TABLE_TEST(CommitUnderProfile, ApplyAndRemoveAreOneUndoStepEach) {
  openWithBasePicked(profile());
  session().click(applyButton);
  EXPECT_EQ(baseLook(), "RAL 3000 Flame red");
  if (session().picked().empty()) {
    session().pick("Base");
  }
  session().click(removeButton);
  EXPECT_EQ(baseLook(), "");
  EXPECT_EQ(history().undoSteps().size(), 2U);
  session().undo();
  EXPECT_EQ(baseLook(), "RAL 3000 Flame red");
  session().undo();
  EXPECT_EQ(baseLook(), "Old paint");
  session().redo();
  session().redo();
  EXPECT_EQ(baseLook(), "");
}

TABLE_TEST(Commit, WithoutACommandIsAnErrorWithApplyDisabled) {
  openWithBasePicked();
  host().gate().setFault({1, FaultAnswer::Nothing, "CommandInputs.command"});
  session().click(button());
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(takeErrors(), ElementsAre(HasSubstr("std::exception")));
  EXPECT_FALSE(isEnabled(applyButton));
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

}  // namespace
}  // namespace tests
