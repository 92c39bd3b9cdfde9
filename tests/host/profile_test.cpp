#include "host/runtime/profile.h"

#include <stdexcept>

#include "host/model/materials.h"
#include "tests/host/application_events.h"
#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;
using adsk::fusion::BRepBody;
using adsk::fusion::Design;
using headless::Echo;
using headless::EditClearsSelection;
using headless::Profile;

TEST(ProfilePresets, AreFoundByName) {
  EXPECT_EQ(headless::profileNames(), Log({"lenient", "documented", "hostile"}));
  for (const std::string& name : headless::profileNames()) {
    EXPECT_EQ(headless::profileNamed(name).name, name);
  }
  EXPECT_EQ(Profile().name, "documented");
}

TEST(ProfilePresets, AreListedWhenANameIsWrong) {
  try {
    headless::profileNamed("Hostile");
    FAIL() << "nothing was raised";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "no host profile is named \"Hostile\"; there are lenient, documented and hostile");
  }
}

TEST(ProfilePresets, LeaveAnAddInItsWork) {
  for (const std::string& name : headless::profileNames()) {
    const Profile profile = headless::profileNamed(name);
    EXPECT_EQ(profile.secondLoad, headless::SecondLoad::SameLibrary) << name;
    EXPECT_NE(profile.libraryAppearance, headless::LibraryAppearance::Refused) << name;
    EXPECT_NE(profile.executeFromTerminated, headless::ExecuteFromTerminated::Refused) << name;
    EXPECT_EQ(profile.deletedPanelControls, headless::DeletedPanelControls::EmptyCollection) << name;
    EXPECT_FALSE(profile.ownAppearanceIsOverride || profile.executeNeedsValidInputs) << name;
  }
}

TEST(ProfilePresets, GoFromEasyToHard) {
  EXPECT_EQ(headless::lenientProfile().editClearsSelection, EditClearsSelection::Never);
  EXPECT_EQ(headless::documentedProfile().editClearsSelection, EditClearsSelection::AfterEvent);
  EXPECT_EQ(headless::hostileProfile().editClearsSelection, EditClearsSelection::AtOnce);
  EXPECT_EQ(headless::documentedProfile().echo, Echo::None);
  EXPECT_EQ(headless::hostileProfile().echo, Echo::AtOnce);
}

// Each switch, seen by a client whose dialog has a line, a button, a selection input and a group with a line.
class Switch : public HostDialogTest {
 protected:
  void open() {
    HostDialogTest::open([](const Inputs& inputs) {
      inputs->addStringValueInput("line", "");
      inputs->addBoolValueInput("button", "", false);
      inputs->addSelectionInput("selection", "", "")->setSelectionLimits(0);
      inputs->addGroupCommandInput("group", "")->children()->addStringValueInput("inGroup", "");
    });
  }
  void openWith(void (*change)(Profile&)) {
    start(profileWith(change));
    open();
  }
  /// Reacts once to a change of the line, by `reaction`, and then writes "reacted".
  void reactTo(const std::string& id, std::function<void()> reaction) {
    dialog->inputChanged.then = [this, id, reaction](const Ptr<InputChangedEventArgs>& arguments) {
      if (arguments->input()->id() == id) {
        reaction();
        log.emplace_back("reacted");
      }
    };
  }
  void setLine(const std::string& text) const { input<StringValueCommandInput>("line")->value(text); }
  Ptr<SelectionCommandInput> selection() const { return input<SelectionCommandInput>("selection"); }
  static Ptr<BRepBody> base() {
    return Ptr<Design>(Application::get()->activeProduct())->rootComponent()->bRepBodies()->item(0);
  }
  /// Gives the body "Base" a look of its own, as an edit of the model.
  void paintBase() { base()->appearance(base()->material()->appearance()); }
};

TEST_F(Switch, NoEchoReportsNothing) {
  open();
  reactTo("button", [this] { setLine("x"); });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "reacted"}));
}

TEST_F(Switch, EchoAfterTheEventReportsTheClientsOwnChangesThen) {
  openWith([](Profile& profile) { profile.echo = Echo::AfterEvent; });
  reactTo("button", [this] { setLine("x"); });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "reacted", "inputChanged(line)"}));
}

TEST_F(Switch, EchoAtOnceReportsThemInsideTheEvent) {
  openWith([](Profile& profile) { profile.echo = Echo::AtOnce; });
  reactTo("button", [this] { setLine("x"); });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "inputChanged(line)", "reacted"}));
}

TEST_F(Switch, EchoReportsNoChangeToTheSameValue) {
  openWith([](Profile& profile) { profile.echo = Echo::AtOnce; });
  setLine("");
  input<GroupCommandInput>("group")->isExpanded(true);
  EXPECT_EQ(log, Log({}));
  setLine("x");
  EXPECT_EQ(log, Log({"inputChanged(line)"}));
}

TEST_F(Switch, UnchangedValuesReportedEchoesAChangeToTheSameValue) {
  openWith([](Profile& profile) {
    profile.echo = Echo::AtOnce;
    profile.unchangedValuesReported = true;
  });
  setLine("");
  input<GroupCommandInput>("group")->isExpanded(true);
  input<GroupCommandInput>("group")->isEnabledCheckBoxChecked(true);
  input<BoolValueCommandInput>("button")->value(false);
  EXPECT_EQ(log, Log({"inputChanged(line)", "inputChanged(group)", "inputChanged(group)", "inputChanged(button)"}));
}

TEST_F(Switch, UnchangedValuesReportedEchoesTextsAndListItemsToo) {
  start(profileWith([](Profile& profile) {
    profile.echo = Echo::AtOnce;
    profile.unchangedValuesReported = true;
  }));
  HostDialogTest::open([](const Inputs& inputs) {
    inputs->addTextBoxCommandInput("text", "", "a", 1, true);
    const auto list = inputs->addDropDownCommandInput("list", "", TextListDropDownStyle)->listItems();
    list->add("first", true);
    list->add("second", false);
  });
  input<TextBoxCommandInput>("text")->formattedText("a");
  input<DropDownCommandInput>("list")->listItems()->item(0)->isSelected(true);
  EXPECT_EQ(log, Log({"inputChanged(text)", "inputChanged(list)"}));
  EXPECT_EQ(input<DropDownCommandInput>("list")->selectedItem()->name(), "first");
}

TEST_F(Switch, UnchangedValuesReportedNeedsAnEcho) {
  openWith([](Profile& profile) { profile.unchangedValuesReported = true; });
  reactTo("button", [this] {
    setLine("");
    setLine("x");
  });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "reacted"}));
}

TEST_F(Switch, EchoThatNeverRestsIsStopped) {
  for (const Echo echo : {Echo::AfterEvent, Echo::AtOnce}) {
    Profile profile;
    profile.echo = echo;
    start(profile);
    open();
    reactTo("line", [this] {
      setLine(input<StringValueCommandInput>("line")->value() + "x");
      setLine(input<StringValueCommandInput>("line")->value() + "y");
    });
    session().type("line", "a");
    const Log errors = takeErrors();
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_THAT(errors.front(), testing::HasSubstr("do not come to rest"));
    dialog->inputChanged.then = nullptr;
    session().type("line", "b");
  }
}

TEST_F(Switch, ClearSelectionReportedRaisesAnEvent) {
  for (const bool isReported : {false, true}) {
    Profile profile;
    profile.clearSelectionReported = isReported;
    start(profile);
    open();
    session().pick("Base");
    log.clear();
    reactTo("button", [this] { selection()->clearSelection(); });
    session().click("button");
    EXPECT_EQ(log.back(), isReported ? "inputChanged(selection)" : "reacted");
  }
}

TEST_F(Switch, ExecuteClearsSelectionDoesSoAfterTheEvent) {
  openWith([](Profile& profile) { profile.executeClearsSelection = true; });
  session().pick("Base");
  log.clear();
  reactTo("button", [this] {
    dialog->command->doExecute(false);
    EXPECT_EQ(selection()->selectionCount(), 1U);
  });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "execute", "reacted", "inputChanged(selection)"}));
  EXPECT_EQ(selection()->selectionCount(), 0U);
}

TEST_F(Switch, ExecuteKeepsTheSelectionOtherwise) {
  open();
  session().pick("Base");
  dialog->command->doExecute(false);
  EXPECT_EQ(selection()->selectionCount(), 1U);
}

TEST_F(Switch, ClickRaisesTwoEventsForPressAndRelease) {
  openWith([](Profile& profile) { profile.clickRaisesTwoEvents = true; });
  std::vector<bool> values;
  dialog->inputChanged.then = [&](const auto&) { values.push_back(input<BoolValueCommandInput>("button")->value()); };
  session().click("button");
  EXPECT_EQ(values, std::vector<bool>({true, false}));
}

TEST_F(Switch, ClickRaisesOneEventOtherwise) {
  open();
  std::vector<bool> values;
  dialog->inputChanged.then = [&](const auto&) { values.push_back(input<BoolValueCommandInput>("button")->value()); };
  session().click("button");
  EXPECT_EQ(values, std::vector<bool>({true}));
  EXPECT_FALSE(input<BoolValueCommandInput>("button")->value());
}

TEST_F(Switch, EventGivesTheInputsOfTheGroupOrOfTheCommand) {
  for (const bool givesGroup : {false, true}) {
    Profile profile;
    profile.eventGivesGroupInputs = givesGroup;
    start(profile);
    open();
    std::size_t count = 0;
    Ptr<Command> command;
    dialog->inputChanged.then = [&](const Ptr<InputChangedEventArgs>& arguments) {
      count = arguments->inputs()->count();
      command = arguments->inputs()->command();
    };
    session().type("inGroup", "x");
    EXPECT_EQ(count, givesGroup ? 1U : 4U);
    EXPECT_EQ(command, dialog->command);
  }
}

TEST_F(Switch, HiddenTickIgnoredUntilItIsDisplayed) {
  openWith([](Profile& profile) { profile.hiddenTickIgnored = true; });
  const auto group = input<GroupCommandInput>("group");
  EXPECT_FALSE(group->isEnabledCheckBoxChecked(false));
  EXPECT_TRUE(group->isEnabledCheckBoxChecked());
  group->isEnabledCheckBoxDisplayed(true);
  EXPECT_TRUE(group->isEnabledCheckBoxChecked(false));
  EXPECT_FALSE(group->isEnabledCheckBoxChecked());
}

TEST_F(Switch, TickExpandsGroupRaisesAnEventForEach) {
  openWith([](Profile& profile) { profile.tickExpandsGroup = true; });
  input<GroupCommandInput>("group")->isEnabledCheckBoxDisplayed(true);
  session().tick("group", false);
  EXPECT_EQ(log, Log({"inputChanged(group)", "inputChanged(group)"}));
  EXPECT_FALSE(session().input("group").isExpanded);
}

TEST_F(Switch, TickLeavesTheGroupAsItIsOtherwise) {
  open();
  input<GroupCommandInput>("group")->isEnabledCheckBoxDisplayed(true);
  session().tick("group", false);
  EXPECT_EQ(log, Log({"inputChanged(group)"}));
  EXPECT_TRUE(session().input("group").isExpanded);
}

TEST_F(Switch, PreselectionUsedFillsTheDialogWithWhatItsFilterLetsThrough) {
  start(profileWith([](Profile& profile) { profile.preselectionUsed = true; }));
  session().pick("Base");
  session().pick("Frame:1");
  dialog->build = [](const Ptr<Command>& command) {
    const auto input = command->commandInputs()->addSelectionInput("selection", "", "");
    input->setSelectionLimits(0);
    input->addSelectionFilter("Occurrences");
  };
  session().press("Dialog");
  EXPECT_EQ(session().picked(), Log({"Frame:1"}));
  EXPECT_EQ(log, Log({"created", "activate", "inputChanged(selection)"}));
}

TEST_F(Switch, PreselectionIsNotUsedOtherwise) {
  session().pick("Base");
  open();
  EXPECT_EQ(session().picked(), Log({}));
}

TEST_F(Switch, EditClearsSelectionNever) {
  openWith([](Profile& profile) { profile.editClearsSelection = EditClearsSelection::Never; });
  session().pick("Base");
  reactTo("button", [this] { paintBase(); });
  session().click("button");
  EXPECT_EQ(session().picked(), Log({"Base"}));
}

TEST_F(Switch, EditClearsSelectionAfterTheEventAndReportsItOnce) {
  openWith([](Profile& profile) { profile.editClearsSelection = EditClearsSelection::AfterEvent; });
  session().pick("Base");
  log.clear();
  reactTo("button", [this] {
    paintBase();
    base()->appearance(nullptr);
    EXPECT_EQ(selection()->selectionCount(), 1U);
  });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "reacted", "inputChanged(selection)"}));
  EXPECT_EQ(session().picked(), Log({}));
}

TEST_F(Switch, EditClearsSelectionOnceHoweverManyEditsThereAre) {
  open();
  session().pick("Base");
  log.clear();
  reactTo("button", [this] {
    for (int i = 0; i < 1000; ++i) {
      paintBase();
      base()->appearance(nullptr);
    }
  });
  session().click("button");
  EXPECT_EQ(log.back(), "inputChanged(selection)");
  EXPECT_EQ(log.size(), 3U);
}

TEST_F(Switch, EditClearsSelectionAtOnceAndReportsItInsideTheEvent) {
  openWith([](Profile& profile) { profile.editClearsSelection = EditClearsSelection::AtOnce; });
  session().pick("Base");
  log.clear();
  reactTo("button", [this] {
    const auto kept = selection()->selection(0);
    paintBase();
    EXPECT_FALSE(kept->isValid());
    EXPECT_EQ(selection()->selectionCount(), 0U);
  });
  session().click("button");
  EXPECT_EQ(log, Log({"inputChanged(button)", "inputChanged(selection)", "reacted"}));
}

TEST_F(Switch, EditOutsideOfInputChangedKeepsTheSelection) {
  openWith([](Profile& profile) { profile.editClearsSelection = EditClearsSelection::AtOnce; });
  session().pick("Base");
  dialog->execute.then = [this](const auto&) { paintBase(); };
  dialog->command->doExecute(false);
  EXPECT_EQ(session().picked(), Log({"Base"}));
}

TEST_F(Switch, OwnAppearanceIsOverrideReportsFour) {
  for (const bool isOverride : {false, true}) {
    Profile profile;
    profile.ownAppearanceIsOverride = isOverride;
    start(profile);
    paintBase();
    EXPECT_EQ(base()->appearanceSourceType(), isOverride ? OverrideAppearanceSource : BodyAppearanceSource);
  }
}

TEST_F(Switch, FreshWrappersGiveAnotherObjectEachTime) {
  EXPECT_EQ(base(), base());
  start(profileWith([](Profile& profile) { profile.freshWrappers = true; }));
  EXPECT_NE(base(), base());
}

TEST_F(Switch, LibraryAppearanceIsAcceptedCopiedOrRefused) {
  using headless::LibraryAppearance;
  for (const auto how : {LibraryAppearance::Accepted, LibraryAppearance::Copied, LibraryAppearance::Refused}) {
    Profile profile;
    profile.libraryAppearance = how;
    start(profile);
    headless::model::Library library;
    library.name = "Colours";
    library.appearances.push_back(headless::model::makeColourAppearance({1, 2, 3, 255}));
    const auto colour = host().materials().add(library)->appearances()->item(0);
    EXPECT_EQ(base()->appearance(colour), how != LibraryAppearance::Refused);
    EXPECT_EQ(base()->appearance() == colour, how == LibraryAppearance::Accepted);
    EXPECT_EQ(base()->appearance()->name() == colour->name(), how != LibraryAppearance::Refused);
  }
}

TEST_F(Switch, AttachedHandlersAreListedByTheUserInterface) {
  ApplicationEvents application(ui(), log);
  CreatedRecorder second(log, "second");
  dialog->definition->commandCreated()->add(&second);
  EXPECT_THAT(host().ui().attachedHandlers(),
              testing::ElementsAre("1 handler is still attached to commandStarting",
                                   "1 handler is still attached to commandCreated",
                                   "1 handler is still attached to commandTerminated",
                                   "2 handlers are still attached to commandCreated of Dialog"));
}

}  // namespace
}  // namespace tests
