#include "host/cli/dialog_picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "host/cli/picture_files.h"
#include "tests/cli/dialog_views.h"
#include "tests/support/tables.h"
#include "tests/support/temporary_folder.h"

namespace headless::cli {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

InputView list(int style, const std::vector<std::string>& names, int selected) {
  InputView view = inputView(InputKind::DropDown, "List");
  view.style = style;
  for (const std::string& name : names) {
    view.items.push_back({name, "", static_cast<int>(view.items.size()) == selected});
  }
  view.selectedItem = selected;
  return view;
}

InputView textBox(const std::string& content, const std::string& text) {
  InputView view = inputView(InputKind::TextBox, "Box");
  view.content = content;
  view.text = text;
  return view;
}

std::string pictureOf(InputView content, const PictureStyle& style = {}) {
  return dialogPicture(dialogWith(std::move(content)), style);
}

std::size_t timesIn(const std::string& text, const std::string& part) {
  std::size_t times = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++times;
  }
  return times;
}

double heightOf(const std::string& picture) {
  std::smatch found;
  EXPECT_TRUE(std::regex_search(picture, found, std::regex(" height=\"([0-9.]+)\" viewBox")));
  return std::stod(found[1]);
}

class PictureOfKind : public ::testing::Test, public tests::WithRow<InputKind> {};

TABLE(Kinds, PictureOfKind, tests::byNumber,
      {InputKind::Group, InputKind::Selection, InputKind::ButtonRow, InputKind::TextBox, InputKind::DropDown,
       InputKind::Text, InputKind::CheckBox, InputKind::Button});

TABLE_TEST(PictureOfKind, ShowsTheLabel) {
  EXPECT_THAT(pictureOf(inputView(row(), "Some label")), HasSubstr(">Some label</text>"));
}

TABLE_TEST(PictureOfKind, MarksOnlyWhatIsDisabled) {
  InputView view = inputView(row(), "Some label");
  EXPECT_THAT(pictureOf(view), Not(HasSubstr("aria-disabled")));
  view.isEnabled = false;
  EXPECT_THAT(pictureOf(view), HasSubstr("aria-disabled=\"true\"><title>Some label</title>"));
}

TABLE_TEST(PictureOfKind, LeavesOutWhatIsHidden) {
  InputView view = inputView(row(), "Some label");
  view.isVisible = false;
  EXPECT_THAT(pictureOf(view), Not(HasSubstr("Some label")));
}

TEST(DialogPicture, ShowsTitleAndButtons) {
  DialogView dialog = dialogWith(groupView({}));
  EXPECT_THAT(dialogPicture(dialog), HasSubstr(">Title</text>"));
  EXPECT_THAT(dialogPicture(dialog), HasSubstr(">Close</text>"));
  EXPECT_THAT(dialogPicture(dialog), Not(HasSubstr(">Do it</text>")));
  dialog.hasOkButton = true;
  dialog.okText = "Do it";
  EXPECT_THAT(dialogPicture(dialog), HasSubstr(">Do it</text>"));
}

TEST(DialogPicture, IsAsWideAsTheDialogAskedFor) {
  DialogView dialog = dialogWith(groupView({}));
  dialog.width = 512;
  EXPECT_THAT(dialogPicture(dialog), HasSubstr("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"512\""));
}

TEST(DialogPicture, GrowsWithItsInputs) {
  const InputView check = inputView(InputKind::CheckBox, "Check");
  EXPECT_GT(heightOf(pictureOf(groupView({check, check}))), heightOf(pictureOf(groupView({check}))));
}

TEST(DialogPicture, AClosedGroupHidesWhatIsInIt) {
  InputView closed = groupView({inputView(InputKind::CheckBox, "Inside")});
  EXPECT_THAT(pictureOf(closed), HasSubstr("Inside"));
  closed.isExpanded = false;
  EXPECT_THAT(pictureOf(closed), Not(HasSubstr("Inside")));
}

TEST(DialogPicture, WhatIsInAnUntickedGroupIsDisabledButNotItsHeader) {
  InputView unticked = groupView({inputView(InputKind::CheckBox, "Inside")});
  unticked.hasTick = true;
  const std::string picture = pictureOf(unticked);
  EXPECT_THAT(picture, HasSubstr("aria-disabled=\"true\"><title>Inside</title>"));
  EXPECT_EQ(timesIn(picture, "aria-disabled"), 1U);
  unticked.isTicked = true;
  EXPECT_THAT(pictureOf(unticked), Not(HasSubstr("aria-disabled")));
}

TEST(DialogPicture, TicksAreDrawn) {
  InputView check = inputView(InputKind::CheckBox, "Check");
  const std::string unticked = pictureOf(check);
  check.isTicked = true;
  EXPECT_EQ(timesIn(pictureOf(check), "<path"), timesIn(unticked, "<path") + 1);
}

TEST(DialogPicture, ASelectionShowsItsPromptOrHowManyArePicked) {
  InputView selection = inputView(InputKind::Selection, "Pick");
  selection.text = "Select Body";
  EXPECT_THAT(pictureOf(selection), HasSubstr(">Select Body</text>"));
  selection.selection.resize(3);
  EXPECT_THAT(pictureOf(selection), HasSubstr(">3 selected</text>"));
  EXPECT_THAT(pictureOf(selection), Not(HasSubstr("Select Body")));
}

TEST(DialogPicture, MarkupOfATextBoxBecomesBoldAndSuperscript) {
  const std::string picture = pictureOf(textBox("<b>Steel</b>; 1 kg.m<sup>-3</sup>", "Steel; 1 kg.m-3"));
  EXPECT_THAT(picture, HasSubstr("<tspan font-weight=\"bold\">Steel</tspan>"));
  EXPECT_THAT(picture, ::testing::ContainsRegex("<tspan dy=\"-[0-9.]+\" font-size=\"[0-9.]+\">-3</tspan>"));
  EXPECT_THAT(picture, Not(HasSubstr("&lt;")));
}

TEST(DialogPicture, APlainTextBoxShowsItsTextAsItIs) {
  EXPECT_THAT(pictureOf(textBox("a <b> & c", "a <b> & c")), HasSubstr("a &lt;b&gt; &amp; c"));
}

TEST(DialogPicture, ATextBoxIsAtLeastAsHighAsItsRows) {
  InputView box = textBox("", "");
  const double oneRow = heightOf(pictureOf(box));
  box.rows = 3;
  EXPECT_GT(heightOf(pictureOf(box)), oneRow);
}

TEST(DialogPicture, WhatWasTypedIsShown) {
  InputView filter = inputView(InputKind::Text, "Filter");
  filter.text = "ral & 30";
  EXPECT_THAT(pictureOf(filter), HasSubstr(">ral &amp; 30</text>"));
}

TEST(DialogPicture, AClosedListShowsTheChosenItemOnly) {
  const std::string picture = pictureOf(list(1, {"first", "second", "third"}, 1));
  EXPECT_THAT(picture, HasSubstr(">second</text>"));
  EXPECT_THAT(picture, Not(HasSubstr(">first</text>")));
}

TEST(DialogPicture, AnOpenListShowsSoManyItemsFromTheChosenOneOn) {
  PictureStyle style;
  style.openList = "idList";
  style.openItems = 2;
  const std::string picture = pictureOf(list(1, {"first", "second", "third", "fourth"}, 1), style);
  EXPECT_EQ(timesIn(picture, ">second</text>"), 2U);
  EXPECT_EQ(timesIn(picture, ">third</text>"), 1U);
  EXPECT_THAT(picture, Not(HasSubstr(">first</text>")));
  EXPECT_THAT(picture, Not(HasSubstr(">fourth</text>")));
}

TEST(DialogPicture, AnOpenListAtItsEndIsStillFull) {
  PictureStyle style;
  style.openList = "idList";
  style.openItems = 2;
  EXPECT_THAT(pictureOf(list(1, {"first", "second", "third"}, 2), style), HasSubstr(">second</text>"));
}

TEST(DialogPicture, AnOpenListFitsIntoThePicture) {
  PictureStyle style;
  style.openList = "idList";
  const std::vector<std::string> names(9, "item");
  EXPECT_GT(heightOf(pictureOf(list(1, names, 0), style)), 9 * 20.0);
}

TEST(DialogPicture, SwatchesStandInListsWithIconsOnly) {
  PictureStyle style;
  style.swatches = {{"red", {0xAF, 0x2B, 0x1E, 255}}};
  EXPECT_THAT(pictureOf(list(0, {"red"}, 0), style), HasSubstr("fill=\"#AF2B1E\""));
  EXPECT_THAT(pictureOf(list(1, {"red"}, 0), style), Not(HasSubstr("#AF2B1E")));
  EXPECT_THAT(pictureOf(list(0, {"blue"}, 0), style), Not(HasSubstr("#AF2B1E")));
}

TEST(DialogPicture, IconsAreTakenFromTheirFolders) {
  InputView row = inputView(InputKind::ButtonRow, "Row");
  row.items = {{"Body", "resources/Body", true}};
  InputView button = inputView(InputKind::Button, "Go");
  button.icon = "resources/Go";
  PictureStyle style;
  style.icon = [](const std::string& folder) { return "data:" + folder; };
  const std::string picture = pictureOf(groupView({row, button}), style);
  EXPECT_THAT(picture, HasSubstr("href=\"data:resources/Body\""));
  EXPECT_THAT(picture, HasSubstr("href=\"data:resources/Go\""));
  EXPECT_THAT(picture, HasSubstr("<title>Body</title>"));
}

TEST(DialogPicture, AMissingIconIsAQuestionMark) {
  InputView button = inputView(InputKind::Button, "Go");
  button.icon = "resources/Go";
  EXPECT_THAT(pictureOf(button), HasSubstr(">?</text>"));
}

TEST(MessageBoxPicture, ShowsTitleTextAndButtons) {
  MessageBox box;
  box.title = "Tintora";
  box.text = "bodies & faces?";
  box.buttons = adsk::core::YesNoButtonType;
  const std::string picture = messageBoxPicture(box);
  for (const char* text : {">Tintora</text>", "bodies &amp; faces?", ">Yes</text>", ">No</text>"}) {
    EXPECT_THAT(picture, HasSubstr(text));
  }
  EXPECT_THAT(picture, Not(HasSubstr(">OK</text>")));
}

ButtonView toolbarButton(const std::string& tab, const std::string& name) {
  ButtonView button;
  button.tab = tab;
  button.panelId = "panel";
  button.panel = "QV Tools";
  button.name = name;
  button.tooltip = "Does " + name;
  button.isPromoted = true;
  return button;
}

TEST(ToolbarPicture, ShowsTabsAndThePanelOfTheFirst) {
  const std::string picture =
      toolbarPicture({toolbarButton("SOLID", "One"), toolbarButton("SOLID", "Two"), toolbarButton("TOOLS", "Three")});
  for (const char* text : {">SOLID</text>", ">TOOLS</text>", ">QV Tools</text>", "<title>One</title>",
                           "<title>Two</title>", ">Does One<"}) {
    EXPECT_THAT(picture, HasSubstr(text));
  }
  EXPECT_EQ(timesIn(picture, ">QV Tools</text>"), 1U);
  EXPECT_THAT(picture, Not(HasSubstr("Three")));
}

TEST(ToolbarPicture, IsEmptyWithoutButtons) {
  EXPECT_THAT(toolbarPicture({}), HasSubstr("</svg>"));
}

TEST(EmbeddedIcon, IsTheLargestFileOfTheFolder) {
  const tests::TemporaryFolder folder;
  EXPECT_EQ(embeddedIcon(folder.path()), "");
  std::ofstream(folder.path() / "16x16.png") << "ab";
  EXPECT_EQ(embeddedIcon(folder.path()), "data:image/png;base64,YWI=");
  std::ofstream(folder.path() / "32x32.png") << "abc";
  EXPECT_EQ(embeddedIcon(folder.path()), "data:image/png;base64,YWJj");
  std::ofstream(folder.path() / "64x64.png") << "\xff";
  EXPECT_EQ(embeddedIcon(folder.path()), "data:image/png;base64,/w==");
}

}  // namespace
}  // namespace headless::cli
