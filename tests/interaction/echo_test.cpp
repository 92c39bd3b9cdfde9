// Hosts that report the add-in's own changes back as if the user had made them: what the user did is not undone, and
// events come to rest. That nothing is raised and that events come to rest is checked by the fixture.
#include <functional>

#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::Echo;
using headless::Profile;
using headless::Session;
using ::testing::IsEmpty;

/// Something that a user does in the dialog while the painted body "Base" is picked.
struct EchoedUse {
  const char* name;
  void (*run)(Session&);
  /// An echo that arrives later cannot be told from the user, so that this action ends otherwise.
  bool isUndoneByLateEcho = false;
};

const std::vector<EchoedUse> echoedUses = {
    {"ChooseFilter", [](Session& s) { s.choose("idFilterSelect", "Face"); }},
    {"ChooseAppearanceLibrary", [](Session& s) { s.choose("idLibAssets", "More looks"); }},
    {"ChooseMaterialLibrary", [](Session& s) { s.choose("idLibMaterials", "More materials"); }},
    {"TypeAppearanceFilter", [](Session& s) { s.type("idFilterAppearance", "300"); }},
    {"TypeMaterialFilter", [](Session& s) { s.type("idFilterMaterial", "steel"); }},
    {"TypeFilterThatFindsNothing", [](Session& s) { s.type("idFilterMaterial", "no such material"); }},
    {"CloseAppearanceGroup",
     [](Session& s) {
       s.type("idFilterAppearance", "300");
       s.expand("idGroupAppearance", false);
     }},
    {"CloseMaterialGroup",
     [](Session& s) {
       s.type("idFilterMaterial", "steel");
       s.expand("idGroupMaterial", false);
     }},
    {"CloseAndOpenAppearanceGroup",
     [](Session& s) {
       s.tick("idKeepAppearance", true);
       s.expand("idGroupAppearance", false);
       s.expand("idGroupAppearance", true);
     }},
    {"CloseAndOpenMaterialGroup",
     [](Session& s) {
       s.expand("idGroupMaterial", false);
       s.expand("idGroupMaterial", true);
     }},
    {"CloseBothGroups",
     [](Session& s) {
       s.expand("idGroupAppearance", false);
       s.expand("idGroupMaterial", false);
     }},
    {"TickCheckBox", [](Session& s) { s.tick("idKeepAppearance", true); }, true},
    {"TickAndUntickCheckBox",
     [](Session& s) {
       s.tick("idKeepAppearance", true);
       s.tick("idKeepAppearance", false);
     },
     true},
    {"UntickHeaderBoxes",
     [](Session& s) {
       s.tick("idGroupAppearance", false);
       s.tick("idGroupMaterial", false);
     }},
    {"LetGo", [](Session& s) { s.clearPicks(); }},
    {"Apply", [](Session& s) { s.click("idBtnApply"); }},
    {"Remove", [](Session& s) { s.click("idRemoveAssignAppearance"); }},
};

class EchoedAction : public AddInTest, public WithRow<EchoedUse> {
 protected:
  void SetUp() override {
    addAppearanceLibrary("More.adsklib", "More looks", {"Gold", "Silver"});
    addMaterialLibrary("More.adsklib", "More materials", {{"Brass"}});
  }

  /// What the user sees after the action in a host with such echoes. Each time the user comes to the add-in anew.
  std::string screenAfterAction(Echo echo, bool areUnchangedValuesReported = false) {
    folder.remove(settingsFile());
    Profile profile;
    profile.echo = echo;
    profile.unchangedValuesReported = areUnchangedValuesReported;
    start(profile);
    body("Machine", "Base").appearance = look("Old paint");
    openDialog();
    session().choose("idLibMaterials", "Metals");
    session().pick("Base");
    row().run(session());
    const std::string seen = screenText(session().dialog()) + "own look: " + ownLook(body("Machine", "Base")) +
                             ", material: " + body("Machine", "Base").material->name +
                             ", steps: " + std::to_string(history().undoSteps().size());
    EXPECT_THAT(host().gate().misuses(), IsEmpty());
    finish();
    return seen;
  }
};

TABLE(Actions, EchoedAction, byName, echoedUses);

TABLE_TEST(EchoedAction, EndsAsWithoutEchoWhenEchoesComeAtOnce) {
  const std::string withoutEcho = screenAfterAction(Echo::None);
  EXPECT_EQ(screenAfterAction(Echo::AtOnce), withoutEcho);
}

TABLE_TEST(EchoedAction, ComesToRestWhenEchoesComeLater) {
  const std::string withoutEcho = screenAfterAction(Echo::None);
  const std::string withLateEcho = screenAfterAction(Echo::AfterEvent);
  EXPECT_EQ(withLateEcho == withoutEcho, !row().isUndoneByLateEcho);
}

TABLE_TEST(EchoedAction, EndsAlikeWhenEvenUnchangedValuesAreReportedAtOnce) {
  const std::string withoutEcho = screenAfterAction(Echo::None);
  EXPECT_EQ(screenAfterAction(Echo::AtOnce, true), withoutEcho);
}

TABLE_TEST(EchoedAction, ComesToRestAlikeWhenEvenUnchangedValuesAreReportedLater) {
  const std::string withLateEcho = screenAfterAction(Echo::AfterEvent);
  EXPECT_EQ(screenAfterAction(Echo::AfterEvent, true), withLateEcho);
}

using EchoAtOnce = AddInTest;

Profile withEchoAtOnce() {
  Profile profile;
  profile.echo = Echo::AtOnce;
  return profile;
}

TEST_F(EchoAtOnce, DoesNotTakeTheUsersTickBack) {
  startDialog(withEchoAtOnce());
  session().tick("idKeepAppearance", true);
  EXPECT_TRUE(session().input("idKeepAppearance").isTicked);
  EXPECT_FALSE(session().input("idGroupAppearance").isTicked);
}

TEST_F(EchoAtOnce, IsIgnoredAfterOneLookAtItsInput) {
  startDialog(withEchoAtOnce());
  const Lines trace = traceOf(session(), [&] { session().tick("idKeepAppearance", true); });
  // The box of the group is unticked: one echo, whose handling asks for the input and two ids and then ends.
  EXPECT_EQ(containing("event inputChanged(idGroupAppearance)", trace).size(), 1U);
  EXPECT_THAT(containing("GroupCommandInput(idGroupAppearance).isExpanded()", trace), IsEmpty());
}

// The group empties its filter and fills its list; the echo of the filter would have the list filled once more.
TEST_F(EchoAtOnce, OfAnEmptiedFilterDoesNotRefillTheMaterialListAgain) {
  startDialog(withEchoAtOnce());
  session().type("idFilterMaterial", "steel");
  const Lines trace = traceOf(session(), [&] { session().expand("idGroupMaterial", false); });
  EXPECT_EQ(containing("event inputChanged(idFilterMaterial)", trace).size(), 1U);
  EXPECT_EQ(containing("ListItems(idMaterialList).clear()", trace).size(), 1U);
}

/// Lets go of the selection in the middle of the add-in's reaction to the check box.
class ClearsSelectionDuringEcho : public adsk::core::InputChangedEventHandler {
 public:
  explicit ClearsSelectionDuringEcho(Session& user) : session(user) {}
  void notify(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs) override {
    if (eventArgs->input()->id() == "idGroupAppearance") {
      session.clearPicks();
    }
  }

 private:
  Session& session;
};

TEST_F(EchoAtOnce, DoesNotHideAChangeOfTheSelectionDuringAReaction) {
  start(withEchoAtOnce());
  body("Machine", "Base").appearance = look("Old paint");
  openDialog();
  session().pick("Base");
  ASSERT_NE(shown("idActAppearance"), "");
  ClearsSelectionDuringEcho handler(session());
  host().ui().runner().active()->inputChanged()->add(&handler);
  session().tick("idKeepAppearance", true);
  EXPECT_EQ(shown("idActAppearance"), "");
  EXPECT_EQ(shown("idActMaterial"), "");
  EXPECT_FALSE(isEnabled("idRemoveAssignAppearance"));
  EXPECT_TRUE(session().input("idKeepAppearance").isTicked);
}

// An error leaves the reaction through its guard, too.
TEST_F(EchoAtOnce, IsTakenForTheUserAgainAfterAReactionThatFailed) {
  startDialog(withEchoAtOnce());
  host().gate().setFault({1, headless::FaultAnswer::Exception, "ListItems.clear"});
  session().tick("idKeepAppearance", true);
  EXPECT_EQ(takeErrors().size(), 1U);
  session().type("idFilterMaterial", "steel");
  EXPECT_EQ(itemsOf("idMaterialList"), Lines{"Steel 37"});
}

/// A host that reports what the add-in does to its inputs while they are being made, and that the selection is empty.
class EchoOfConstruction : public EchoAtOnce {
 protected:
  static Profile profile() {
    Profile profile = withEchoAtOnce();
    profile.echoWhileBuilding = true;
    profile.clearSelectionReported = true;
    return profile;
  }
  Lines echoesOf(const std::function<void()>& action) {
    return containing("event inputChanged(", traceOf(session(), action));
  }
};

TEST_F(EchoOfConstruction, IsIgnored) {
  start(profile());
  const Lines echoes = echoesOf([&] { openDialog(); });
  EXPECT_THAT(echoes, ::testing::Contains(::testing::HasSubstr("(idSelection)")));
  EXPECT_THAT(echoes, ::testing::Contains(::testing::HasSubstr("(idGroupMaterial)")));
  EXPECT_EQ(shown("idActAppearance"), "");
  EXPECT_FALSE(isEnabled("idBtnApply"));
  EXPECT_TRUE(session().input("idGroupAppearance").isTicked);
}

TEST_F(EchoOfConstruction, LeavesASecondDialogAsItWasSaved) {
  start(profile());
  openDialog();
  session().choose("idAppearanceList", "RAL 3000 Flame red");
  session().choose("idFilterSelect", "Face");
  session().pick("Base/Face1");
  session().click("idBtnApply");
  session().pressCancel();
  EXPECT_FALSE(echoesOf([&] { openDialog(); }).empty());
  EXPECT_EQ(shown("idAppearanceList"), "RAL 3000 Flame red");
  EXPECT_EQ(shown("idFilterSelect"), "Face");
}

}  // namespace
}  // namespace tests
