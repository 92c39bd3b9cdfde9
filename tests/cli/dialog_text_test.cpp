#include "host/cli/dialog_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/dialog_views.h"

namespace headless::cli {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

InputView list(std::size_t count, int selected) {
  InputView view = inputView(InputKind::DropDown, "List");
  for (std::size_t i = 0; i < count; ++i) {
    view.items.push_back({"item " + std::to_string(i), "", static_cast<int>(i) == selected});
  }
  view.selectedItem = selected;
  return view;
}

TEST(DialogText, AListShowsTheChosenItemAndItsNeighbours) {
  const std::string text = dialogText(dialogWith(list(9, 4)));
  EXPECT_THAT(text, HasSubstr("[ item 4"));
  EXPECT_THAT(text, HasSubstr("5 of 9"));
  EXPECT_THAT(text, HasSubstr("> item 4"));
  for (const char* near : {"item 2", "item 3", "item 5", "item 6"}) {
    EXPECT_THAT(text, HasSubstr(near));
  }
  EXPECT_THAT(text, Not(HasSubstr("item 1")));
  EXPECT_THAT(text, Not(HasSubstr("item 7")));
}

TEST(DialogText, AListWithoutChosenItemShowsHowManyThereAre) {
  EXPECT_THAT(dialogText(dialogWith(list(3, -1))), HasSubstr("3 items"));
  EXPECT_THAT(dialogText(dialogWith(list(0, -1))), HasSubstr("0 items"));
}

TEST(DialogText, AClosedGroupHidesWhatIsInIt) {
  InputView closed = groupView({list(2, 0)});
  closed.isExpanded = false;
  const std::string text = dialogText(dialogWith(closed));
  EXPECT_THAT(text, HasSubstr("▸ Group"));
  EXPECT_THAT(text, Not(HasSubstr("List")));
}

TEST(DialogText, WhatIsInAGroupThatIsNotTickedIsGreyedOut) {
  InputView unticked = groupView({list(1, 0)});
  unticked.hasTick = true;
  EXPECT_THAT(dialogText(dialogWith(unticked)), HasSubstr("▾ [ ] Group"));
  EXPECT_THAT(dialogText(dialogWith(unticked)), HasSubstr("▼] (greyed out)"));
  unticked.isTicked = true;
  EXPECT_THAT(dialogText(dialogWith(unticked)), Not(HasSubstr("greyed out")));
}

TEST(DialogText, HiddenInputsAreNotDrawn) {
  InputView hidden = list(2, 0);
  hidden.isVisible = false;
  EXPECT_THAT(dialogText(dialogWith(hidden)), Not(HasSubstr("List")));
}

TEST(DialogText, TheOkButtonIsDrawnWhenThereIsOne) {
  DialogView dialog = dialogWith(list(1, 0));
  EXPECT_THAT(dialogText(dialog), Not(HasSubstr("[ Do it ]")));
  dialog.hasOkButton = true;
  dialog.okText = "Do it";
  EXPECT_THAT(dialogText(dialog), HasSubstr("[ Do it ]  [ Close ]"));
}

TEST(DialogText, AnExcerptHasOnlyWhatWasAskedFor) {
  const DialogView dialog = dialogWith(groupView({list(2, 0), groupView({})}));
  EXPECT_THAT(dialogExcerpt(dialog, {"idList"}), HasSubstr("List"));
  EXPECT_THAT(dialogExcerpt(dialog, {"idList"}), Not(HasSubstr("Group")));
  EXPECT_THAT(dialogExcerpt(dialog, {"nix"}), Not(HasSubstr("List")));
}

TEST(DialogText, EveryLineIsAsWideAsTheFrame) {
  InputView text;
  text.kind = InputKind::TextBox;
  text.label = "A label that is much longer than the room for labels";
  text.text = std::string(300, 'x') + " äöü";
  const std::string drawing = dialogText(dialogWith(text));
  std::size_t lines = 0;
  for (std::size_t start = 0; start < drawing.size(); ++lines) {
    const std::size_t end = drawing.find('\n', start);
    std::size_t columns = 0;
    for (std::size_t i = start; i < end; ++i) {
      columns += (static_cast<unsigned char>(drawing[i]) & 0xC0U) != 0x80U ? 1 : 0;
    }
    EXPECT_EQ(columns, 78U) << drawing.substr(start, end - start);
    start = end + 1;
  }
  EXPECT_GT(lines, 8U);
}

TEST(ToolbarText, NamesPanelsButtonsAndDeadOnes) {
  ButtonView button;
  button.tab = "SOLID";
  button.panel = "Tools";
  button.name = "Go";
  button.tooltip = "Goes";
  button.isPromoted = true;
  EXPECT_EQ(toolbarText({button}), "SOLID > Tools\n  ( Go )  Goes\n");
  button.isPromoted = false;
  button.isDead = true;
  EXPECT_EQ(toolbarText({button}), "SOLID > Tools\n  ( Go )  Goes  (in the panel's menu) (greyed out)\n");
}

TEST(MessageBoxText, SaysHowItWasAnswered) {
  MessageBox box;
  box.text = "Really?";
  box.title = "Title";
  EXPECT_THAT(messageBoxText(box), HasSubstr("nobody answered"));
  box.answer = adsk::core::DialogNo;
  EXPECT_THAT(messageBoxText(box), HasSubstr("answered: [ No ]"));
}

}  // namespace
}  // namespace headless::cli
