// Putting recorded looks back after Apply: when the material was assigned and is not to give the look.
#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using adsk::core::DialogNo;
using adsk::core::DialogYes;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::UnorderedElementsAreArray;

/// The bolt "Bolt:2" carries looks on the occurrence, on a body and on a face.
template <class Fixture>
class WithPaintedBolt : public Fixture {
 protected:
  void openWithPaintedBolt(headless::Profile profile = usualProfile()) {
    this->start(std::move(profile));
    bolt().appearance = this->look("Bolt paint");
    shank().appearance = this->look("Shank paint");
    headFace().appearance = this->look("Head paint");
    this->openDialog();
    this->session().choose("idAppearanceList", red);
    this->session().choose("idMaterialList", "Foam");
    this->session().answerAlways(DialogYes);
  }

  Lines editsOfApply() {
    return editsIn(traceOf(this->session(), [&] { this->session().click("idBtnApply"); }));
  }

  headless::model::Occurrence& bolt() { return this->occurrence("Bolt:2"); }
  headless::model::Body& shank() { return this->body("Bolt", "Shank"); }
  headless::model::Face& headFace() { return *this->body("Bolt", "Head").faces[0]; }
};

class Restoring : public WithPaintedBolt<AddInTest> {
 protected:
  void expectPaint(const std::string& ofBolt, const std::string& ofShank, const std::string& ofHeadFace) {
    EXPECT_EQ(ownLook(bolt()), ofBolt);
    EXPECT_EQ(ownLook(shank()), ofShank);
    EXPECT_EQ(ownLook(headFace()), ofHeadFace);
  }
};

const Lines putBackToBolt = {lookSet("Occurrence(Bolt:2)", "Bolt paint"),
                             lookSet("BRepBody(Bolt:2+Shank)", "Shank paint"),
                             lookSet("BRepFace(Bolt:2+Head)", "Head paint")};

Lines lastOf(const Lines& lines, std::size_t count) {
  return lines.size() < count ? lines : Lines(lines.end() - static_cast<std::ptrdiff_t>(count), lines.end());
}

TEST_F(Restoring, PutsBackOccurrenceThenBodyThenFaceAfterTheMaterial) {
  openWithPaintedBolt();
  assignMaterialsOnly(session());
  pickAll(session(), "Component", {"Bolt:2"});
  const Lines edits = editsOfApply();
  EXPECT_THAT(lastOf(edits, 4), ElementsAre(materialSet("Component(Bolt)", "Foam"), putBackToBolt[0], putBackToBolt[1],
                                            putBackToBolt[2]));
  expectPaint("Bolt paint", "Shank paint", "Head paint");
  EXPECT_EQ(shank().material->name, "Foam");
}

TEST_F(Restoring, PutsBackOverTheAppearanceThatWasJustAssigned) {
  openWithPaintedBolt();
  pickAll(session(), "Component", {"Bolt:2"});
  const Lines edits = editsOfApply();
  EXPECT_THAT(lastOf(edits, 4),
              ElementsAre(lookSet("Occurrence(Bolt:2)", red), putBackToBolt[0], putBackToBolt[1], putBackToBolt[2]));
  expectPaint("Bolt paint", "Shank paint", "Head paint");
}

TEST_F(Restoring, PutsBackWhatYesHadCleared) {
  openWithPaintedBolt();
  session().choose("idFilterSelect", "Body");
  session().pick("Bolt:2/Head");
  EXPECT_THAT(lastOf(editsOfApply(), 3),
              ElementsAre(lookCleared("BRepFace(Bolt:2+Head)"), lookSet("BRepBody(Bolt:2+Head)", red),
                          lookSet("BRepFace(Bolt:2+Head)", "Head paint")));
  EXPECT_EQ(ownLook(body("Bolt", "Head")), red);
  EXPECT_EQ(ownLook(headFace()), "Head paint");
}

TEST_F(Restoring, PutsBackAFacesOwnLook) {
  openWithPaintedBolt();
  pickAll(session(), "Face", {"Bolt:2/Head/Face1"});
  EXPECT_THAT(lastOf(editsOfApply(), 2),
              ElementsAre(lookSet("BRepFace(Bolt:2+Head)", red), lookSet("BRepFace(Bolt:2+Head)", "Head paint")));
}

TEST_F(Restoring, DoesNotHappenWhenTheMaterialGivesTheLook) {
  openWithPaintedBolt();
  assignMaterialsOnly(session());
  session().tick("idKeepAppearance", true);
  pickAll(session(), "Component", {"Bolt:2"});
  EXPECT_EQ(editsOfApply().back(), materialSet("Component(Bolt)", "Foam"));
  // Only bodies lose their look with the material.
  expectPaint("Bolt paint", "", "Head paint");
}

TEST_F(Restoring, DoesNotHappenWhileTheMaterialGroupIsClosed) {
  openWithPaintedBolt();
  assignAppearancesOnly(session());
  pickAll(session(), "Component", {"Bolt:2"});
  EXPECT_EQ(editsOfApply().back(), lookSet("Occurrence(Bolt:2)", red));
  expectPaint(red, "", "");
}

TEST_F(Restoring, HasNothingToDoWhenNothingWasRecorded) {
  openWithPaintedBolt();
  session().pick("Base");
  EXPECT_THAT(editsOfApply(), ElementsAre(materialSet("BRepBody(Base)", "Foam"), lookCleared("BRepBody(Base)"),
                                          lookSet("BRepBody(Base)", red)));
}

TEST_F(Restoring, KnowsTheLooksFromWhenTheSelectionWasDescribed) {
  openWithPaintedBolt();
  assignMaterialsOnly(session());
  pickAll(session(), "Component", {"Bolt:2"});
  shank().appearance = look("Newer paint");
  body("Bolt", "Head").appearance = look("Newer paint");
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(shank()), "Shank paint");
  EXPECT_EQ(ownLook(body("Bolt", "Head")), "");
}

TEST_F(Restoring, ReachesEverythingBelowTheSelectionKindByKind) {
  openWithPaintedBolt();
  occurrence("Frame:1").appearance = look("Frame paint");
  occurrence("Frame:1+Plate:1").appearance = look("Plate paint");
  body("Plate", "Plate1").appearance = look("Plate body paint");
  body("Plate", "Plate1").faces[2]->appearance = look("Plate face paint");
  assignMaterialsOnly(session());
  pickAll(session(), "Component", {"Frame:1"});
  const Lines edits = lastOf(editsOfApply(), 6);
  ASSERT_EQ(edits.size(), 6U);
  EXPECT_THAT(Lines(edits.begin(), edits.begin() + 2),
              UnorderedElementsAreArray({lookSet("Occurrence(Frame:1)", "Frame paint"),
                                         lookSet("Occurrence(Frame:1+Plate:1)", "Plate paint")}));
  EXPECT_THAT(Lines(edits.begin() + 2, edits.begin() + 4),
              UnorderedElementsAreArray({lookSet("BRepBody(Frame:1+Plate:1+Plate1)", "Plate body paint"),
                                         lookSet("BRepBody(Frame:1+Bolt:1+Shank)", "Shank paint")}));
  EXPECT_THAT(Lines(edits.begin() + 4, edits.end()),
              UnorderedElementsAreArray({lookSet("BRepFace(Frame:1+Plate:1+Plate1)", "Plate face paint"),
                                         lookSet("BRepFace(Frame:1+Bolt:1+Head)", "Head paint")}));
}

TEST_F(Restoring, ReachesEverythingBelowTheRootComponent) {
  openWithPaintedBolt();
  assignMaterialsOnly(session());
  pickComponent(session(), design().root());
  session().click("idBtnApply");
  expectPaint("Bolt paint", "Shank paint", "Head paint");
}

// The selection is gone by then, and with it the add-in's record of it.
TEST_F(Restoring, SurvivesThatTheSelectionIsClearedWhileApplyAssigns) {
  headless::Profile profile;
  profile.editClearsSelection = headless::EditClearsSelection::AtOnce;
  openWithPaintedBolt(profile);
  pickAll(session(), "Component", {"Bolt:2"});
  const Lines trace = traceOf(session(), [&] { session().click("idBtnApply"); });
  EXPECT_THAT(lastOf(editsIn(trace), 3), ElementsAreArray(putBackToBolt));
  EXPECT_EQ(containing("# event inputChanged(idSelection)", trace).size(), 1U);
  EXPECT_THAT(session().picked(), IsEmpty());
  EXPECT_THAT(host().gate().misuses(), IsEmpty());
}

TEST_F(Restoring, GivesEverySelectedEntityItsShareThoughTheSelectionIsCleared) {
  headless::Profile profile;
  profile.editClearsSelection = headless::EditClearsSelection::AtOnce;
  openWithPaintedBolt(profile);
  pickAll(session(), "Body", {"Base", "Bolt:2/Shank", "Bolt:2/Head"});
  session().click("idBtnApply");
  for (const auto* each : {&body("Machine", "Base"), &shank(), &body("Bolt", "Head")}) {
    EXPECT_EQ(each->material->name, "Foam") << each->name;
  }
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
  EXPECT_EQ(ownLook(body("Bolt", "Head")), red);
  expectPaint("Bolt paint", "Shank paint", "Head paint");
}

class RestoringUnderProfile : public WithPaintedBolt<AddInUnderProfile> {};

TABLE_OF_PROFILES(RestoringUnderProfile);

TABLE_TEST(RestoringUnderProfile, KeepsTheLooksUnlessTheMaterialGivesThem) {
  openWithPaintedBolt(profile());
  assignMaterialsOnly(session());
  pickAll(session(), "Component", {"Bolt:2"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(bolt()), "Bolt paint");
  EXPECT_EQ(ownLook(shank()), "Shank paint");
  EXPECT_EQ(ownLook(headFace()), "Head paint");
  EXPECT_EQ(shank().material->name, "Foam");
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

TABLE_TEST(RestoringUnderProfile, LeavesTheMaterialsLookWhereThatIsWanted) {
  openWithPaintedBolt(profile());
  assignMaterialsOnly(session());
  session().tick("idKeepAppearance", true);
  pickAll(session(), "Component", {"Bolt:2"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(bolt()), "Bolt paint");
  EXPECT_EQ(ownLook(shank()), "");
  EXPECT_EQ(ownLook(headFace()), "Head paint");
}

TABLE_TEST(RestoringUnderProfile, PutsLooksBackOverTheAssignedAppearance) {
  openWithPaintedBolt(profile());
  pickAll(session(), "Component", {"Bolt:2"});
  session().click("idBtnApply");
  EXPECT_EQ(session().messageBoxes().size(), 1U);
  EXPECT_EQ(ownLook(bolt()), "Bolt paint");
  EXPECT_EQ(ownLook(shank()), "Shank paint");
  EXPECT_EQ(ownLook(headFace()), "Head paint");
}

// Apply clears both bodies; the third call is the first look that is put back.
TEST_F(Restoring, GoesOnAfterALookThatTheHostRefuses) {
  openWithPaintedBolt();
  body("Bolt", "Head").appearance = look("Head paint");
  assignMaterialsOnly(session());
  pickAll(session(), "Body", {"Bolt:2/Shank", "Bolt:2/Head"});
  host().gate().setFault({3, headless::FaultAnswer::Nothing, "BRepBody.appearance="});
  const Lines edits = editsOfApply();
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(edits, IsSupersetOf({lookSet("BRepBody(Bolt:2+Shank)", "Shank paint"),
                                   lookSet("BRepBody(Bolt:2+Head)", "Head paint"),
                                   lookSet("BRepFace(Bolt:2+Head)", "Head paint")}));
}

}  // namespace
}  // namespace tests
