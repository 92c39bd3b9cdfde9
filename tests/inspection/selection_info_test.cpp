// The refresh after each change of the selection: the two texts, one for several things picked, and the remove button.
#include "inspection/selection_info.h"

#include "tests/inspection/inspection_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::model::makeMaterial;

constexpr const char* untouchedText = "<b>Steel - Satin</b> - appearance by assigned material.";

class SelectionInfo : public InspectionTest {
 protected:
  std::shared_ptr<const headless::model::Material> brass() {
    return makeMaterial("Brass", 8500, headless::model::defaultMaterial()->appearance);
  }
};

TEST_F(SelectionInfo, TwoAlikeShowTheirCommonTexts) {
  startDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(appearanceText(), untouchedText);
  EXPECT_EQ(materialText(), steelText);
}

TEST_F(SelectionInfo, ThirdThatDiffersMakesThemVarious) {
  start();
  body("Bolt", "Head").appearance = look("Red");
  openDialog();
  pickAll({"Base", "Bolt:2/Shank"});
  EXPECT_EQ(appearanceText(), untouchedText);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(appearanceText(), "Various");
  EXPECT_EQ(materialText(), steelText);
}

TEST_F(SelectionInfo, SameNameFromAnotherSourceIsVarious) {
  start();
  body("Machine", "Base").appearance = look("Red");
  occurrence("Bolt:2").appearance = look("Red");
  openDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(appearanceText(), "Various");
}

TEST_F(SelectionInfo, TextsAreComparedToTheLetter) {
  start();
  body("Machine", "Base").appearance = look("Red");
  body("Bolt", "Head").appearance = look("red");
  openDialog();
  pickAll({"Base", "Bolt:2/Head"});
  EXPECT_EQ(appearanceText(), "Various");
}

TEST_F(SelectionInfo, LettingGoOfTheOneThatDiffersBringsTheCommonTextBack) {
  start();
  body("Bolt", "Head").appearance = look("Red");
  openDialog();
  pickAll({"Base", "Bolt:2/Head", "Bolt:2/Shank"});
  ASSERT_EQ(appearanceText(), "Various");
  session().pick("Bolt:2/Head");
  EXPECT_EQ(appearanceText(), untouchedText);
}

TEST_F(SelectionInfo, OccurrencesThatInheritTheSameShowOneText) {
  start();
  occurrence("Frame:1").appearance = look("Blue");
  openDialog();
  pickOnly("Component");
  pickAll({"Frame:1+Plate:1", "Frame:1+Bolt:1"});
  EXPECT_EQ(appearanceText(), "<b>Blue</b> - appearance by some parent occurence");
}

TEST_F(SelectionInfo, OccurrencesThatDifferAreVarious) {
  start();
  occurrence("Frame:1").appearance = look("Blue");
  openDialog();
  pickOnly("Component");
  pickAll({"Frame:1+Plate:1", "Bolt:2"});
  EXPECT_EQ(appearanceText(), "Various");
}

TEST_F(SelectionInfo, AppearancesAreAskedForNoFurtherThanTheFirstDifference) {
  start();
  occurrence("Bolt:2").appearance = look("Blue");
  openDialog();
  pickAll({"Base", "Frame:1+Plate:1/Plate1", "Bolt:2/Head", "Bolt:2/Shank"});
  startCounting();
  session().pick("Frame:2+Plate:1/Plate1");
  // None of the bodies is painted itself, so that only the texts ask for appearances.
  EXPECT_EQ(callsOf("BRepBody.appearance"), 3U);
  // The materials are all alike: each is asked for.
  EXPECT_EQ(callsOf("BRepBody.material"), 5U);
  EXPECT_EQ(appearanceText(), "Various");
}

TEST_F(SelectionInfo, MaterialsAreAskedForNoFurtherThanTheFirstDifference) {
  start();
  body("Plate", "Plate1").material = makeMaterial("Brass", 8500, headless::model::defaultMaterial()->appearance);
  openDialog();
  pickAll({"Base", "Frame:1+Plate:1/Plate1", "Bolt:2/Head"});
  startCounting();
  session().pick("Bolt:2/Shank");
  EXPECT_EQ(callsOf("BRepBody.material"), 2U);
  EXPECT_EQ(callsOf("BRepBody.appearance"), 4U);
  EXPECT_EQ(materialText(), "Physical material: Various");
}

TEST_F(SelectionInfo, DifferenceIsToTheFirstAndNotToTheOneBefore) {
  start();
  body("Bolt", "Head").material = brass();
  body("Bolt", "Shank").material = brass();
  openDialog();
  pickAll({"Base", "Bolt:2/Head", "Bolt:2/Shank"});
  EXPECT_EQ(materialText(), "Physical material: Various");
}

TEST_F(SelectionInfo, ClearingEmptiesBothTextsAndDisablesRemove) {
  start();
  body("Machine", "Base").appearance = look("Red");
  openDialog();
  session().pick("Base");
  ASSERT_TRUE(isRemoveEnabled());
  session().clearPicks();
  EXPECT_EQ(appearanceText(), "");
  EXPECT_EQ(materialText(), "");
  EXPECT_FALSE(isRemoveEnabled());
}

TEST_F(SelectionInfo, LettingGoOfTheLastEmptiesToo) {
  startDialog();
  session().pick("Base");
  session().pick("Base");
  EXPECT_EQ(appearanceText(), "");
  EXPECT_EQ(materialText(), "");
}

TEST_F(SelectionInfo, TextsAreEmptiedAsPlainTextAndWrittenAsFormattedText) {
  startDialog();
  startCounting();
  session().pick("Base");
  EXPECT_EQ(callsOf("TextBoxCommandInput.formattedText="), 2U);
  EXPECT_EQ(callsOf("TextBoxCommandInput.text="), 0U);
  startCounting();
  session().clearPicks();
  EXPECT_EQ(callsOf("TextBoxCommandInput.formattedText="), 0U);
  EXPECT_EQ(callsOf("TextBoxCommandInput.text="), 2U);
}

TEST_F(SelectionInfo, NothingIsDescribedWithoutSelection) {
  startDialog();
  session().pick("Base");
  startCounting();
  session().clearPicks();
  EXPECT_EQ(callsOf("SelectionCommandInput.selection"), 0U);
  EXPECT_EQ(callsOf("BRepBody.appearance"), 0U);
}

class SelectionInfoWithGaps : public SelectionInfo {
 protected:
  /// Base, and behind it a brass body under a painted occurrence.
  void startWithTwoPicked() {
    start();
    occurrence("Bolt:2").appearance = look("Blue");
    body("Bolt", "Head").material = brass();
    openDialog();
    pickAll({"Base", "Bolt:2/Shank"});
    letGoSilently();
    session().pick("Base");
    ASSERT_EQ(appearanceText(), untouchedText);
  }
  // The inventory takes each entity once, then the first is looked at, then come the two texts.
  static constexpr std::size_t firstLook = 3;
};

TEST_F(SelectionInfoWithGaps, EmptyFirstEntityLeavesTheTexts) {
  startWithTwoPicked();
  answerNothingAt("Selection.entity", firstLook);
  session().pick("Bolt:2/Head");
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(appearanceText(), untouchedText);
  EXPECT_EQ(materialText(), steelText);
}

TEST_F(SelectionInfoWithGaps, EmptyEntityIsPassedOverInTheAppearances) {
  startWithTwoPicked();
  answerNothingAt("Selection.entity", firstLook + 1);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(appearanceText(), "<b>Blue</b> - appearance by some parent occurence.");
  EXPECT_EQ(materialText(), "Physical material: Various");
}

TEST_F(SelectionInfoWithGaps, EmptyEntityIsPassedOverInTheMaterials) {
  startWithTwoPicked();
  answerNothingAt("Selection.entity", firstLook + 3);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(appearanceText(), "Various");
  EXPECT_EQ(materialText(), "Physical material: <b>Brass</b>;  Density: 8500 kg.m<sup>-3</sup>");
}

TEST_F(SelectionInfoWithGaps, EmptyEntityEndsTheInventory) {
  startWithTwoPicked();
  answerNothingAt("Selection.entity", 1);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), untouchedText);
  EXPECT_EQ(materialText(), steelText);
}

TEST_F(SelectionInfoWithGaps, MissingSelectionRaises) {
  startWithTwoPicked();
  answerNothingAt("SelectionCommandInput.selection", 1);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), untouchedText);
}

TEST_F(SelectionInfo, RemoveIsDecidedBeforeTheTextsAreWorkedOut) {
  start();
  body("Bolt", "Head").appearance = look("Red");
  openDialog();
  session().pick("Base");
  letGoSilently();
  ASSERT_FALSE(isRemoveEnabled());
  // The inventory asks for the painted body's appearance first.
  answerNothingAt("BRepBody.appearance", 2);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_TRUE(isRemoveEnabled());
  EXPECT_EQ(appearanceText(), untouchedText);
}

TEST_F(SelectionInfo, AppearanceTextWaitsForTheMaterialText) {
  start();
  body("Bolt", "Head").appearance = look("Red");
  openDialog();
  session().pick("Base");
  letGoSilently();
  answerNothingAt("BRepBody.material");
  session().pick("Bolt:2/Head");
  EXPECT_EQ(takeErrorKinds(), nullAccess);
  EXPECT_EQ(appearanceText(), untouchedText);
}

TEST_F(SelectionInfo, RecoversAtTheNextPick) {
  startDialog();
  answerNothingAt("BRepBody.appearance");
  session().pick("Base");
  ASSERT_EQ(takeErrorKinds(), nullAccess);
  session().pick("Bolt:2/Head");
  EXPECT_EQ(appearanceText(), untouchedText);
  EXPECT_EQ(materialText(), steelText);
}

class SelectionInfoRoutine : public LinkedInspectionTest {
 protected:
  void SetUp() override {
    startDialog();
    bindGlobals();
    session().pick("Base");
  }
};

TEST_F(SelectionInfoRoutine, NoSelectionInputRaises) {
  tintora::selectionInput = nullptr;
  EXPECT_THROW(tintora::updateSelectionInfo(), std::exception);
  EXPECT_THROW(tintora::selectedEntities(), std::exception);
}

TEST_F(SelectionInfoRoutine, NoRemoveButtonRaisesBeforeTheTexts) {
  tintora::removeAppearanceButton = nullptr;
  body("Machine", "Base").appearance = look("Red");
  EXPECT_THROW(tintora::updateSelectionInfo(), std::exception);
  EXPECT_EQ(appearanceText(), untouchedText);
}

TEST_F(SelectionInfoRoutine, NoMaterialTextBoxRaisesAfterTheAppearanceText) {
  tintora::actMaterialInput = nullptr;
  body("Machine", "Base").appearance = look("Red");
  EXPECT_THROW(tintora::updateSelectionInfo(), std::exception);
  EXPECT_EQ(appearanceText(), "<b>Red</b> - overriden appearance.");
}

TEST_F(SelectionInfoRoutine, EntitiesComeInTheOrderOfPicking) {
  pickAll({"Bolt:2/Shank", "Bolt:2/Head"});
  std::vector<std::string> names;
  for (const Entity& entity : tintora::selectedEntities()) {
    names.push_back(adsk::core::Ptr<adsk::fusion::BRepBody>(entity)->name());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Base", "Shank", "Head"}));
}

class SelectionInfoUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(SelectionInfoUnderProfile);

TABLE_TEST(SelectionInfoUnderProfile, FollowsThePicks) {
  start(profile());
  body("Bolt", "Head").appearance = look("Red");
  openDialog();
  session().pick("Base");
  EXPECT_EQ(markup("idActAppearance"), untouchedText);
  EXPECT_FALSE(isEnabled("idRemoveAssignAppearance"));
  session().pick("Bolt:2/Head");
  EXPECT_EQ(markup("idActAppearance"), "Various");
  EXPECT_EQ(markup("idActMaterial"), steelText);
  EXPECT_TRUE(isEnabled("idRemoveAssignAppearance"));
  session().pick("Base");
  EXPECT_EQ(markup("idActAppearance"), "<b>Red</b> - overriden appearance.");
  session().clearPicks();
  EXPECT_EQ(markup("idActAppearance"), "");
  EXPECT_EQ(markup("idActMaterial"), "");
  EXPECT_FALSE(isEnabled("idRemoveAssignAppearance"));
}

}  // namespace
}  // namespace tests
