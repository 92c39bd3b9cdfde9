// Hosts that behave otherwise than documented, one habit at a time and all together: nothing is raised, nothing that is
// gone is used, and the user gets the same result as in the documented host, as far as that host allows it.
#include <algorithm>
#include <functional>
#include <sstream>

#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace headless;
using adsk::core::DialogYes;
using ::testing::IsEmpty;

struct Surprise {
  const char* name;
  std::function<void(Profile&)> applyTo;
};

const std::vector<Surprise> surprises = {
    {"Documented", [](Profile&) {}},
    {"SelectionClearedAtOnce", [](Profile& p) { p.editClearsSelection = EditClearsSelection::AtOnce; }},
    {"SelectionNeverCleared", [](Profile& p) { p.editClearsSelection = EditClearsSelection::Never; }},
    {"EchoAtOnce", [](Profile& p) { p.echo = Echo::AtOnce; }},
    {"EchoAfterEvent", [](Profile& p) { p.echo = Echo::AfterEvent; }},
    {"EchoAfterEventEvenOfUnchangedValues",
     [](Profile& p) {
       p.echo = Echo::AfterEvent;
       p.unchangedValuesReported = true;
     }},
    {"FreshWrappers", [](Profile& p) { p.freshWrappers = true; }},
    {"AppearanceCopied", [](Profile& p) { p.libraryAppearance = LibraryAppearance::Copied; }},
    {"ClickTwice", [](Profile& p) { p.clickRaisesTwoEvents = true; }},
    {"GroupInputs", [](Profile& p) { p.eventGivesGroupInputs = true; }},
    {"ExecuteClearsSelection",
     [](Profile& p) {
       // Otherwise there is nothing left to clear.
       p.editClearsSelection = EditClearsSelection::Never;
       p.executeClearsSelection = true;
     }},
    {"ExecuteEndsCommand", [](Profile& p) { p.executeInDialog = ExecuteInDialog::EndsCommand; }},
    {"ClearSelectionReported", [](Profile& p) { p.clearSelectionReported = true; }},
    {"HiddenTickIgnored", [](Profile& p) { p.hiddenTickIgnored = true; }},
    {"TickExpandsGroup", [](Profile& p) { p.tickExpandsGroup = true; }},
    {"PreselectionUsed", [](Profile& p) { p.preselectionUsed = true; }},
    {"SelectionClearedAtOnceAndEcho",
     [](Profile& p) {
       p.editClearsSelection = EditClearsSelection::AtOnce;
       p.echo = Echo::AtOnce;
     }},
    {"AllTogether", [](Profile& p) { p = hostileProfile(); }},
    {"AllTogetherButTheCommandStays",
     [](Profile& p) {
       p = hostileProfile();
       p.executeInDialog = ExecuteInDialog::StaysOpen;
     }},
};

/// Everything is painted below "Bolt:2"; "Base" is plain.
class Surprising : public AddInTest {
 protected:
  void openPainted(const Profile& profile) {
    start(profile);
    occurrence("Bolt:2").appearance = look("Bolt paint");
    body("Bolt", "Shank").appearance = look("Shank paint");
    headFace().appearance = look("Head paint");
    host().gate().startTrace();
    // Some hosts take it over into the dialog.
    session().pick("Bolt:2/Head");
    openDialog();
    session().choose("idAppearanceList", red);
    session().choose("idMaterialList", "Foam");
    session().answerAlways(DialogYes);
  }

  /// Own looks and materials, one object a line.
  Lines design() {
    headless::model::Design& opened = AddInTest::design();
    Lines objects;
    for (const headless::model::Occurrence* each : opened.root().allOccurrences()) {
      objects.push_back(each->fullPathName() + ": " + ownLook(*each));
    }
    for (const auto& component : opened.components) {
      for (const auto& each : component->bodies) {
        objects.push_back(each->name + ": " + ownLook(*each) + ", " + each->material->name);
        for (const auto& face : each->faces) {
          objects.push_back(each->name + " face: " + ownLook(*face));
        }
      }
    }
    return objects;
  }

  headless::model::Face& headFace() { return *body("Bolt", "Head").faces[0]; }

  void expectCleanEnd() {
    EXPECT_THAT(host().gate().misuses(), IsEmpty());
    EXPECT_EQ(history().undoSteps().size(), 1U);
    EXPECT_FALSE(history().hasPendingChanges());
    EXPECT_TRUE(session().isDialogOpen());
    EXPECT_FALSE(isEnabled("idBtnApply"));
    EXPECT_FALSE(isEnabled("idRemoveAssignAppearance"));
  }
};

/// What a user does with the dialog open.
struct Task {
  const char* name;
  void (*run)(Session&);
};

/// Picks these and nothing else, whatever is picked already.
void pickOnly(Session& session, const std::string& filter, const std::vector<std::string>& paths) {
  session.clearPicks();
  pickAll(session, filter, paths);
}

const std::vector<Task> tasks = {
    {"PaintBody",
     [](Session& s) {
       pickOnly(s, "Body", {"Base"});
       s.click("idBtnApply");
     }},
    {"PaintWhatMayBePickedAlready",
     [](Session& s) {
       if (s.picked().empty()) {
         s.pick("Bolt:2/Head");
       }
       s.click("idBtnApply");
     }},
    {"PaintOccurrenceInsteadOfItsBody",
     [](Session& s) {
       pickOnly(s, "Body", {"Bolt:2/Shank"});
       pickAll(s, "Component", {"Bolt:2"});
       s.click("idBtnApply");
     }},
    {"PaintBodyAndOpenTheDialogAgain",
     [](Session& s) {
       pickOnly(s, "Body", {"Base"});
       s.click("idBtnApply");
       s.pressCancel();
       s.press("idAssetsMatMng");
     }},
    {"GiveMaterialAfterUntickingTheAppearances",
     [](Session& s) {
       s.tick("idGroupAppearance", false);
       // Already closed where the tick did it.
       s.expand("idGroupAppearance", false);
       pickOnly(s, "Body", {"Base"});
       s.click("idBtnApply");
     }},
    {"PaintOccurrence",
     [](Session& s) {
       pickOnly(s, "Component", {"Bolt:2"});
       s.click("idBtnApply");
     }},
    {"PaintOccurrenceOnly",
     [](Session& s) {
       assignAppearancesOnly(s);
       pickOnly(s, "Component", {"Bolt:2"});
       s.click("idBtnApply");
     }},
    {"PaintTwoFaces",
     [](Session& s) {
       pickOnly(s, "Face", {"Base/Face1", "Bolt:2/Head/Face1"});
       s.click("idBtnApply");
     }},
    {"GiveMaterialToOccurrences",
     [](Session& s) {
       assignMaterialsOnly(s);
       pickOnly(s, "Component", {"Frame:1", "Bolt:2"});
       s.click("idBtnApply");
     }},
    {"GiveMaterialToRoot",
     [](Session& s) {
       assignMaterialsOnly(s);
       s.clearPicks();
       pickComponent(s, s.design().root());
       s.click("idBtnApply");
     }},
    {"RemoveFromOccurrence",
     [](Session& s) {
       pickOnly(s, "Component", {"Bolt:2"});
       s.click("idRemoveAssignAppearance");
     }},
    {"RemoveFromBodies",
     [](Session& s) {
       pickOnly(s, "Body", {"Bolt:2/Shank", "Bolt:2/Head"});
       s.click("idRemoveAssignAppearance");
     }},
};

class SurprisingHost : public Surprising, public WithRow<std::pair<Surprise, Task>> {};

TABLE(
    Hosts, SurprisingHost, [](const auto& row) { return std::string(row.first.name) + "_" + row.second.name; },
    everyPair(surprises, tasks));

TABLE_TEST(SurprisingHost, GivesTheUserTheSameResult) {
  const auto& [surprise, task] = row();
  openPainted(documentedProfile());
  const Lines before = design();
  task.run(session());
  const Lines expected = design();
  expectCleanEnd();
  ASSERT_NE(expected, before);
  finish();

  folder.remove(settingsFile());
  Profile profile;
  surprise.applyTo(profile);
  openPainted(profile);
  task.run(session());
  EXPECT_EQ(design(), expected);
  if (profile.editClearsSelection != EditClearsSelection::Never || profile.executeClearsSelection) {
    expectCleanEnd();
  }
  session().undo();
  EXPECT_EQ(design(), before);
}

class Habit : public Surprising, public WithRow<Surprise> {
 protected:
  /// Calls and events of a task, sorted, as looks are put back in the order of addresses, and whose looks there are
  /// then.
  Lines seenIn(const Task& task, const Profile& profile) {
    folder.remove(settingsFile());
    openPainted(profile);
    task.run(session());
    host().gate().stopTrace();
    std::istringstream text(host().gate().traceText());
    Lines seen;
    for (std::string line; std::getline(text, line);) {
      seen.push_back(line);
    }
    std::sort(seen.begin(), seen.end());
    for (const auto& component : AddInTest::design().components) {
      for (const auto& each : component->bodies) {
        const bool isOfLibrary = each->appearance && host().materials().isInLibrary(*each->appearance);
        seen.push_back(each->name + (isOfLibrary ? " has a look of the library" : " has none of the library"));
      }
    }
    finish();
    return seen;
  }
};

TABLE(Hosts, Habit, byName, {surprises.begin() + 1, surprises.end()});

// A habit that no task brings out would be tested by nothing.
TABLE_TEST(Habit, IsSeenInOneTaskAtLeast) {
  Profile profile;
  row().applyTo(profile);
  Profile usual = documentedProfile();
  if (profile.executeClearsSelection) {
    // There an edit has cleared it already.
    usual.editClearsSelection = EditClearsSelection::Never;
  }
  // One after the other, as compilers differ in which they would do first.
  const auto isSeenIn = [&](const Task& task) {
    const auto asUsual = seenIn(task, usual);
    return seenIn(task, profile) != asUsual;
  };
  EXPECT_TRUE(std::any_of(tasks.begin(), tasks.end(), isSeenIn));
}

using LimitedHost = Surprising;

TEST_F(LimitedHost, ThatRefusesLibraryAppearancesStillAssignsMaterialsAndPutsLooksBack) {
  Profile profile;
  profile.libraryAppearance = LibraryAppearance::Refused;
  openPainted(profile);
  pickOnly(session(), "Component", {"Bolt:2"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(occurrence("Bolt:2")), "Bolt paint");
  EXPECT_EQ(ownLook(body("Bolt", "Shank")), "Shank paint");
  EXPECT_EQ(body("Bolt", "Shank").material->name, "Foam");
  expectCleanEnd();
}

TEST_F(LimitedHost, ThatRefusesLibraryAppearancesLeavesAPlainBodyPlain) {
  Profile profile;
  profile.libraryAppearance = LibraryAppearance::Refused;
  openPainted(profile);
  pickOnly(session(), "Body", {"Base"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
  EXPECT_EQ(body("Machine", "Base").material->name, "Foam");
  expectCleanEnd();
}

TEST_F(LimitedHost, ThatKeepsCancelledChangesKeepsWhatWasDoneBeforeAnErrorAsOneStep) {
  Profile profile;
  profile.cancelledChanges = CancelledChanges::Kept;
  openPainted(profile);
  const Lines before = design();
  pickOnly(session(), "Body", {"Base", "Bolt:2/Shank"});
  host().gate().setFault({2, FaultAnswer::Exception, "BRepBody.material="});
  session().click("idBtnApply");
  EXPECT_THAT(takeErrorKinds(), ::testing::ElementsAre("std::runtime_error"));
  session().pressCancel();
  EXPECT_EQ(body("Machine", "Base").material->name, "Foam");
  EXPECT_EQ(body("Bolt", "Shank").material->name, "Steel");
  EXPECT_EQ(history().undoSteps().size(), 1U);
  session().undo();
  EXPECT_EQ(design(), before);
}

// Own looks of bodies and faces cannot be told from others there, so they are neither recorded nor asked about.
TEST_F(LimitedHost, ThatReportsOwnLooksAsOverridesKeepsOnlyThoseOfOccurrences) {
  Profile profile;
  profile.ownAppearanceIsOverride = true;
  openPainted(profile);
  pickOnly(session(), "Component", {"Bolt:2"});
  session().click("idBtnApply");
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(ownLook(occurrence("Bolt:2")), "Bolt paint");
  EXPECT_EQ(ownLook(body("Bolt", "Shank")), "");
  EXPECT_EQ(ownLook(headFace()), "Head paint");
  expectCleanEnd();
}

// No material is assigned, which would have cleared the body's look before anybody could ask about it.
TEST_F(LimitedHost, ThatReportsOwnLooksAsOverridesIsAskedNothingAboutABodyBelowAnOccurrence) {
  Profile profile;
  profile.ownAppearanceIsOverride = true;
  openPainted(profile);
  assignAppearancesOnly(session());
  pickOnly(session(), "Component", {"Bolt:2"});
  session().click("idBtnApply");
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(ownLook(occurrence("Bolt:2")), red);
  EXPECT_EQ(ownLook(body("Bolt", "Shank")), "Shank paint");
  EXPECT_EQ(ownLook(headFace()), "Head paint");
  expectCleanEnd();
}

TEST_F(LimitedHost, ThatReportsOwnLooksAsOverridesStillHasThemRemoved) {
  Profile profile;
  profile.ownAppearanceIsOverride = true;
  openPainted(profile);
  pickOnly(session(), "Component", {"Bolt:2"});
  ASSERT_TRUE(isEnabled("idRemoveAssignAppearance"));
  session().click("idRemoveAssignAppearance");
  EXPECT_EQ(ownLook(occurrence("Bolt:2")), "");
  EXPECT_EQ(ownLook(body("Bolt", "Shank")), "");
  EXPECT_EQ(ownLook(headFace()), "");
  expectCleanEnd();
}

// Nothing tells the second event of a click from a second click, so a picked body is painted once more.
TEST_F(LimitedHost, ThatReportsAClickTwiceAndKeepsTheSelectionAppliesTwiceToTheSameResult) {
  Profile profile;
  profile.clickRaisesTwoEvents = true;
  profile.editClearsSelection = EditClearsSelection::Never;
  openPainted(profile);
  pickOnly(session(), "Body", {"Base"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
  EXPECT_EQ(body("Machine", "Base").material->name, "Foam");
  EXPECT_FALSE(isEnabled("idBtnApply"));
  while (!history().undoSteps().empty()) {
    session().undo();
  }
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
  EXPECT_EQ(body("Machine", "Base").material->name, "Steel");
}

}  // namespace
}  // namespace tests
