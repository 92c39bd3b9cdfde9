// Apply: what is saved, what is looked up, in which order things are assigned, and what gets the material.
#include "interaction/assignment.h"

#include "shell/globals.h"
#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/linked_dialog.h"
#include "tests/support/linked_module_path.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::Fault;
using headless::FaultAnswer;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr const char* foam = "Foam";

class Assignment : public AddInTest {
 protected:
  /// Opens the dialog and chooses the red appearance and the material "Foam".
  void openAndChoose(headless::Profile profile = usualProfile()) {
    start(std::move(profile));
    openDialogAndChoose();
  }

  void openDialogAndChoose() {
    openDialog();
    session().choose("idAppearanceList", red);
    session().choose("idMaterialList", foam);
  }

  Lines editsOfApply() {
    return editsIn(traceOf(session(), [&] { session().click("idBtnApply"); }));
  }

  std::string materialOf(const headless::model::Body& body) const { return body.material->name; }
};

// What is saved and collected.

TEST_F(Assignment, SavesTheChoicesBeforeAnythingIsAssigned) {
  openAndChoose();
  session().pick("Base");
  host().gate().setFault({1, FaultAnswer::Exception, "BRepBody.material="});
  session().click("idBtnApply");
  EXPECT_THAT(takeErrorKinds(), ElementsAre("std::runtime_error"));
  ASSERT_TRUE(folder.has(settingsFile()));
  EXPECT_THAT(folder.read(settingsFile()), AllOf(HasSubstr(red), HasSubstr(foam)));
}

TEST_F(Assignment, SavesTheChoicesBeforeTheSelectionIsRead) {
  openAndChoose();
  session().pick("Base");
  host().gate().setFault({1, FaultAnswer::Exception, "SelectionCommandInput.selectionCount"});
  session().click("idBtnApply");
  EXPECT_THAT(takeErrorKinds(), ElementsAre("std::runtime_error"));
  EXPECT_TRUE(folder.has(settingsFile()));
}

TEST_F(Assignment, OnlySavesTheChoicesWhenNothingIsSelected) {
  openAndChoose();
  session().type("idFilterMaterial", foam);
  const Lines reaction = reactionTo("idBtnApply", traceOf(session(), [&] { session().click("idBtnApply"); }));
  EXPECT_THAT(folder.read(settingsFile()), HasSubstr(red));
  EXPECT_THAT(containing("MaterialLibrar", reaction), IsEmpty());
  EXPECT_EQ(reaction.back(), "Command(idAssetsMatMng).doExecute(false) -> true");
  EXPECT_THAT(history().undoSteps(), IsEmpty());
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(Assignment, OnlySavesTheChoicesWhenBothGroupsAreClosed) {
  openAndChoose();
  session().pick("Base");
  session().expand("idGroupAppearance", false);
  session().expand("idGroupMaterial", false);
  const Lines trace = traceOf(session(), [&] { raiseChangeOf(session(), "idBtnApply"); });
  EXPECT_TRUE(folder.has(settingsFile()));
  EXPECT_THAT(editsIn(trace), IsEmpty());
  EXPECT_THAT(containing("MaterialLibrar", trace), IsEmpty());
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

TEST_F(Assignment, KeepsWhatWasAssignedBeforeAnErrorUntilTheCommandIsCancelled) {
  openAndChoose();
  pickAll(session(), "Body", {"Base", "Bolt:2/Head"});
  host().gate().setFault({2, FaultAnswer::Exception, "BRepBody.material="});
  session().click("idBtnApply");
  EXPECT_THAT(takeErrorKinds(), ElementsAre("std::runtime_error"));
  EXPECT_EQ(materialOf(body("Machine", "Base")), foam);
  EXPECT_EQ(materialOf(body("Bolt", "Head")), "Steel");
  EXPECT_THAT(history().undoSteps(), IsEmpty());
  session().pressCancel();
  EXPECT_EQ(materialOf(body("Machine", "Base")), "Steel");
}

// The order.

TEST_F(Assignment, AssignsTheMaterialThenClearsThenAssignsTheAppearance) {
  openAndChoose();
  session().pick("Base");
  EXPECT_THAT(editsOfApply(), ElementsAre(materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)"),
                                          lookSet("BRepBody(Base)", red)));
  EXPECT_EQ(materialOf(body("Machine", "Base")), foam);
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
}

TEST_F(Assignment, TakesTheEntitiesInTheOrderInWhichTheyWerePicked) {
  openAndChoose();
  pickAll(session(), "Body", {"Bolt:2/Head", "Base"});
  EXPECT_THAT(editsOfApply(),
              ElementsAre(materialSet("BRepBody(Bolt:2+Head)", foam), lookCleared("BRepBody(Bolt:2+Head)"),
                          materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)"),
                          lookSet("BRepBody(Bolt:2+Head)", red), lookSet("BRepBody(Base)", red)));
}

TEST_F(Assignment, AssignsOnlyTheAppearanceWhileTheMaterialGroupIsClosed) {
  openAndChoose();
  session().pick("Base");
  assignAppearancesOnly(session());
  EXPECT_THAT(editsOfApply(), ElementsAre(lookSet("BRepBody(Base)", red)));
}

TEST_F(Assignment, AssignsOnlyTheMaterialWhileTheAppearanceGroupIsClosed) {
  openAndChoose();
  session().pick("Base");
  assignMaterialsOnly(session());
  EXPECT_THAT(editsOfApply(), ElementsAre(materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)")));
}

TEST_F(Assignment, IsNotAffectedByTheHeaderBoxes) {
  openAndChoose();
  session().pick("Base");
  const auto inputs = host().ui().runner().active()->commandInputs();
  for (const char* id : {"idGroupAppearance", "idGroupMaterial"}) {
    const adsk::core::Ptr<adsk::core::GroupCommandInput> group = inputs->itemById(id);
    group->isEnabledCheckBoxChecked(false);
  }
  EXPECT_EQ(editsOfApply().size(), 3U);
}

// The material, by kind of entity.

class MaterialAssignment : public Assignment {
 protected:
  void openForMaterial() {
    openAndChoose();
    assignMaterialsOnly(session());
  }
};

TEST_F(MaterialAssignment, OfAFaceGoesToItsBodyAndClearsTheBodysLook) {
  openForMaterial();
  headless::model::Body& head = body("Bolt", "Head");
  head.faces[0]->appearance = look("Face paint");
  session().choose("idFilterSelect", "Face");
  session().pick("Bolt:2/Head/Face1");
  // Given after the selection was described, so that nothing puts it back.
  head.appearance = look("Body paint");
  const Lines edits = editsOfApply();
  ASSERT_GE(edits.size(), 2U);
  EXPECT_EQ(edits[0], materialSet("BRepBody(Bolt:2+Head)", foam));
  EXPECT_EQ(edits[1], lookCleared("BRepBody(Bolt:2+Head)"));
  EXPECT_EQ(materialOf(head), foam);
  EXPECT_EQ(ownLook(head), "");
  EXPECT_EQ(ownLook(*head.faces[0]), "Face paint");
}

TEST_F(MaterialAssignment, OfTwoFacesOfABodyIsDoneTwice) {
  openForMaterial();
  pickAll(session(), "Face", {"Base/Face1", "Base/Face2"});
  EXPECT_THAT(editsOfApply(), ElementsAre(materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)"),
                                          materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)")));
}

TEST_F(MaterialAssignment, OfABodyClearsItsLookAndLeavesItsFaces) {
  openForMaterial();
  body("Machine", "Base").faces[1]->appearance = look("Face paint");
  session().pick("Base");
  body("Machine", "Base").appearance = look("Body paint");
  session().click("idBtnApply");
  EXPECT_EQ(materialOf(body("Machine", "Base")), foam);
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
  EXPECT_EQ(ownLook(*body("Machine", "Base").faces[1]), "Face paint");
}

class ClearingWithTheMaterial : public MaterialAssignment, public WithRow<bool> {};

TABLE(CheckBox, ClearingWithTheMaterial, [](const auto& row) { return row ? "Ticked" : "Unticked"; }, {false, true});

TABLE_TEST(ClearingWithTheMaterial, HappensWhateverTheCheckBoxSays) {
  openForMaterial();
  session().tick("idKeepAppearance", row());
  session().pick("Base");
  EXPECT_THAT(editsOfApply(), ElementsAre(materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)")));
}

TEST_F(MaterialAssignment, OfAnOccurrenceGoesToBodiesThenChildrenThenItsComponent) {
  start(chainDesign(3));
  openDialogAndChoose();
  assignMaterialsOnly(session());
  pickAll(session(), "Component", {"Link1:1"});
  const std::string outer = "BRepBody(Link1:1+Body1)";
  const std::string middle = "BRepBody(Link1:1+Link2:1+Body1)";
  const std::string inner = "BRepBody(Link1:1+Link2:1+Link3:1+Body1)";
  EXPECT_THAT(editsOfApply(),
              ElementsAre(materialSet(outer, foam), lookCleared(outer), materialSet(middle, foam), lookCleared(middle),
                          materialSet(inner, foam), lookCleared(inner), materialSet("Component(Link3)", foam),
                          materialSet("Component(Link2)", foam), materialSet("Component(Link1)", foam)));
}

TEST_F(MaterialAssignment, OfAnOccurrenceTakesChildrenAndBodiesInTheirOrder) {
  openForMaterial();
  pickAll(session(), "Component", {"Frame:1"});
  const std::string plate = "BRepBody(Frame:1+Plate:1+Plate1)";
  const std::string shank = "BRepBody(Frame:1+Bolt:1+Shank)";
  const std::string head = "BRepBody(Frame:1+Bolt:1+Head)";
  EXPECT_THAT(editsOfApply(),
              ElementsAre(materialSet(plate, foam), lookCleared(plate), materialSet("Component(Plate)", foam),
                          materialSet(shank, foam), lookCleared(shank), materialSet(head, foam), lookCleared(head),
                          materialSet("Component(Bolt)", foam), materialSet("Component(Frame)", foam)));
}

TEST_F(MaterialAssignment, OfAnOccurrenceLeavesTheLooksOfOccurrences) {
  openForMaterial();
  pickAll(session(), "Component", {"Frame:1"});
  occurrence("Frame:1").appearance = look("Frame paint");
  occurrence("Frame:1+Bolt:1").appearance = look("Bolt paint");
  EXPECT_THAT(containing("Occurrence(", editsOfApply()), IsEmpty());
  EXPECT_EQ(ownLook(occurrence("Frame:1")), "Frame paint");
  EXPECT_EQ(ownLook(occurrence("Frame:1+Bolt:1")), "Bolt paint");
}

TEST_F(MaterialAssignment, OfTheRootComponentGoesToAllOccurrencesThenToTheRoot) {
  openForMaterial();
  pickComponent(session(), design().root());
  const Lines edits = editsOfApply();
  EXPECT_THAT(containing("Component(", edits),
              ElementsAre(materialSet("Component(Plate)", foam), materialSet("Component(Bolt)", foam),
                          materialSet("Component(Frame)", foam), materialSet("Component(Plate)", foam),
                          materialSet("Component(Bolt)", foam), materialSet("Component(Frame)", foam),
                          materialSet("Component(Bolt)", foam), materialSet("Component(Machine)", foam)));
  EXPECT_EQ(edits.front(), materialSet("BRepBody(Frame:1+Plate:1+Plate1)", foam));
  EXPECT_EQ(edits.back(), materialSet("Component(Machine)", foam));
  // The bodies of the root itself get it from the root.
  EXPECT_THAT(containing("BRepBody(Base)", edits), IsEmpty());
  EXPECT_EQ(materialOf(body("Machine", "Base")), foam);
}

TEST_F(MaterialAssignment, OfAnyComponentIsTheSameAsOfTheRoot) {
  openForMaterial();
  pickComponent(session(), design().root());
  const Lines ofRoot = editsOfApply();
  session().undo();
  pickComponent(session(), componentNamed(design(), "Bolt"));
  EXPECT_EQ(editsOfApply(), ofRoot);
}

/// A link that the host does not return while the material goes to "Frame:1", and what was assigned before.
struct LinkForMaterial {
  const char* name;
  Fault fault;
  Lines edits;
};

const std::string plateBody = "BRepBody(Frame:1+Plate:1+Plate1)";
const Lines plateBodyOnly = {materialSet(plateBody, foam), lookCleared(plateBody)};
const Lines plateOnly = {materialSet(plateBody, foam), lookCleared(plateBody), materialSet("Component(Plate)", foam)};

class MissingForMaterial : public MaterialAssignment, public WithRow<LinkForMaterial> {};

TABLE(Links, MissingForMaterial, byName,
      {{"Children", {2, FaultAnswer::Nothing, "Occurrence.childOccurrences"}, plateBodyOnly},
       {"Child", {2, FaultAnswer::Nothing, "OccurrenceList.item"}, plateOnly},
       {"Bodies", {2, FaultAnswer::Nothing, "Occurrence.bRepBodies"}, {}},
       {"Body", {2, FaultAnswer::Nothing, "BRepBodies.item"}, plateOnly},
       {"Component", {1, FaultAnswer::Nothing, "Occurrence.component"}, plateBodyOnly}});

TABLE_TEST(MissingForMaterial, RaisesAndKeepsWhatWasAssignedBefore) {
  openForMaterial();
  pickAll(session(), "Component", {"Frame:1"});
  host().gate().setFault(row().fault);
  EXPECT_EQ(editsOfApply(), row().edits);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idBtnApply): std::exception:")));
  EXPECT_THAT(history().undoSteps(), IsEmpty());
}

/// What a picked component is taken for is looked up, and may be missing.
class MissingForComponent : public MaterialAssignment, public WithRow<const char*> {};

TABLE(Calls, MissingForComponent, byText,
      {"Application.activeProduct", "Design.rootComponent", "Component.occurrences"});

TABLE_TEST(MissingForComponent, RaisesAndAssignsNothing) {
  openForMaterial();
  pickComponent(session(), design().root());
  host().gate().setFault({1, FaultAnswer::Nothing, row()});
  EXPECT_THAT(editsOfApply(), IsEmpty());
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idBtnApply): std::exception:")));
  EXPECT_TRUE(isEnabled("idBtnApply"));
}

TEST_F(Assignment, OfAnAppearanceToAComponentRaisesWithoutAnActiveDesign) {
  openAndChoose();
  assignAppearancesOnly(session());
  pickComponent(session(), design().root());
  host().gate().setFault({1, FaultAnswer::Nothing, "Application.activeProduct"});
  EXPECT_THAT(editsOfApply(), IsEmpty());
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idBtnApply): std::exception:")));
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_F(Assignment, ToAnyOtherKindOfEntityDoesNothing) {
  openAndChoose();
  pickAnotherKind(session());
  EXPECT_THAT(editsOfApply(), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(Assignment, GoesOnAfterAnyOtherKindOfEntity) {
  openAndChoose();
  pickAnotherKind(session());
  session().pick("Base");
  EXPECT_THAT(editsOfApply(), ElementsAre(materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)"),
                                          lookSet("BRepBody(Base)", red)));
}

class LinkedAssignment : public MaterialAssignment {
 protected:
  void openWithPaintedBasePicked() {
    openForMaterial();
    body("Machine", "Base").appearance = look("Paint");
    session().pick("Base");
  }
};

TEST_F(LinkedAssignment, ClearsTheLookWhereTheCheckBoxIsThere) {
  openWithPaintedBasePicked();
  const LinkedDialog dialog(host());
  const LinkedModulePath path(folder.module());
  tintora::applyToSelection();
  EXPECT_EQ(materialOf(body("Machine", "Base")), foam);
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
}

TEST_F(LinkedAssignment, WithoutTheCheckBoxLeavesTheLookAndRaisesWhereItIsAskedForItsValue) {
  openWithPaintedBasePicked();
  const LinkedDialog dialog(host());
  const LinkedModulePath path(folder.module());
  tintora::keepAppearanceInput = nullptr;
  EXPECT_THROW(tintora::applyToSelection(), std::exception);
  EXPECT_EQ(materialOf(body("Machine", "Base")), foam);
  EXPECT_EQ(ownLook(body("Machine", "Base")), "Paint");
}

TEST_F(Assignment, OfTheRootComponentGivesTheMaterialAndExplainsAboutTheAppearance) {
  openAndChoose();
  pickComponent(session(), design().root());
  const Lines edits = editsOfApply();
  EXPECT_EQ(edits.back(), materialSet("Component(Machine)", foam));
  EXPECT_THAT(containing(red, edits), IsEmpty());
  EXPECT_EQ(session().messageBoxes().size(), 1U);
}

// Looking up what was chosen.

TEST_F(Assignment, TakesMaterialAndAppearanceFromTheChosenLibraries) {
  addAppearanceLibrary("More.adsklib", "More looks", {red, "Gold"});
  addMaterialLibrary("More.adsklib", "More materials", {{"Foam", 10}});
  openAndChoose();
  session().choose("idLibAssets", "More looks");
  session().choose("idLibMaterials", "Metals");
  session().choose("idLibMaterials", "More materials");
  session().pick("Base");
  const Lines trace = traceOf(session(), [&] { session().click("idBtnApply"); });
  EXPECT_THAT(containing("MaterialLibraries.itemByName(", trace),
              ElementsAre(HasSubstr("(\"More materials\")"), HasSubstr("(\"More looks\")")));
  EXPECT_DOUBLE_EQ(*headless::model::densityOf(*body("Machine", "Base").material), 10);
}

TEST_F(Assignment, AppliesTheLibrarysAppearanceItself) {
  openAndChoose();
  session().pick("Base");
  session().click("idBtnApply");
  EXPECT_TRUE(host().materials().isInLibrary(*body("Machine", "Base").appearance));
}

TEST_F(Assignment, WithoutItsMaterialLibraryLeavesTheMaterialAndStillClears) {
  openAndChoose();
  session().pick("Base");
  host().application()->materialLibraries()->itemByName("Metals")->unload();
  EXPECT_THAT(editsOfApply(), ElementsAre("BRepBody(Base).material=(none)", lookCleared("BRepBody(Base)"),
                                          lookSet("BRepBody(Base)", red)));
  EXPECT_EQ(materialOf(body("Machine", "Base")), "Steel");
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
}

TEST_F(Assignment, WithoutItsMaterialLibraryIsTheSameForComponents) {
  openAndChoose();
  assignMaterialsOnly(session());
  host().application()->materialLibraries()->itemByName("Metals")->unload();
  pickAll(session(), "Component", {"Bolt:2"});
  EXPECT_EQ(editsOfApply().back(), "Component(Bolt).material=(none)");
  pickComponent(session(), design().root());
  const Lines edits = editsIn(traceOf(session(), [&] { raiseChangeOf(session(), applyButton); }));
  EXPECT_EQ(edits.back(), "Component(Machine).material=(none)");
}

TEST_F(Assignment, WithoutItsAppearanceLibraryClearsOccurrencesAndFacesToo) {
  openAndChoose();
  assignAppearancesOnly(session());
  host().application()->materialLibraries()->itemByName("RAL_COLORS")->unload();
  pickAll(session(), "Component", {"Bolt:2"});
  EXPECT_THAT(editsOfApply(), ElementsAre(lookCleared("Occurrence(Bolt:2)")));
  pickAll(session(), "Face", {"Base/Face1"});
  EXPECT_THAT(editsOfApply(), ElementsAre(lookCleared("BRepFace(Base)")));
}

TEST_F(Assignment, WithoutItsAppearanceLibraryAssignsNoAppearance) {
  openAndChoose();
  assignAppearancesOnly(session());
  body("Machine", "Base").appearance = look("Old paint");
  session().pick("Base");
  host().application()->materialLibraries()->itemByName("RAL_COLORS")->unload();
  EXPECT_THAT(editsOfApply(), ElementsAre(lookCleared("BRepBody(Base)")));
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
}

/// A look-up that finds nothing, and what is assigned then.
struct FailedLookup {
  const char* name;
  Fault fault;
  Lines edits;
};

const Lines withoutMaterial = {"BRepBody(Base).material=(none)", lookCleared("BRepBody(Base)"),
                               lookSet("BRepBody(Base)", red)};
const Lines withoutAppearance = {materialSet("BRepBody(Base)", foam), lookCleared("BRepBody(Base)"),
                                 lookCleared("BRepBody(Base)")};
// The settings read the four choices, the material its library and its own; the seventh is the appearance.
constexpr std::size_t appearanceChoice = 7;

class FailedLookups : public Assignment, public WithRow<FailedLookup> {};

TABLE(Lookups, FailedLookups, byName,
      {{"MaterialLibrary", {1, FaultAnswer::Nothing, "MaterialLibraries.itemByName"}, withoutMaterial},
       {"Material", {1, FaultAnswer::Nothing, "Materials.itemByName"}, withoutMaterial},
       {"AppearanceLibrary", {2, FaultAnswer::Nothing, "MaterialLibraries.itemByName"}, withoutAppearance},
       {"Appearance", {1, FaultAnswer::Nothing, "Appearances.itemByName"}, withoutAppearance},
       {"NoAppearanceChosen",
        {appearanceChoice, FaultAnswer::Nothing, "DropDownCommandInput.selectedItem"},
        withoutAppearance}});

TABLE_TEST(FailedLookups, AssignNothingInItsPlace) {
  openAndChoose();
  session().pick("Base");
  host().gate().setFault(row().fault);
  EXPECT_EQ(editsOfApply(), row().edits);
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(Assignment, OfAListThatShowsNothingClearsTheLook) {
  addAppearanceLibrary("Empty.adsklib", "Empty looks", {});
  openAndChoose();
  session().choose("idLibAssets", "Empty looks");
  session().tick("idKeepAppearance", true);
  session().pick("Base");
  raiseChangeOf(session(), "idKeepAppearance");
  ASSERT_TRUE(isEnabled("idBtnApply"));
  EXPECT_THAT(editsOfApply(), Contains(lookCleared("BRepBody(Base)")).Times(2));
}

TEST_F(Assignment, LooksUpItsChoicesOnceForAllPicks) {
  openAndChoose();
  pickAll(session(), "Body", {"Bolt:2/Head", "Base"});
  const Lines reaction = reactionTo(applyButton, traceOf(session(), [&] { session().click(applyButton); }));
  EXPECT_EQ(containing("Appearances.itemByName(", reaction).size(), 1U);
  EXPECT_EQ(containing("Materials.itemByName(", reaction).size(), 1U);
}

/// Something that Apply needs and that the host does not return.
struct NeededObject {
  const char* name;
  const char* call;
};

class NeededObjects : public Assignment, public WithRow<NeededObject> {};

TABLE(Links, NeededObjects, byName,
      {{"Pick", "Selection.entity"}, {"Materials", "MaterialLibrary.materials"}, {"Occurrence", "Occurrences.item"}});

TABLE_TEST(NeededObjects, EndApplyBeforeAnythingIsAssigned) {
  openAndChoose();
  pickComponent(session(), design().root());
  host().gate().setFault({1, FaultAnswer::Nothing, row().call});
  const Lines trace = traceOf(session(), [&] { raiseChangeOf(session(), applyButton); });
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(takeErrorKinds(), ElementsAre("std::exception"));
  EXPECT_THAT(editsIn(trace), IsEmpty());
  EXPECT_THAT(containing("doExecute", trace), IsEmpty());
}

class AssignmentUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(AssignmentUnderProfile);

TABLE_TEST(AssignmentUnderProfile, GivesABodyMaterialAndAppearance) {
  startDialog(profile());
  session().choose("idAppearanceList", red);
  session().choose("idMaterialList", foam);
  session().pick("Base");
  session().click("idBtnApply");
  EXPECT_EQ(body("Machine", "Base").material->name, foam);
  EXPECT_EQ(ownLook(body("Machine", "Base")), red);
  EXPECT_EQ(history().undoSteps().size(), 1U);
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_THAT(host().gate().misuses(), IsEmpty());
}

TABLE_TEST(AssignmentUnderProfile, GivesEveryPickedEntityItsShare) {
  startDialog(profile());
  session().choose("idAppearanceList", red);
  session().choose("idMaterialList", foam);
  pickAll(session(), "Component", {"Frame:1", "Bolt:2"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(occurrence("Frame:1")), red);
  EXPECT_EQ(ownLook(occurrence("Bolt:2")), red);
  EXPECT_EQ(ownLook(occurrence("Frame:2")), "");
  EXPECT_EQ(body("Plate", "Plate1").material->name, foam);
  EXPECT_EQ(body("Bolt", "Shank").material->name, foam);
  EXPECT_EQ(body("Machine", "Base").material->name, "Steel");
  EXPECT_EQ(history().undoSteps().size(), 1U);
}

TABLE_TEST(AssignmentUnderProfile, PaintsAFaceAndGivesItsBodyTheMaterial) {
  startDialog(profile());
  session().choose("idAppearanceList", red);
  session().choose("idMaterialList", foam);
  pickAll(session(), "Face", {"Bolt:2/Shank/Face2"});
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(*body("Bolt", "Shank").faces[0]), "");
  EXPECT_EQ(ownLook(*body("Bolt", "Shank").faces[1]), red);
  EXPECT_EQ(body("Bolt", "Shank").material->name, foam);
  session().undo();
  EXPECT_EQ(ownLook(*body("Bolt", "Shank").faces[1]), "");
  EXPECT_EQ(body("Bolt", "Shank").material->name, "Steel");
}

}  // namespace
}  // namespace tests
