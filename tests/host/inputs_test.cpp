#include "host/ui/inputs.h"

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;

using DialogInputs = HostDialogTest;

Log idsIn(const Ptr<CommandInputs>& inputs) {
  Log ids;
  for (const Ptr<CommandInput>& each : inputs) {
    ids.push_back(each->id());
  }
  return ids;
}

TEST_F(DialogInputs, AreCountedAtTheirOwnLevelAndFoundAtAny) {
  open([](const Inputs& inputs) {
    inputs->addStringValueInput("line", "");
    const auto outer = inputs->addGroupCommandInput("outer", "")->children();
    outer->addBoolValueInput("box", "", true);
    outer->addGroupCommandInput("inner", "")->children()->addStringValueInput("deep", "");
  });
  const auto inputs = dialog->command->commandInputs();
  EXPECT_EQ(idsIn(inputs), Log({"line", "outer"}));
  EXPECT_EQ(idsIn(input<GroupCommandInput>("outer")->children()), Log({"box", "inner"}));
  EXPECT_EQ(inputs->itemById("deep")->id(), "deep");
  EXPECT_FALSE(inputs->itemById("nothing"));
  EXPECT_FALSE(inputs->item(2));
}

TEST_F(DialogInputs, HaveIdsThatAreUniqueInTheWholeDialog) {
  open([](const Inputs& inputs) {
    EXPECT_TRUE(inputs->addStringValueInput("line", ""));
    const auto group = inputs->addGroupCommandInput("group", "")->children();
    EXPECT_FALSE(inputs->addBoolValueInput("line", "", true));
    EXPECT_FALSE(group->addBoolValueInput("line", "", true));
    EXPECT_FALSE(group->addGroupCommandInput("group", ""));
    EXPECT_FALSE(inputs->addStringValueInput("", ""));
  });
  EXPECT_EQ(idsIn(dialog->command->commandInputs()), Log({"line", "group"}));
  EXPECT_EQ(idsIn(input<GroupCommandInput>("group")->children()), Log({}));
}

TEST_F(DialogInputs, KnowWhereTheyAre) {
  open([](const Inputs& inputs) {
    inputs->addGroupCommandInput("group", "Group")->children()->addStringValueInput("line", "Line");
  });
  const auto line = input<CommandInput>("line");
  const auto group = input<CommandInput>("group");
  EXPECT_EQ(line->name(), "Line");
  EXPECT_EQ(line->parentCommandInput(), group);
  EXPECT_FALSE(group->parentCommandInput());
  EXPECT_EQ(line->parentCommand(), dialog->command);
  EXPECT_EQ(idsIn(line->commandInputs()), Log({"line"}));
  EXPECT_EQ(line->commandInputs()->command(), dialog->command);
}

TEST_F(DialogInputs, StartUsableAndVisibleAndKeepWhatTheyAreGiven) {
  open([](const Inputs& inputs) { inputs->addStringValueInput("line", ""); });
  const auto line = input<CommandInput>("line");
  EXPECT_TRUE(line->isEnabled() && line->isVisible());
  EXPECT_TRUE(line->isEnabled(false) && line->isVisible(false));
  EXPECT_FALSE(line->isEnabled() || line->isVisible());
  EXPECT_FALSE(session().input("line").isEnabled || session().input("line").isVisible);
}

TEST_F(DialogInputs, OfTextHoldTheirValue) {
  open([](const Inputs& inputs) { inputs->addStringValueInput("line", "", "first"); });
  const auto line = input<StringValueCommandInput>("line");
  EXPECT_EQ(line->value(), "first");
  EXPECT_TRUE(line->value("second"));
  EXPECT_EQ(line->value(), "second");
  EXPECT_EQ(session().input("line").text, "second");
}

TEST_F(DialogInputs, OfCheckBoxesAndButtonsHoldTheirValueAndLook) {
  open([](const Inputs& inputs) {
    inputs->addBoolValueInput("box", "", true, "", true);
    inputs->addBoolValueInput("button", "", false, "icons");
  });
  const auto box = input<BoolValueCommandInput>("box");
  EXPECT_TRUE(box->isCheckBox() && box->value());
  EXPECT_TRUE(box->value(false));
  EXPECT_FALSE(box->value());
  const auto button = input<BoolValueCommandInput>("button");
  EXPECT_FALSE(button->isCheckBox() || button->value());
  EXPECT_EQ(button->resourceFolder(), "icons");
  EXPECT_TRUE(button->resourceFolder("other") && button->text("Press"));
  EXPECT_EQ(session().input("button").icon, "other");
  EXPECT_EQ(session().input("button").text, button->text());
}

TEST_F(DialogInputs, OfGroupsStartOpenWithoutATick) {
  open([](const Inputs& inputs) { inputs->addGroupCommandInput("group", ""); });
  const auto group = input<GroupCommandInput>("group");
  EXPECT_TRUE(group->isExpanded() && group->isEnabledCheckBoxChecked());
  EXPECT_FALSE(group->isEnabledCheckBoxDisplayed());
  EXPECT_TRUE(group->isExpanded(false) && group->isEnabledCheckBoxDisplayed(true));
  EXPECT_TRUE(group->isEnabledCheckBoxChecked(false));
  EXPECT_FALSE(group->isExpanded() || group->isEnabledCheckBoxChecked());
  EXPECT_TRUE(session().input("group").hasTick);
}

TEST_F(DialogInputs, OfGroupsKeepATickThatIsNotDisplayedYet) {
  open([](const Inputs& inputs) {
    EXPECT_TRUE(inputs->addGroupCommandInput("group", "")->isEnabledCheckBoxChecked(false));
  });
  EXPECT_FALSE(session().input("group").isTicked);
}

TEST_F(DialogInputs, OfFormattedTextShowItWithoutMarkup) {
  open([](const Inputs& inputs) { inputs->addTextBoxCommandInput("box", "", "<b>a</b>", 2, true); });
  const auto box = input<TextBoxCommandInput>("box");
  EXPECT_EQ(box->text(), "a");
  EXPECT_EQ(box->formattedText(), "<b>a</b>");
  EXPECT_TRUE(box->formattedText("x<br />y"));
  EXPECT_EQ(box->text(), "x\ny");
  EXPECT_EQ(session().input("box").content, "x<br />y");
}

TEST_F(DialogInputs, OfPlainTextShowEveryCharacter) {
  open([](const Inputs& inputs) { inputs->addTextBoxCommandInput("box", "", "<b>a</b>", 2, true); });
  const auto box = input<TextBoxCommandInput>("box");
  EXPECT_TRUE(box->text("<b>a</b>"));
  EXPECT_EQ(box->text(), "<b>a</b>");
  EXPECT_EQ(session().input("box").text, "<b>a</b>");
}

TEST_F(DialogInputs, OfTextBoxesHaveRowsAndMayBeReadOnly) {
  open([](const Inputs& inputs) { inputs->addTextBoxCommandInput("box", "", "", 2, true); });
  const auto box = input<TextBoxCommandInput>("box");
  EXPECT_TRUE(box->isReadOnly());
  EXPECT_TRUE(box->isReadOnly(false) && box->numRows(5));
  EXPECT_FALSE(box->numRows(0) || box->numRows(-1));
  EXPECT_FALSE(box->isReadOnly());
  EXPECT_EQ(box->numRows(), 5);
  EXPECT_EQ(session().input("box").rows, 5);
}

TEST_F(DialogInputs, MayBeAddedWhileTheDialogIsOpen) {
  open([](const Inputs& inputs) { inputs->addStringValueInput("line", ""); });
  EXPECT_TRUE(dialog->command->commandInputs()->addStringValueInput("late", ""));
  EXPECT_TRUE(session().dialog().find("late"));
}

TEST_F(DialogInputs, ChangedByProgramRaiseNoEvents) {
  open([](const Inputs& inputs) {
    inputs->addStringValueInput("line", "");
    inputs->addGroupCommandInput("group", "");
    inputs->addTextBoxCommandInput("box", "", "", 1, true);
  });
  input<StringValueCommandInput>("line")->value("x");
  input<GroupCommandInput>("group")->isExpanded(false);
  input<TextBoxCommandInput>("box")->formattedText("x");
  EXPECT_EQ(log, Log({}));
}

// A dialog with one input of each kind and the handles to them, which outlive it.
class HandlesOfAClosedDialog : public HostDialogTest {};

TEST_F(HandlesOfAClosedDialog, AnswerWithNothing) {
  open([](const Inputs& inputs) {
    const auto group = inputs->addGroupCommandInput("group", "Group")->children();
    group->addStringValueInput("line", "Line", "text");
    group->addBoolValueInput("box", "Box", true, "", true);
    group->addTextBoxCommandInput("texts", "Texts", "text", 2, true);
    group->addSelectionInput("selection", "Selection", "Select");
  });
  const auto inputs = dialog->command->commandInputs();
  const auto group = input<GroupCommandInput>("group");
  const auto children = group->children();
  const auto line = input<StringValueCommandInput>("line");
  const auto box = input<BoolValueCommandInput>("box");
  const auto texts = input<TextBoxCommandInput>("texts");
  const auto selection = input<SelectionCommandInput>("selection");
  session().pressCancel();
  for (const Ptr<Base>& each : std::vector<Ptr<Base>>{dialog->command, inputs, group, children, line, box, texts}) {
    EXPECT_FALSE(each->isValid()) << each->objectType();
  }
  EXPECT_EQ(line->value() + texts->text() + group->name(), "");
  EXPECT_FALSE(line->value("x") || box->value() || group->isExpanded() || texts->numRows(3) || line->isEnabled());
  EXPECT_EQ(texts->numRows(), 0);
  EXPECT_FALSE(group->children() || line->parentCommand() || inputs->itemById("line") || children->item(0));
  EXPECT_FALSE(inputs->addStringValueInput("more", ""));
  EXPECT_EQ(inputs->count() + selection->selectionCount(), 0U);
  EXPECT_FALSE(selection->clearSelection() || selection->selection(0));
  EXPECT_FALSE(dialog->command->commandInputs() || dialog->command->doExecute(false));
}

TEST_F(HandlesOfAClosedDialog, OutliveTheHost) {
  open([](const Inputs& inputs) {
    inputs->addGroupCommandInput("group", "")->children()->addStringValueInput("line", "");
    inputs->addDropDownCommandInput("list", "", TextListDropDownStyle)->listItems()->add("a", true);
  });
  const auto command = dialog->command;
  const auto line = input<StringValueCommandInput>("line");
  const auto list = input<DropDownCommandInput>("list")->listItems();
  const auto item = list->item(0);
  const auto event = command->execute();
  dialog = nullptr;
  end();
  EXPECT_FALSE(command->isValid() || line->isValid() || list->isValid() || item->isValid() || event->isValid());
  EXPECT_EQ(line->value() + item->name() + event->name(), "");
  EXPECT_FALSE(event->sender() || command->parentCommandDefinition());
}

}  // namespace
}  // namespace tests
