// What the dialog says about where the selection's appearance comes from. The spelling is the product's own.
#include "inspection/appearance_source.h"

#include "tests/inspection/inspection_fixture.h"
#include "tests/inspection/nested_design.h"
#include "tests/inspection/stand_ins.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using adsk::core::Ptr;
using headless::makeObject;

constexpr const char* rootText =
    "The root component has been selected. Fusion 360 does not support changing the appearance of the root component "
    "using the API.";

struct SourceCase {
  int code;
  const char* filter;
  const char* words;
};

std::string nameOfCase(const SourceCase& source) {
  return "Code" + std::to_string(source.code) + "While" + source.filter + "sArePicked";
}

std::vector<SourceCase> sourceCases() {
  std::vector<SourceCase> cases;
  for (const char* filter : {"Component", "Body", "Face"}) {
    const bool isFace = std::string(filter) == "Face";
    cases.push_back({0, filter, "appearance by assigned material."});
    cases.push_back({1, filter, isFace ? "appearance by parent body." : "overriden appearance."});
    cases.push_back({2, filter, "appearance by some parent occurence."});
    cases.push_back({3, filter, "overriden appearance."});
    cases.push_back({4, filter, "overriden appearance."});
    cases.push_back({5, filter, ""});
    cases.push_back({7, filter, ""});
  }
  return cases;
}

class AppearanceSourceCode : public InspectionTest, public WithRow<SourceCase> {
 protected:
  void SetUp() override {
    startDialog();
    pickOnly(row().filter);
  }
  std::string expected() const { return std::string("<b>Red</b> - ") + row().words; }
};

TABLE(AllCodes, AppearanceSourceCode, nameOfCase, sourceCases());

TABLE_TEST(AppearanceSourceCode, OfABodyInWords) {
  const auto body = makeObject<StandInBody>();
  body->shown = handleOf(look("Red"));
  body->source = row().code;
  body->madeOf = handleOf(headless::model::defaultMaterial());
  body->faceList = entities().body(this->body("Plate", "Plate1"), nullptr)->faces();
  pickUnfiltered(body);
  EXPECT_EQ(appearanceText(), expected());
}

TABLE_TEST(AppearanceSourceCode, OfAFaceInWords) {
  const auto face = makeObject<StandInFace>();
  face->shown = handleOf(look("Red"));
  face->source = row().code;
  face->owner = entities().body(body("Plate", "Plate1"), nullptr);
  pickUnfiltered(face);
  EXPECT_EQ(appearanceText(), expected());
}

class AppearanceSource : public InspectionTest {};

TEST_F(AppearanceSource, OfAnUntouchedBodyIsItsMaterial) {
  startDialog();
  session().pick("Base");
  EXPECT_EQ(appearanceText(), "<b>Steel - Satin</b> - appearance by assigned material.");
}

TEST_F(AppearanceSource, OfAPaintedBodyIsItself) {
  start();
  body("Plate", "Plate1").appearance = look("Red");
  openDialog();
  session().pick("Frame:1+Plate:1/Plate1");
  EXPECT_EQ(appearanceText(), "<b>Red</b> - overriden appearance.");
}

TEST_F(AppearanceSource, OfABodyUnderAPaintedOccurrenceIsSomeParent) {
  start();
  occurrence("Frame:1").appearance = look("Blue");
  openDialog();
  session().pick("Frame:1+Plate:1/Plate1");
  EXPECT_EQ(appearanceText(), "<b>Blue</b> - appearance by some parent occurence.");
}

TEST_F(AppearanceSource, OfAPaintedFaceIsItself) {
  start();
  body("Plate", "Plate1").faces[1]->appearance = look("Green");
  openDialog();
  pickOnly("Face");
  session().pick("Frame:1+Plate:1/Plate1/Face2");
  EXPECT_EQ(appearanceText(), "<b>Green</b> - overriden appearance.");
}

TEST_F(AppearanceSource, OfAnUntouchedFaceIsWhatTheLevelAboveGives) {
  start();
  openDialog();
  pickOnly("Face");
  session().pick("Base/Face1");
  EXPECT_EQ(appearanceText(), "<b>Steel - Satin</b> - appearance by assigned material.");
  session().clearPicks();

  occurrence("Frame:1+Plate:1").appearance = look("Blue");
  session().pick("Frame:1+Plate:1/Plate1/Face1");
  EXPECT_EQ(appearanceText(), "<b>Blue</b> - appearance by some parent occurence.");
  session().clearPicks();

  body("Plate", "Plate1").appearance = look("Red");
  session().pick("Frame:1+Plate:1/Plate1/Face1");
  EXPECT_EQ(appearanceText(), "<b>Red</b> - appearance by parent body.");
}

TEST_F(AppearanceSource, NameIsShownAsItIs) {
  start();
  body("Machine", "Base").appearance = look("<i>Käse & Wein</i>");
  openDialog();
  session().pick("Base");
  EXPECT_EQ(appearanceText(), "<b><i>Käse & Wein</i></b> - overriden appearance.");
}

TEST_F(AppearanceSource, MayHaveNoName) {
  start();
  body("Machine", "Base").appearance = look("");
  openDialog();
  session().pick("Base");
  EXPECT_EQ(appearanceText(), "<b></b> - overriden appearance.");
}

TEST_F(AppearanceSource, FilterRowIsAskedForCodeOneOnly) {
  start();
  openDialog();
  startCounting();
  session().pick("Base");
  EXPECT_EQ(callsOf("ButtonRowCommandInput.selectedItem"), 0U);
  session().clearPicks();
  body("Machine", "Base").appearance = look("Red");
  startCounting();
  session().pick("Base");
  EXPECT_EQ(callsOf("ButtonRowCommandInput.selectedItem"), 1U);
}

TEST_F(AppearanceSource, IsReadWithoutChangingTheDesign) {
  start();
  body("Machine", "Base").appearance = look("Red");
  openDialog();
  const std::size_t revision = history().revision();
  session().pick("Base");
  EXPECT_EQ(history().revision(), revision);
}

TEST_F(AppearanceSource, OfTheRootComponentIsNotSupported) {
  start();
  occurrence("Frame:1").appearance = look("Blue");
  body("Machine", "Base").appearance = look("Red");
  openDialog();
  pickRoot();
  EXPECT_EQ(appearanceText(), rootText);
}

TEST_F(AppearanceSource, OfAnyOtherComponentReadsTheSame) {
  startDialog();
  pickComponent(componentNamed(design(), "Plate"));
  EXPECT_EQ(appearanceText(), rootText);
}

struct MissingCase {
  const char* name;
  const char* filter;
  const char* picked;
  const char* call;
  std::size_t nth;
};

class AppearanceSourceMissing : public InspectionTest, public WithRow<MissingCase> {};

TABLE(Handles, AppearanceSourceMissing, byName,
      {{"AppearanceOfABody", "Body", "A:1+B:1/Body1", "BRepBody.appearance", 1},
       // The first is asked for by the inventory, as the body is painted.
       {"AppearanceOfAPaintedBody", "Body", "A:1+B:1+C:1/Body1", "BRepBody.appearance", 2},
       {"AppearanceOfAFace", "Face", "A:1+B:1/Body1/Face1", "BRepFace.appearance", 1},
       {"ParentOfThatName", "Component", "A:1+B:1", "OccurrenceList.itemByName", 1},
       {"ListOfAllOccurrences", "Component", "A:1+B:1", "Component.allOccurrences", 1},
       {"ChosenFilterItemForCodeOne", "Body", "A:1+B:1+C:1/Body1", "ButtonRowCommandInput.selectedItem", 1}});

TABLE_TEST(AppearanceSourceMissing, RaisesAndLeavesTheTexts) {
  start(nestedDesign());
  occurrence("A:1").appearance = look("A");
  body("C", "Body1").appearance = look("Red");
  openDialog();
  pickOnly(row().filter);
  session().pick(row().picked);
  const std::string appearanceBefore = appearanceText();
  const std::string materialBefore = materialText();
  ASSERT_NE(appearanceBefore, "");
  letGoSilently();
  answerNothingAt(row().call, row().nth);
  session().pick(row().picked);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), appearanceBefore);
  EXPECT_EQ(materialText(), materialBefore);
}

class AppearanceSourceOfImpostor : public InspectionTest, public WithRow<const char*> {};

TABLE(Classes, AppearanceSourceOfImpostor, byText,
      {adsk::fusion::Occurrence::classType(), adsk::fusion::Component::classType(), adsk::fusion::BRepBody::classType(),
       adsk::fusion::BRepFace::classType()});

TABLE_TEST(AppearanceSourceOfImpostor, RaisesAndLeavesTheTexts) {
  startDialog();
  session().pick("Base");
  const std::string before = appearanceText();
  pickUnfiltered(makeObject<Impostor>(row()));
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), before);
}

class AppearanceSourceRoutines : public LinkedInspectionTest {
 protected:
  void SetUp() override {
    start(nestedDesign());
    openDialog();
    bindGlobals();
  }
};

TEST_F(AppearanceSourceRoutines, OtherClassHasNeitherNameNorSource) {
  EXPECT_EQ(tintora::describeAppearanceSource(handleOf(look("Red"))), "<b></b> - ");
}

TEST_F(AppearanceSourceRoutines, NoEntityRaises) {
  EXPECT_THROW(tintora::describeAppearanceSource({}), std::exception);
}

TEST_F(AppearanceSourceRoutines, CodeOneRaisesWithoutAFilterRowAndOthersDoNot) {
  tintora::filterSelectInput = nullptr;
  EXPECT_THROW(tintora::appearanceSourceText(adsk::core::BodyAppearanceSource), std::exception);
  EXPECT_EQ(tintora::appearanceSourceText(adsk::core::FaceAppearanceSource), "overriden appearance.");
  EXPECT_EQ(tintora::appearanceSourceText(adsk::core::MaterialAppearanceSource), "appearance by assigned material.");
}

TEST_F(AppearanceSourceRoutines, EmptyPathHasNoParents) {
  EXPECT_EQ(tintora::findParentOccurrenceAppearance(""), "");
}

TEST_F(AppearanceSourceRoutines, LastNameOfAPathIsNeverLookedUp) {
  occurrence("A:1").appearance = look("A");
  EXPECT_EQ(tintora::findParentOccurrenceAppearance("A:1"), "");
  EXPECT_EQ(tintora::findParentOccurrenceAppearance("A:1+no such name"),
            "<b>A</b> - appearance by some parent occurence");
}

TEST_F(AppearanceSourceRoutines, UnknownParentRaises) {
  EXPECT_THROW(tintora::findParentOccurrenceAppearance("no such name+B:1"), std::exception);
}

TEST_F(AppearanceSourceRoutines, NoApplicationRaises) {
  tintora::appHandle = nullptr;
  EXPECT_THROW(tintora::findParentOccurrenceAppearance("A:1+B:1"), std::exception);
}

}  // namespace
}  // namespace tests
