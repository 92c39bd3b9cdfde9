// The inventory of looks that are applied to the selection and to anything below it: what is in it, how the remove
// button shows it, and where it stops when the host fails.
#include "inspection/applied_appearances.h"

#include <functional>

#include "tests/inspection/inventory_fixture.h"
#include "tests/inspection/stand_ins.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::makeObject;
using headless::model::Design;

struct RemoveCase {
  const char* name;
  std::function<void(Design&)> paint;
  const char* filter;
  std::vector<std::string> picked;
  bool isEnabled;
};

std::shared_ptr<const headless::model::Appearance> redLook() {
  return std::make_shared<const headless::model::Appearance>(
      headless::model::Appearance{"red", "Red", {200, 0, 0, 255}});
}

auto paintedOccurrence(const std::string& path) {
  return [path](Design& design) { occurrenceAt(design, path).appearance = redLook(); };
}
auto paintedBody(const std::string& component, const std::string& body) {
  return [=](Design& design) { bodyNamed(design, component, body).appearance = redLook(); };
}
auto paintedFace(const std::string& component, const std::string& body, std::size_t face) {
  return [=](Design& design) { bodyNamed(design, component, body).faces[face]->appearance = redLook(); };
}
void nothingPainted(Design& /*design*/) {}

class RemoveButton : public InspectionTest, public WithRow<RemoveCase> {};

TABLE(Selections, RemoveButton, byName,
      {{"Body", paintedBody("Machine", "Base"), "Body", {"Base"}, true},
       {"BodyWithPaintedFace", paintedFace("Machine", "Base", 1), "Body", {"Base"}, true},
       {"BodySeenThroughAnotherOccurrence", paintedBody("Plate", "Plate1"), "Body", {"Frame:2+Plate:1/Plate1"}, true},
       {"UntouchedBody", nothingPainted, "Body", {"Base"}, false},
       {"UntouchedBodyBesideAPaintedOne", paintedBody("Bolt", "Head"), "Body", {"Bolt:2/Shank"}, false},
       {"BodyOfAPaintedOccurrence", paintedOccurrence("Frame:1"), "Body", {"Frame:1+Plate:1/Plate1"}, false},
       {"SecondOfTwoBodies", paintedBody("Bolt", "Head"), "Body", {"Base", "Bolt:2/Head"}, true},
       {"Face", paintedFace("Machine", "Base", 0), "Face", {"Base/Face1"}, true},
       {"FaceBesideAPaintedOne", paintedFace("Machine", "Base", 0), "Face", {"Base/Face2"}, false},
       {"FaceOfAPaintedBody", paintedBody("Machine", "Base"), "Face", {"Base/Face1"}, false},
       {"Occurrence", paintedOccurrence("Bolt:2"), "Component", {"Bolt:2"}, true},
       {"OccurrenceWithPaintedChild", paintedOccurrence("Frame:1+Bolt:1"), "Component", {"Frame:1"}, true},
       {"OccurrenceWithPaintedBody", paintedBody("Bolt", "Head"), "Component", {"Bolt:2"}, true},
       {"OccurrenceWithPaintedFace", paintedFace("Bolt", "Head", 0), "Component", {"Bolt:2"}, true},
       {"OccurrenceWithPaintedFaceFarBelow", paintedFace("Plate", "Plate1", 2), "Component", {"Frame:2"}, true},
       {"OccurrenceUnderAPaintedOne", paintedOccurrence("Frame:1"), "Component", {"Frame:1+Plate:1"}, false},
       {"OccurrenceBesideAPaintedOne", paintedOccurrence("Frame:1"), "Component", {"Frame:2"}, false},
       {"UntouchedOccurrence", nothingPainted, "Component", {"Frame:1"}, false},
       {"LastOfThreeOccurrences", paintedOccurrence("Bolt:2"), "Component", {"Frame:1", "Frame:2", "Bolt:2"}, true}});

TABLE_TEST(RemoveButton, IsEnabledWhenSomethingAtOrBelowTheSelectionIsPainted) {
  start();
  row().paint(design());
  openDialog();
  EXPECT_FALSE(isRemoveEnabled());
  pickOnly(row().filter);
  pickAll(row().picked);
  EXPECT_EQ(isRemoveEnabled(), row().isEnabled);
}

class AppliedAppearances : public InspectionTest {};

TEST_F(AppliedAppearances, OfTheRootComponentAreThoseOfItsOccurrences) {
  start();
  occurrence("Frame:2+Bolt:1").appearance = look("Red");
  openDialog();
  pickRoot();
  EXPECT_TRUE(isRemoveEnabled());
}

TEST_F(AppliedAppearances, OfTheRootComponentLeaveItsOwnBodiesOut) {
  start();
  body("Machine", "Base").appearance = look("Red");
  openDialog();
  pickRoot();
  EXPECT_FALSE(isRemoveEnabled());
}

TEST_F(AppliedAppearances, AreNotThoseReportedAsOtherOverrides) {
  headless::Profile profile = usualProfile();
  profile.ownAppearanceIsOverride = true;
  start(profile);
  body("Machine", "Base").appearance = look("Red");
  openDialog();
  session().pick("Base");
  EXPECT_FALSE(isRemoveEnabled());
  EXPECT_EQ(appearanceText(), "<b>Red</b> - overriden appearance.");
}

TEST_F(AppliedAppearances, AreTakenAnewAtEachChangeOfTheSelection) {
  start();
  body("Machine", "Base").appearance = look("Red");
  openDialog();
  session().pick("Base");
  EXPECT_TRUE(isRemoveEnabled());
  session().pick("Bolt:2/Head");
  session().pick("Base");
  EXPECT_FALSE(isRemoveEnabled());
}

using Inventory = InventoryTest;

TEST_F(Inventory, BeginsAnew) {
  load();
  session().openDesign(machine());
  body("Machine", "Base").appearance = look("Red");
  collect({{nullptr, {"Base", nullptr, &body("Machine", "Base"), nullptr}}});
  EXPECT_EQ(taken().bodies.size(), 1U);
  collect({});
  EXPECT_TRUE(tintora::appliedAppearances.empty());
}

TEST_F(Inventory, LeavesOtherClassesAlone) {
  load();
  startCounting();
  tintora::collectAppliedAppearances({handleOf(look("Red"))});
  EXPECT_TRUE(tintora::appliedAppearances.empty());
  EXPECT_EQ(host().gate().callCount(), callsOf("Appearance.objectType"));
}

TEST_F(Inventory, KeepsTheFirstLookOfAFaceThatIsRecordedAgain) {
  load();
  const auto face = makeObject<StandInFace>();
  face->source = 3;
  face->shown = handleOf(look("First"));
  tintora::recordFaceOverride(face);
  face->shown = handleOf(look("Second"));
  tintora::recordFaceOverride(face);
  ASSERT_EQ(tintora::appliedAppearances.faceOverrides.size(), 1U);
  EXPECT_EQ(tintora::appliedAppearances.faceOverrides.begin()->second->name(), "First");
}

class FaceRecord : public InventoryTest, public WithRow<int> {};

TABLE(Sources, FaceRecord, byNumber, {0, 1, 2, 3, 4, 5});

TABLE_TEST(FaceRecord, IsMadeForSourceThreeOnly) {
  load();
  const auto face = makeObject<StandInFace>();
  face->source = row();
  face->shown = handleOf(look("Red"));
  tintora::recordFaceOverride(face);
  EXPECT_EQ(tintora::appliedAppearances.faceOverrides.size(), row() == 3 ? 1U : 0U);
}

class BodyRecord : public InventoryTest, public WithRow<int> {};

TABLE(Sources, BodyRecord, byNumber, {0, 1, 2, 3, 4, 5});

TABLE_TEST(BodyRecord, IsMadeForSourceOneOnly) {
  load();
  session().openDesign(machine());
  const auto standIn = makeObject<StandInBody>();
  standIn->source = row();
  standIn->shown = handleOf(look("Red"));
  standIn->faceList = entities().body(body("Machine", "Base"), nullptr)->faces();
  tintora::collectAppliedAppearances({standIn});
  EXPECT_EQ(tintora::appliedAppearances.bodyOverrides.size(), row() == 1 ? 1U : 0U);
}

class InventoryInterrupted : public InventoryTest {
 protected:
  /// Frame:1 and what lies below it are painted.
  void SetUp() override {
    load();
    session().openDesign(machine());
    occurrence("Frame:1").appearance = look("Frame");
    occurrence("Frame:1+Plate:1").appearance = look("Plate");
    body("Plate", "Plate1").appearance = look("Body");
    body("Plate", "Plate1").faces[0]->appearance = look("Face");
  }
};

TEST_F(InventoryInterrupted, SelectedOccurrenceIsRecordedBeforeItsChildren) {
  answerNothingAt("Occurrence.childOccurrences", 1);
  EXPECT_THROW(collect({occurrenceOf("Frame:1")}), std::exception);
  EXPECT_EQ(taken().occurrences.size(), 1U);
  EXPECT_TRUE(taken().bodies.empty());
}

TEST_F(InventoryInterrupted, OccurrencesBelowAreRecordedAfterTheirChildren) {
  // Plate:1 is the first child to be left, Bolt:1 the second, Frame:1 comes last.
  answerNothingAt("Occurrence.bRepBodies", 3);
  EXPECT_THROW(collect({root()}), std::exception);
  EXPECT_EQ(taken().occurrences.size(), 2U);
  answerNothingAt("Occurrence.bRepBodies", 1);
  EXPECT_THROW(collect({root()}), std::exception);
  ASSERT_EQ(taken().occurrences.size(), 1U);
  EXPECT_EQ(taken().occurrences.begin()->second, "Plate");
}

TEST_F(InventoryInterrupted, ChildIsDoneWithBeforeTheNextIsAskedFor) {
  // The first item is Frame:1, then come its children Plate:1 and Bolt:1.
  answerNothingAt("OccurrenceList.item", 3);
  EXPECT_THROW(collect({root()}), std::exception);
  EXPECT_EQ(taken().occurrences.size(), 1U);
  EXPECT_EQ(taken().bodies.size(), 1U);
  EXPECT_EQ(taken().faces.size(), 1U);
}

TEST_F(InventoryInterrupted, EntityWithoutAClassTextIsOfNoKind) {
  answerNothingAt("Occurrence.objectType", 1);
  collect({occurrenceOf("Frame:1")});
  EXPECT_TRUE(tintora::appliedAppearances.empty());
}

TEST_F(InventoryInterrupted, BodyIsRecordedBeforeItsFaces) {
  answerNothingAt("BRepBody.faces", 1);
  EXPECT_THROW(collect({{nullptr, {"", nullptr, &body("Plate", "Plate1"), nullptr}}}), std::exception);
  EXPECT_EQ(taken().bodies.size(), 1U);
  EXPECT_TRUE(taken().faces.empty());
}

TEST_F(InventoryInterrupted, EmptyEntityEndsItAndWhatCameBeforeStays) {
  const Entity body = entities().body(this->body("Plate", "Plate1"), nullptr);
  const Entity frame = entities().occurrence(occurrence("Frame:1"));
  EXPECT_THROW(tintora::collectAppliedAppearances({body, {}, frame}), std::exception);
  EXPECT_EQ(taken().bodies.size(), 1U);
  EXPECT_TRUE(taken().occurrences.empty());
}

class InventoryMissing : public InspectionTest, public WithRow<const char*> {};

TABLE(Calls, InventoryMissing, byText,
      {"Component.allOccurrences", "OccurrenceList.item", "Occurrence.childOccurrences", "Occurrence.bRepBodies",
       "BRepBodies.item", "BRepBody.faces", "BRepFaces.item"});

TABLE_TEST(InventoryMissing, RaisesAndLeavesTextsAndButton) {
  startDialog();
  session().pick("Base");
  const std::string appearanceBefore = appearanceText();
  const std::string materialBefore = materialText();
  letGoSilently();
  // Something to remove, which the button does not show yet.
  occurrence("Frame:1").appearance = look("Blue");
  answerNothingAt(row());
  pickRoot();
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), appearanceBefore);
  EXPECT_EQ(materialText(), materialBefore);
  EXPECT_FALSE(isRemoveEnabled());
}

class InventoryOfImpostor : public InventoryTest, public WithRow<const char*> {};

TABLE(Classes, InventoryOfImpostor, byText,
      {adsk::fusion::Occurrence::classType(), adsk::fusion::Component::classType(), adsk::fusion::BRepBody::classType(),
       adsk::fusion::BRepFace::classType()});

TABLE_TEST(InventoryOfImpostor, Raises) {
  load();
  EXPECT_THROW(tintora::collectAppliedAppearances({makeObject<Impostor>(row())}), std::exception);
}

}  // namespace
}  // namespace tests
