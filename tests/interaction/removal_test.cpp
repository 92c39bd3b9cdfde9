// The remove button: what it clears for each kind of entity, and what it leaves.
#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// Every kind of object carries a look of its own, at every depth.
template <class Fixture>
class WithPaintedMachine : public Fixture {
 protected:
  void openPainted(headless::Profile profile = usualProfile()) {
    this->start(std::move(profile));
    for (headless::model::Occurrence* each : this->design().root().allOccurrences()) {
      each->appearance = this->look("Paint");
    }
    for (const auto& component : this->design().components) {
      for (const auto& each : component->bodies) {
        each->appearance = this->look("Paint");
        for (const auto& face : each->faces) {
          face->appearance = this->look("Paint");
        }
      }
    }
    this->openDialog();
  }

  Lines editsOfRemove() {
    return editsIn(traceOf(this->session(), [&] { this->session().click(removeButton); }));
  }

  /// Paths and names of everything that carries a look of its own; faces are counted by body, as in "Head#1".
  Lines painted() {
    Lines names;
    for (const headless::model::Occurrence* each : this->design().root().allOccurrences()) {
      if (each->appearance) {
        names.push_back(each->fullPathName());
      }
    }
    for (const auto& component : this->design().components) {
      for (const auto& each : component->bodies) {
        if (each->appearance) {
          names.push_back(each->name);
        }
        std::size_t faces = 0;
        for (const auto& face : each->faces) {
          faces += face->appearance ? 1 : 0;
        }
        if (faces > 0) {
          names.push_back(each->name + "#" + std::to_string(faces));
        }
      }
    }
    return names;
  }
};

const Lines everything = {"Frame:1",        "Frame:1+Plate:1", "Frame:1+Bolt:1", "Frame:2", "Frame:2+Plate:1",
                          "Frame:2+Bolt:1", "Bolt:2",          "Base",           "Base#2",  "Plate1",
                          "Plate1#3",       "Shank",           "Shank#2",        "Head",    "Head#1"};

class Removal : public WithPaintedMachine<AddInTest> {};

TEST_F(Removal, OfABodyClearsItAndItsFacesTwice) {
  openPainted();
  session().pick("Base");
  EXPECT_THAT(editsOfRemove(),
              ElementsAre(lookCleared("BRepBody(Base)"), lookCleared("BRepFace(Base)"), lookCleared("BRepFace(Base)"),
                          lookCleared("BRepFace(Base)"), lookCleared("BRepFace(Base)")));
  EXPECT_THAT(painted(),
              ElementsAre("Frame:1", "Frame:1+Plate:1", "Frame:1+Bolt:1", "Frame:2", "Frame:2+Plate:1",
                          "Frame:2+Bolt:1", "Bolt:2", "Plate1", "Plate1#3", "Shank", "Shank#2", "Head", "Head#1"));
}

TEST_F(Removal, OfAnOccurrenceClearsItThenItsBodiesThenTheBodiesOnceMore) {
  openPainted();
  pickAll(session(), "Component", {"Bolt:2"});
  const std::string shank = "(Bolt:2+Shank)";
  const std::string head = "(Bolt:2+Head)";
  const Lines bodies = {lookCleared("BRepBody" + shank), lookCleared("BRepFace" + shank),
                        lookCleared("BRepFace" + shank), lookCleared("BRepBody" + head),
                        lookCleared("BRepFace" + head)};
  Lines expected = {lookCleared("Occurrence(Bolt:2)")};
  expected.insert(expected.end(), bodies.begin(), bodies.end());
  expected.insert(expected.end(), bodies.begin(), bodies.end());
  EXPECT_EQ(editsOfRemove(), expected);
}

TEST_F(Removal, OfAnOccurrenceClearsEveryDepthParentsFirst) {
  start(chainDesign(3));
  body("Link3", "Body1").appearance = look("Paint");
  openDialog();
  pickAll(session(), "Component", {"Link1:1"});
  const std::string inner = "Link1:1+Link2:1+Link3:1";
  const std::string middle = "Link1:1+Link2:1";
  EXPECT_THAT(editsOfRemove(),
              ElementsAre(lookCleared("Occurrence(Link1:1)"), lookCleared("Occurrence(" + middle + ")"),
                          lookCleared("Occurrence(" + inner + ")"), lookCleared("BRepBody(" + inner + "+Body1)"),
                          lookCleared("BRepFace(" + inner + "+Body1)"), lookCleared("BRepBody(" + middle + "+Body1)"),
                          lookCleared("BRepFace(" + middle + "+Body1)"), lookCleared("BRepBody(Link1:1+Body1)"),
                          lookCleared("BRepFace(Link1:1+Body1)"),
                          // The selected occurrence's own bodies once more.
                          lookCleared("BRepBody(Link1:1+Body1)"), lookCleared("BRepFace(Link1:1+Body1)")));
}

TEST_F(Removal, OfAnOccurrenceLeavesWhatIsBesideIt) {
  openPainted();
  pickAll(session(), "Component", {"Frame:1"});
  session().click(removeButton);
  // Bodies and faces belong to the components, which "Frame:2" and "Bolt:2" share.
  EXPECT_THAT(painted(), ElementsAre("Frame:2", "Frame:2+Plate:1", "Frame:2+Bolt:1", "Bolt:2", "Base", "Base#2"));
}

TEST_F(Removal, OfTheRootComponentClearsItsOccurrencesAndNotItsOwnBodies) {
  openPainted();
  pickComponent(session(), design().root());
  const Lines edits = editsOfRemove();
  EXPECT_THAT(painted(), ElementsAre("Base", "Base#2"));
  EXPECT_EQ(edits.front(), lookCleared("Occurrence(Frame:1)"));
  EXPECT_THAT(containing("Component(", edits), IsEmpty());
  // Each of the seven once: no second pass as for a selected occurrence.
  EXPECT_EQ(containing("Occurrence(", edits).size(), 7U);
  EXPECT_EQ(containing("BRepBody(Bolt:2+Head)", edits).size(), 1U);
}

TEST_F(Removal, OfAnotherComponentClearsThatComponentsOccurrences) {
  openPainted();
  pickComponent(session(), componentNamed(design(), "Frame"));
  EXPECT_THAT(containing("Occurrence(", editsOfRemove()),
              ElementsAre(lookCleared("Occurrence(Plate:1)"), lookCleared("Occurrence(Bolt:1)")));
  // The frame's own tree is another one than the root's; the bodies are the same.
  EXPECT_THAT(painted(), ElementsAre("Frame:1", "Frame:1+Plate:1", "Frame:1+Bolt:1", "Frame:2", "Frame:2+Plate:1",
                                     "Frame:2+Bolt:1", "Bolt:2", "Base", "Base#2"));
}

TEST_F(Removal, OfAFaceClearsNothing) {
  openPainted();
  pickAll(session(), "Face", {"Base/Face1", "Bolt:2/Head/Face1"});
  ASSERT_TRUE(isEnabled(removeButton));
  EXPECT_THAT(editsOfRemove(), IsEmpty());
  EXPECT_EQ(painted(), everything);
  EXPECT_FALSE(isEnabled(removeButton));
  EXPECT_FALSE(isEnabled("idBtnApply"));
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

// The face was plain when it was picked, so only the remove button can have recorded its look.
TEST_F(Removal, OfAFaceRecordsItsLookForTheNextApply) {
  start();
  headless::model::Body& base = body("Machine", "Base");
  base.faces[0]->appearance = look("First paint");
  openDialog();
  pickAll(session(), "Face", {"Base/Face1", "Base/Face2"});
  base.faces[1]->appearance = look("Second paint");
  session().click(removeButton);
  session().type("idFilterAppearance", "red");
  const Lines edits = editsIn(traceOf(session(), [&] { session().click("idBtnApply"); }));
  ASSERT_GE(edits.size(), 2U);
  EXPECT_THAT(Lines(edits.end() - 2, edits.end()),
              ::testing::UnorderedElementsAre(lookSet("BRepFace(Base)", "First paint"),
                                              lookSet("BRepFace(Base)", "Second paint")));
  EXPECT_EQ(ownLook(*base.faces[0]), "First paint");
  EXPECT_EQ(ownLook(*base.faces[1]), "Second paint");
}

TEST_F(Removal, OfAFaceDoesNotRecordWhatIsNotItsOwn) {
  start();
  headless::model::Body& base = body("Machine", "Base");
  base.faces[0]->appearance = look("First paint");
  openDialog();
  pickAll(session(), "Face", {"Base/Face1", "Base/Face2"});
  base.appearance = look("Body paint");
  session().click(removeButton);
  session().type("idFilterAppearance", "red");
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(*base.faces[0]), "First paint");
  EXPECT_EQ(ownLook(*base.faces[1]), "RAL 3000 Flame red");
}

TEST_F(Removal, TakesSeveralEntitiesInTheOrderInWhichTheyWerePicked) {
  openPainted();
  pickAll(session(), "Body", {"Bolt:2/Head", "Base"});
  const Lines edits = editsOfRemove();
  EXPECT_EQ(edits.front(), lookCleared("BRepBody(Bolt:2+Head)"));
  EXPECT_EQ(edits.back(), lookCleared("BRepFace(Base)"));
  EXPECT_THAT(containing("BRepBody(", edits),
              ElementsAre(lookCleared("BRepBody(Bolt:2+Head)"), lookCleared("BRepBody(Base)")));
}

TEST_F(Removal, OfNothingDoesNothing) {
  openPainted();
  const Lines trace = traceOf(session(), [&] { raiseChangeOf(session(), removeButton); });
  EXPECT_THAT(editsIn(trace), IsEmpty());
  EXPECT_EQ(reactionTo(removeButton, trace).back(), "Command(idAssetsMatMng).doExecute(false) -> true");
  EXPECT_EQ(painted(), everything);
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

TEST_F(Removal, AsksNothing) {
  openPainted();
  pickAll(session(), "Component", {"Frame:1"});
  session().click(removeButton);
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_F(Removal, SavesNoChoices) {
  openPainted();
  session().pick("Base");
  session().click(removeButton);
  EXPECT_FALSE(folder.has(settingsFile()));
}

TEST_F(Removal, IsDoneThoughTheSelectionIsClearedAtTheFirstChange) {
  headless::Profile profile;
  profile.editClearsSelection = headless::EditClearsSelection::AtOnce;
  openPainted(profile);
  pickAll(session(), "Component", {"Frame:1", "Frame:2", "Bolt:2"});
  session().click(removeButton);
  EXPECT_THAT(painted(), ElementsAre("Base", "Base#2"));
  EXPECT_THAT(host().gate().misuses(), IsEmpty());
}

TEST_F(Removal, KeepsWhatWasClearedBeforeAnErrorUntilTheCommandIsCancelled) {
  openPainted();
  pickAll(session(), "Component", {"Frame:1"});
  host().gate().setFault({3, FaultAnswer::Exception, "Occurrence.appearance="});
  session().click(removeButton);
  EXPECT_THAT(takeErrors(), ElementsAre(HasSubstr("std::runtime_error")));
  EXPECT_EQ(ownLook(occurrence("Frame:1")), "");
  EXPECT_EQ(ownLook(occurrence("Frame:1+Plate:1")), "");
  EXPECT_EQ(ownLook(occurrence("Frame:1+Bolt:1")), "Paint");
  session().pressCancel();
  EXPECT_EQ(painted(), everything);
}

/// A link that the host does not return, and what is left uncleared then.
struct MissingObject {
  const char* name;
  const char* call;
  /// Which of these calls it is once Apply clears: it has looked for painted bodies before.
  std::size_t nthInApply;
  Lines left;
};

class MissingObjects : public Removal, public WithRow<MissingObject> {
 protected:
  /// What is painted of "Frame:1" and below it.
  Lines paintedBelowFrame() {
    Lines left;
    for (const std::string& each : painted()) {
      if (each.find("Frame:2") == std::string::npos && each != "Bolt:2" && each.find("Base") == std::string::npos) {
        left.push_back(each);
      }
    }
    return left;
  }
};

TABLE(Links, MissingObjects, byName,
      {{"Children",
        "Occurrence.childOccurrences",
        2,
        {"Frame:1+Plate:1", "Frame:1+Bolt:1", "Plate1", "Plate1#3", "Shank", "Shank#2", "Head", "Head#1"}},
       {"Child", "OccurrenceList.item", 2, {"Frame:1+Plate:1", "Plate1", "Plate1#3"}},
       {"Bodies", "Occurrence.bRepBodies", 3, {"Plate1", "Plate1#3"}},
       {"Body", "BRepBodies.item", 2, {"Plate1", "Plate1#3"}},
       {"Faces", "BRepBody.faces", 1, {"Plate1#3"}},
       {"Face", "BRepFaces.item", 1, {"Plate1#1"}}});

TABLE_TEST(MissingObjects, ArePassedOver) {
  openPainted();
  pickAll(session(), "Component", {"Frame:1"});
  host().gate().setFault({1, FaultAnswer::Nothing, row().call});
  session().click(removeButton);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(paintedBelowFrame(), row().left);
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

TABLE_TEST(MissingObjects, ArePassedOverByApplyToo) {
  openPainted();
  assignAppearancesOnly(session());
  session().choose("idAppearanceList", red);
  pickAll(session(), "Component", {"Frame:1"});
  session().answerNext(adsk::core::DialogYes);
  host().gate().setFault({row().nthInApply, FaultAnswer::Nothing, row().call});
  session().click(applyButton);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(session().messageBoxes().size(), 1U);
  // The new look of the picked occurrence itself comes last.
  Lines left = {"Frame:1"};
  left.insert(left.end(), row().left.begin(), row().left.end());
  EXPECT_EQ(paintedBelowFrame(), left);
  EXPECT_EQ(ownLook(occurrence("Frame:1")), red);
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

/// A link that the host does not return while Apply looks for the one painted face, the last one below "Frame:1".
struct LinkInSearch {
  const char* name;
  const char* call;
  std::size_t nth;
  bool isFaceFound;
};

class MissingInSearch : public Removal, public WithRow<LinkInSearch> {};

TABLE(Links, MissingInSearch, byName,
      {{"Children", "Occurrence.childOccurrences", 1, false},
       {"OtherChild", "OccurrenceList.item", 1, true},
       {"Child", "OccurrenceList.item", 2, false},
       {"OtherBodies", "Occurrence.bRepBodies", 2, true},
       {"Bodies", "Occurrence.bRepBodies", 3, false},
       {"OtherBody", "BRepBodies.item", 2, true},
       {"Body", "BRepBodies.item", 3, false},
       {"OtherFaces", "BRepBody.faces", 2, true},
       {"Faces", "BRepBody.faces", 3, false},
       {"OtherFace", "BRepFaces.item", 5, true},
       {"Face", "BRepFaces.item", 6, false}});

TABLE_TEST(MissingInSearch, ArePassedOverByTheSearchForPaintedFaces) {
  start();
  headless::model::Face& face = *body("Bolt", "Head").faces[0];
  face.appearance = look("Paint");
  openDialog();
  assignAppearancesOnly(session());
  session().choose("idAppearanceList", red);
  pickAll(session(), "Component", {"Frame:1"});
  session().answerNext(adsk::core::DialogYes);
  host().gate().setFault({row().nth, FaultAnswer::Nothing, row().call});
  session().click(applyButton);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(session().messageBoxes().size(), row().isFaceFound ? 1U : 0U);
  EXPECT_EQ(ownLook(face), row().isFaceFound ? "" : "Paint");
  EXPECT_EQ(ownLook(occurrence("Frame:1")), red);
}

// With Apply it is the same for a picked body.
TEST_F(Removal, OfFacesThatAreMissingIsPassedOverByApply) {
  start();
  headless::model::Body& base = body("Machine", "Base");
  base.faces[1]->appearance = look("Paint");
  openDialog();
  assignAppearancesOnly(session());
  session().choose("idAppearanceList", red);
  session().pick("Base");
  host().gate().setFault({1, FaultAnswer::Nothing, "BRepBody.faces"});
  session().click(applyButton);
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(ownLook(base), red);
  EXPECT_EQ(ownLook(*base.faces[1]), "Paint");
}

TEST_F(Removal, OfAComponentWithoutOccurrencesCollectionDoesNothing) {
  openPainted();
  pickComponent(session(), design().root());
  host().gate().setFault({1, FaultAnswer::Nothing, "Component.occurrences"});
  EXPECT_THAT(editsOfRemove(), IsEmpty());
  EXPECT_TRUE(host().gate().faultStruck());
}

TEST_F(Removal, OfAnyOtherKindOfEntityDoesNothing) {
  openPainted();
  pickAnotherKind(session());
  EXPECT_THAT(editsIn(traceOf(session(), [&] { raiseChangeOf(session(), removeButton); })), IsEmpty());
  EXPECT_EQ(painted(), everything);
}

TEST_F(Removal, OfABodyBesideAnyOtherKindOfEntityIsDone) {
  openPainted();
  pickAnotherKind(session());
  session().pick("Base");
  session().click(removeButton);
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
}

class RemovalUnderProfile : public WithPaintedMachine<AddInUnderProfile> {};

TABLE_OF_PROFILES(RemovalUnderProfile);

TABLE_TEST(RemovalUnderProfile, OfAnOccurrenceIsOneUndoStepThatBringsEverythingBack) {
  openPainted(profile());
  pickAll(session(), "Component", {"Frame:1"});
  ASSERT_TRUE(isEnabled(removeButton));
  session().click(removeButton);
  const Lines rest = {"Frame:2", "Frame:2+Plate:1", "Frame:2+Bolt:1", "Bolt:2", "Base", "Base#2"};
  EXPECT_EQ(painted(), rest);
  EXPECT_FALSE(isEnabled(removeButton));
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(history().undoSteps().size(), 1U);
  session().undo();
  EXPECT_EQ(painted(), everything);
  session().redo();
  EXPECT_EQ(painted(), rest);
  EXPECT_THAT(host().gate().misuses(), IsEmpty());
}

TABLE_TEST(RemovalUnderProfile, OfTheRootComponentClearsAllOccurrences) {
  openPainted(profile());
  pickComponent(session(), design().root());
  session().click(removeButton);
  EXPECT_THAT(painted(), ElementsAre("Base", "Base#2"));
  session().undo();
  EXPECT_EQ(painted(), everything);
}

TABLE_TEST(RemovalUnderProfile, OfAFaceLeavesItsLook) {
  openPainted(profile());
  pickAll(session(), "Face", {"Base/Face1"});
  session().click(removeButton);
  EXPECT_EQ(painted(), everything);
  EXPECT_TRUE(session().isDialogOpen());
}

TEST_F(Removal, PassesOverAPickThatTheHostDoesNotReturn) {
  openPainted();
  pickAll(session(), "Body", {"Base", "Bolt:2/Head"});
  host().gate().setFault({1, FaultAnswer::Nothing, "Selection.entity"});
  EXPECT_THAT(editsOfRemove(),
              AllOf(Contains(lookCleared("BRepBody(Bolt:2+Head)")), Not(Contains(lookCleared("BRepBody(Base)")))));
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

TEST_F(Removal, OfTheRootComponentPassesOverAnOccurrenceThatTheHostDoesNotReturn) {
  openPainted();
  pickComponent(session(), design().root());
  host().gate().setFault({1, FaultAnswer::Nothing, "Occurrences.item"});
  raiseChangeOf(session(), removeButton);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(painted(), ElementsAre("Frame:1", "Frame:1+Plate:1", "Frame:1+Bolt:1", "Base", "Base#2"));
}

/// A look that the host refuses to take away.
struct RefusedRemoval {
  const char* name;
  const char* call;
  const char* filter;
  const char* path;
};

class RefusedRemovals : public Removal, public WithRow<RefusedRemoval> {
 protected:
  Lines editsOfRemoving(bool isFirstRefused) {
    openPainted();
    pickAll(session(), row().filter, {row().path});
    if (isFirstRefused) {
      host().gate().setFault({1, FaultAnswer::Nothing, row().call});
    }
    const Lines edits = editsOfRemove();
    EXPECT_EQ(host().gate().faultStruck(), isFirstRefused);
    finish();
    return edits;
  }
};

TABLE(Looks, RefusedRemovals, byName,
      {{"Body", "BRepBody.appearance=", "Body", "Bolt:2/Shank"},
       {"Face", "BRepFace.appearance=", "Body", "Bolt:2/Shank"},
       {"Occurrence", "Occurrence.appearance=", "Component", "Frame:1"}});

TABLE_TEST(RefusedRemovals, KeepNothingElseFromBeingCleared) {
  const Lines edits = editsOfRemoving(true);
  EXPECT_EQ(edits, editsOfRemoving(false));
}

}  // namespace
}  // namespace tests
