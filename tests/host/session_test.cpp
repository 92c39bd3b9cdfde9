// What a person can do at the host, and what a person cannot.
#include "host/runtime/session.h"

#include "tests/host/host_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace adsk::core;
using headless::PickKind;
using headless::UserError;

// A dialog with an input of each kind, at the top level and in a group within a group.
class Person : public HostDialogTest {
 protected:
  void SetUp() override {
    open([](const Inputs& inputs) {
      inputs->addStringValueInput("line", "");
      inputs->addBoolValueInput("box", "", true);
      inputs->addBoolValueInput("button", "", false);
      inputs->addTextBoxCommandInput("note", "", "", 2, false);
      addList(inputs, "list");
      const auto row = inputs->addButtonRowCommandInput("row", "", false)->listItems();
      row->add("left", true, "icon");
      row->add("right", false, "icon");
      const auto outer = inputs->addGroupCommandInput("outer", "")->children();
      const auto inner = outer->addGroupCommandInput("inner", "")->children();
      inner->addStringValueInput("deepLine", "");
      inner->addBoolValueInput("deepBox", "", true);
      inner->addBoolValueInput("deepButton", "", false);
      addList(inner, "deepList");
      const auto selection = inputs->addSelectionInput("selection", "", "");
      selection->setSelectionLimits(1, 2);
      selection->selectionFilters({"Bodies", "Faces"});
    });
  }

  static void addList(const Inputs& inputs, const std::string& id) {
    const auto items = inputs->addDropDownCommandInput(id, "", TextListDropDownStyle)->listItems();
    items->add("first", true);
    items->add("second", false);
  }
  std::string refusalOfPick(const std::string& path) {
    return refusalOf([&] { session().pick(path); });
  }
  std::string valueOf(const std::string& id) { return session().input(id).text; }
};

/// Everything that can be done with the deep inputs, or with the top-level ones.
using Action = void (*)(headless::Session&, const std::string& prefix);
struct NamedAction {
  std::string name;
  std::string input;
  Action act;
};

std::string inputId(const std::string& prefix, const std::string& name) {
  std::string id = prefix + name;
  if (!prefix.empty()) {
    id[prefix.size()] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
  }
  return id;
}

const std::vector<NamedAction> actions{
    {"type", "line", [](headless::Session& s, const std::string& id) { s.type(id, "x"); }},
    {"tick", "box", [](headless::Session& s, const std::string& id) { s.tick(id, true); }},
    {"click", "button", [](headless::Session& s, const std::string& id) { s.click(id); }},
    {"chooseByName", "list", [](headless::Session& s, const std::string& id) { s.choose(id, "second"); }},
    {"chooseByIndex", "list", [](headless::Session& s, const std::string& id) { s.choose(id, 1); }}};

class PersonsAction : public Person, public WithRow<NamedAction> {
 protected:
  std::string act(const std::string& prefix = "") {
    return refusalOf([&] { row().act(session(), inputId(prefix, row().input)); });
  }
  Ptr<GroupCommandInput> group(const std::string& id) const { return input<GroupCommandInput>(id); }
};

TABLE(WithInputs, PersonsAction, byName, actions);

TABLE_TEST(PersonsAction, IsReportedOnce) {
  EXPECT_EQ(act(), "");
  EXPECT_EQ(log, Log({"inputChanged(" + row().input + ")"}));
}

TABLE_TEST(PersonsAction, IsRefusedWhereTheInputIsGreyedOutOrHidden) {
  input<CommandInput>(row().input)->isEnabled(false);
  EXPECT_THAT(act(), testing::HasSubstr("it is greyed out"));
  input<CommandInput>(row().input)->isVisible(false);
  EXPECT_THAT(act(), testing::HasSubstr("it is hidden"));
  EXPECT_EQ(log, Log({}));
}

TABLE_TEST(PersonsAction, IsRefusedInAGroupThatIsOutOfReach) {
  const std::vector<std::pair<std::string, std::string>> refusals{{"inner", "the group inner is closed"},
                                                                  {"outer", "the group outer is closed"}};
  for (const auto& [id, reason] : refusals) {
    group(id)->isExpanded(false);
    EXPECT_THAT(act("deep"), testing::HasSubstr(reason));
    group(id)->isExpanded(true);
    group(id)->isEnabledCheckBoxDisplayed(true);
    group(id)->isEnabledCheckBoxChecked(false);
    EXPECT_THAT(act("deep"), testing::HasSubstr("the box of the group " + id + " is not ticked"));
    group(id)->isEnabledCheckBoxChecked(true);
    group(id)->isEnabled(false);
    EXPECT_THAT(act("deep"), testing::HasSubstr("the group " + id + " is greyed out"));
    group(id)->isEnabled(true);
    group(id)->isVisible(false);
    EXPECT_THAT(act("deep"), testing::HasSubstr("the group " + id + " is hidden"));
    group(id)->isVisible(true);
  }
  EXPECT_EQ(log, Log({}));
  EXPECT_EQ(act("deep"), "");
}

TABLE_TEST(PersonsAction, IsRefusedForAnotherKindOfInputAndForNone) {
  EXPECT_NE(refusalOf([&] { row().act(session(), "selection"); }), "");
  EXPECT_EQ(refusalOf([&] { row().act(session(), "nothing"); }), "the dialog has no input nothing");
  session().pressCancel();
  EXPECT_EQ(refusalOf([&] { row().act(session(), "line"); }), "no dialog is open");
}

TEST_F(Person, TypesKeyByKey) {
  std::vector<std::string> seen;
  dialog->inputChanged.then = [&](const auto&) { seen.push_back(input<StringValueCommandInput>("line")->value()); };
  session().type("line", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(seen, Log({"a", "a\xC3\xA4", "a\xC3\xA4\xE2\x82\xAC", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"}));
}

TEST_F(Person, GoesOnTypingOrStartsAnew) {
  std::vector<std::string> seen;
  dialog->inputChanged.then = [&](const auto&) { seen.push_back(input<StringValueCommandInput>("line")->value()); };
  session().type("line", "ab");
  session().type("line", "ab");
  session().type("line", "abc");
  session().type("line", "b");
  session().type("line", "");
  EXPECT_EQ(seen, Log({"a", "ab", "abc", "", "b", ""}));
}

TEST_F(Person, GoesOnWhereAReactionChangedTheText) {
  dialog->inputChanged.then = [&](const auto&) {
    const auto line = input<StringValueCommandInput>("line");
    if (line->value() == "ab") {
      line->value("");
    }
  };
  session().type("line", "abc");
  EXPECT_EQ(valueOf("line"), "c");
}

TEST_F(Person, StopsTypingWhenAReactionTakesTheInputAway) {
  dialog->inputChanged.then = [&](const auto&) { input<CommandInput>("line")->isEnabled(false); };
  EXPECT_THAT(refusalOf([this] { session().type("line", "abc"); }), testing::HasSubstr("greyed out"));
  EXPECT_EQ(valueOf("line"), "a");
}

TEST_F(Person, StopsTypingWhenAReactionEndsTheDialog) {
  dialog->inputChanged.then = [&](const auto&) { dialog->command->doExecute(true); };
  session().type("line", "abc");
  EXPECT_EQ(std::count(log.begin(), log.end(), "inputChanged(line)"), 1);
}

TEST_F(Person, TypesIntoTextBoxesThatAreNotReadOnly) {
  session().type("note", "<b>");
  EXPECT_EQ(input<TextBoxCommandInput>("note")->text(), "<b>");
  input<TextBoxCommandInput>("note")->isReadOnly(true);
  EXPECT_THAT(refusalOf([this] { session().type("note", "x"); }), testing::HasSubstr("it is read-only"));
}

TEST_F(Person, ChoosesOneItemAtATime) {
  session().choose("list", "second");
  session().choose("list", "second");
  EXPECT_EQ(log, Log({"inputChanged(list)"})) << "what is chosen already raises nothing";
  EXPECT_EQ(session().input("list").selectedName(), "second");
  session().choose("row", "right");
  EXPECT_EQ(session().input("row").selectedItem, 1);
}

TEST_F(Person, ChoosesNoItemThatIsNotThere) {
  EXPECT_EQ(refusalOf([this] { session().choose("list", "third"); }), "list has no item \"third\"");
  EXPECT_EQ(refusalOf([this] { session().choose("row", 2); }), "row has no item number 2");
}

TEST_F(Person, TicksBoxesAndClicksButtonsAndNotTheOtherWay) {
  session().tick("box", true);
  session().tick("box", true);
  EXPECT_EQ(takeLog(), Log({"inputChanged(box)"}));
  EXPECT_THAT(refusalOf([this] { session().click("box"); }), testing::HasSubstr("is a check box"));
  EXPECT_THAT(refusalOf([this] { session().tick("button", true); }), testing::HasSubstr("is a button"));
}

TEST_F(Person, OpensAndClosesGroupsInReach) {
  session().expand("outer", false);
  session().expand("outer", false);
  EXPECT_EQ(log, Log({"inputChanged(outer)"}));
  EXPECT_THAT(refusalOf([this] { session().expand("inner", false); }), testing::HasSubstr("the group outer is closed"));
  session().expand("outer", true);
  input<CommandInput>("outer")->isVisible(false);
  EXPECT_THAT(refusalOf([this] { session().expand("outer", false); }), testing::HasSubstr("it is hidden"));
  EXPECT_EQ(refusalOf([this] { session().expand("line", true); }), "line is no group");
}

TEST_F(Person, TicksOnlyHeaderBoxesThatAreThere) {
  EXPECT_THAT(refusalOf([this] { session().tick("outer", false); }), testing::HasSubstr("has no check box"));
  input<GroupCommandInput>("outer")->isEnabledCheckBoxDisplayed(true);
  session().tick("outer", false);
  EXPECT_FALSE(session().input("outer").isTicked);
  input<CommandInput>("outer")->isEnabled(false);
  EXPECT_THAT(refusalOf([this] { session().tick("outer", true); }), testing::HasSubstr("greyed out"));
}

TEST_F(Person, PicksAndLetsGo) {
  session().pick("Base");
  session().pick("Base/Face2");
  EXPECT_EQ(session().picked(), Log({"Base", "Base/Face2"}));
  session().pick("Base");
  EXPECT_EQ(session().picked(), Log({"Base/Face2"}));
  session().clearPicks();
  session().clearPicks();
  EXPECT_EQ(session().picked(), Log({}));
  EXPECT_EQ(log, Log(4, "inputChanged(selection)"));
}

TEST_F(Person, PicksNothingThatIsRefused) {
  EXPECT_THAT(refusalOfPick("Frame:1"), testing::HasSubstr("the selection filter does not let it through"));
  session().pick("Base");
  session().pick("Base/Face1");
  EXPECT_THAT(refusalOfPick("Base/Face2"), testing::HasSubstr("no more than 2 may be selected"));
  EXPECT_EQ(refusalOfPick("Nothing"), "there is nothing called Nothing in the design");
  input<CommandInput>("selection")->isVisible(false);
  EXPECT_EQ(refusalOfPick("Base"), "the dialog asks for no selection");
}

TEST_F(Person, PicksABodyThatIsCalledLikeAFace) {
  session().pressCancel();
  auto design = machine();
  componentNamed(*design, "Bolt").addBody("Face plate").addFace();
  session().openDesign(std::move(design));
  session().press("Dialog");
  session().pick("Bolt:2/Face plate");
  session().pick("Bolt:2/Face plate/Face1");
  EXPECT_EQ(session().picked(), Log({"Bolt:2/Face plate", "Bolt:2/Face plate/Face1"}));
}

TEST_F(Person, PicksSeveralAtOnceWithOneEvent) {
  const auto faces = session().pickables(PickKind::Face);
  session().pick("Base/Face1");
  log.clear();
  session().pickAll({faces[0], faces[1]});
  EXPECT_EQ(session().picked(), Log({"Base/Face1", "Base/Face2"}));
  EXPECT_EQ(log, Log({"inputChanged(selection)"}));
}

TEST_F(Person, PressesOkWhenItIsThereAndTheInputsAreValid) {
  EXPECT_EQ(refusalOf([this] { session().pressOk(); }), "OK is greyed out: something is still to be selected");
  dialog->command->isOKButtonVisible(false);
  EXPECT_EQ(refusalOf([this] { session().pressOk(); }), "the dialog has no OK button");
  dialog->command->isOKButtonVisible(true);
  session().pick("Base");
  session().pressOk();
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(Person, PressesNothingInADialogThatIsNotThere) {
  session().pressCancel();
  for (const auto& action : std::vector<std::function<void()>>{
           [this] { session().pressOk(); }, [this] { session().pressCancel(); }, [this] { session().dialog(); },
           [this] { session().input("line"); }, [this] { session().picked(); }, [this] { session().pickAll({}); }}) {
    EXPECT_EQ(refusalOf(action), "no dialog is open");
  }
  session().pressEscape();
}

TEST_F(Person, PressesOnlyButtonsThatAreThere) {
  EXPECT_EQ(refusalOf([this] { session().press("Other"); }), "there is no button Other in the toolbar");
}

TEST_F(Person, UndoesAndRedoesStepByStep) {
  EXPECT_EQ(refusalOf([this] { session().undo(); }), "there is nothing to undo");
  EXPECT_EQ(refusalOf([this] { session().redo(); }), "there is nothing to redo");
  const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();
  const auto body = design->rootComponent()->bRepBodies()->item(0);
  dialog->execute.then = [&](const auto&) { body->appearance(body->material()->appearance()); };
  dialog->command->doExecute(false);
  EXPECT_EQ(body->appearanceSourceType(), BodyAppearanceSource);
  session().undo();
  EXPECT_EQ(body->appearanceSourceType(), MaterialAppearanceSource);
  session().redo();
  EXPECT_EQ(body->appearanceSourceType(), BodyAppearanceSource);
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(Person, UndoesAndRedoesNothingWhileTheCommandHasPendingChanges) {
  const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();
  const auto body = design->rootComponent()->bRepBodies()->item(0);
  const auto paint = [&](const auto&) { body->appearance(body->material()->appearance()); };
  dialog->execute.then = paint;
  dialog->command->doExecute(false);
  session().undo();
  dialog->inputChanged.then = paint;
  session().type("line", "x");
  EXPECT_THAT(refusalOf([this] { session().undo(); }), testing::HasSubstr("close it first"));
  EXPECT_THAT(refusalOf([this] { session().redo(); }), testing::HasSubstr("close it first"));
  EXPECT_EQ(body->appearanceSourceType(), BodyAppearanceSource);
}

TEST_F(Person, NeedsADocumentForMuch) {
  const auto pickable = session().pickables(PickKind::Body).front();
  session().closeDocument();
  for (const auto& action : std::vector<std::function<void()>>{
           [this] { session().undo(); }, [this] { session().redo(); }, [this] { session().pick("Base"); },
           [&] { session().pick(pickable); }, [this] { session().design(); },
           [this] { session().pickables(PickKind::Face); }}) {
    EXPECT_EQ(refusalOf(action), "no document is open");
  }
}

TEST_F(Person, IsNamedInTheTrace) {
  host().gate().startTrace();
  session().tick("box", true);
  EXPECT_THAT(host().gate().traceText(), testing::StartsWith("# the user ticks box\n# event inputChanged(box)\n"));
}

TEST_F(Person, SeesTheDialogAsItStands) {
  session().pick("Base");
  const headless::DialogView view = session().dialog();
  EXPECT_EQ(view.commandId + view.title, "DialogDialog name");
  EXPECT_EQ(view.inputs.size(), 8U);
  const headless::InputView* list = view.find("deepList");
  ASSERT_TRUE(list);
  EXPECT_EQ(list->kind, headless::InputKind::DropDown);
  EXPECT_EQ(list->style, 1);
  EXPECT_EQ(list->selectedName(), "first");
  EXPECT_EQ(view.find("button")->kind, headless::InputKind::Button);
  EXPECT_EQ(view.find("box")->kind, headless::InputKind::CheckBox);
  EXPECT_EQ(view.find("row")->items.at(0).icon, "icon");
  EXPECT_EQ(view.find("outer")->children.size(), 1U);
  EXPECT_EQ(view.find("selection")->selection.size(), 1U);
  EXPECT_EQ(view.find("nothing"), nullptr);
}

TEST(InputView, WithoutASelectedItemHasNoSelectedName) {
  headless::InputView view;
  view.items = {{"a", "", false}};
  EXPECT_EQ(view.selectedName(), "");
}

// What can be pointed at, by path.
struct PathCase {
  std::string name;
  PickKind kind;
  Log paths;
};

class PickablePaths : public HostTest, public WithRow<PathCase> {};

TABLE(OfAKind, PickablePaths, byName,
      {{"Components",
        PickKind::Component,
        {"Frame:1", "Frame:1+Plate:1", "Frame:1+Bolt:1", "Frame:2", "Frame:2+Plate:1", "Frame:2+Bolt:1", "Bolt:2"}},
       {"Bodies",
        PickKind::Body,
        {"Base", "Frame:1+Plate:1/Plate1", "Frame:1+Bolt:1/Shank", "Frame:1+Bolt:1/Head", "Frame:2+Plate:1/Plate1",
         "Frame:2+Bolt:1/Shank", "Frame:2+Bolt:1/Head", "Bolt:2/Shank", "Bolt:2/Head"}}});

TABLE_TEST(PickablePaths, NameEverythingOnce) {
  session().openDesign(machine());
  Log paths;
  for (const headless::Pickable& each : session().pickables(row().kind)) {
    paths.push_back(each.path);
    EXPECT_EQ(headless::pathOf(headless::handleOf(each, *host().document()->entities)), each.path);
  }
  EXPECT_EQ(paths, row().paths);
}

TEST_F(Person, PointsAtFacesByBodyAndNumber) {
  const auto faces = session().pickables(PickKind::Face);
  ASSERT_EQ(faces.size(), 17U);
  EXPECT_EQ(faces.front().path, "Base/Face1");
  EXPECT_EQ(faces.back().path, "Bolt:2/Head/Face1");
  EXPECT_EQ(headless::pathOf(headless::handleOf(faces.back(), *host().document()->entities)), faces.back().path);
}

}  // namespace
}  // namespace tests
