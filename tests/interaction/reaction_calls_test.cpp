// The host calls of whole reactions, to the last one and in their order.
#include <algorithm>
#include <functional>
#include <iterator>

#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

class CallsOf : public AddInTest {
 protected:
  void SetUp() override {
    startDialog();
    session().choose("idAppearanceList", red);
  }
  Lines callsOf(const std::string& inputId, const std::function<void()>& action) {
    return reactionTo(inputId, traceOf(session(), action));
  }
};

TEST_F(CallsOf, APick) {
  const Lines expected = {
      "InputChangedEventArgs.input() -> SelectionCommandInput(idSelection)",
      R"(SelectionCommandInput(idSelection).id() -> "idSelection")",
      R"(ButtonRowCommandInput(idFilterSelect).id() -> "idFilterSelect")",
      R"(SelectionCommandInput(idSelection).id() -> "idSelection")",
      "SelectionCommandInput(idSelection).selectionCount() -> 1",
      "SelectionCommandInput(idSelection).selection(0) -> Selection",
      "Selection.entity() -> BRepBody(Base)",
      R"(BRepBody(Base).objectType() -> "adsk::fusion::BRepBody")",
      "BRepBody(Base).appearanceSourceType() -> 0",
      "BRepBody(Base).faces() -> BRepFaces",
      "BRepFaces.count() -> 2",
      "BRepFaces.item(0) -> BRepFace(Base)",
      "BRepFace(Base).appearanceSourceType() -> 0",
      "BRepFaces.item(1) -> BRepFace(Base)",
      "BRepFace(Base).appearanceSourceType() -> 0",
      "BoolValueCommandInput(idRemoveAssignAppearance).isEnabled=(false) -> true",
      "SelectionCommandInput(idSelection).selectionCount() -> 1",
      "SelectionCommandInput(idSelection).selection(0) -> Selection",
      "Selection.entity() -> BRepBody(Base)",
      "SelectionCommandInput(idSelection).selectionCount() -> 1",
      "SelectionCommandInput(idSelection).selection(0) -> Selection",
      "Selection.entity() -> BRepBody(Base)",
      R"(BRepBody(Base).objectType() -> "adsk::fusion::BRepBody")",
      "BRepBody(Base).appearance() -> Appearance(Steel - Satin)",
      R"(Appearance(Steel - Satin).name() -> "Steel - Satin")",
      "BRepBody(Base).appearanceSourceType() -> 0",
      "SelectionCommandInput(idSelection).selectionCount() -> 1",
      "SelectionCommandInput(idSelection).selection(0) -> Selection",
      "Selection.entity() -> BRepBody(Base)",
      R"(BRepBody(Base).objectType() -> "adsk::fusion::BRepBody")",
      "BRepBody(Base).material() -> Material(Steel)",
      R"(Material(Steel).name() -> "Steel")",
      "Material(Steel).materialProperties() -> Properties",
      R"(Properties.itemById("structural_Density") -> FloatProperty(structural_Density))",
      "FloatProperty(structural_Density).value() -> 7850",
      R"(TextBoxCommandInput(idActAppearance).formattedText=("<b>Steel - Satin</b> - appearance by assigned material.") -> true)",
      R"(TextBoxCommandInput(idActMaterial).formattedText=("Physical material: <b>Steel</b>;  Density: 7850 kg.m<sup>-3</sup>") -> true)",
      "SelectionCommandInput(idSelection).selectionCount() -> 1",
      "GroupCommandInput(idGroupAppearance).isExpanded() -> true",
      "DropDownCommandInput(idAppearanceList).listItems() -> ListItems(idAppearanceList)",
      "ListItems(idAppearanceList).item(0) -> ListItem(idAppearanceList: RAL 1000 Green beige)",
      R"(ListItem(idAppearanceList: RAL 1000 Green beige).name() -> "RAL 1000 Green beige")",
      "DropDownCommandInput(idMaterialList).listItems() -> ListItems(idMaterialList)",
      "ListItems(idMaterialList).item(0) -> ListItem(idMaterialList: Steel 37)",
      R"(ListItem(idMaterialList: Steel 37).name() -> "Steel 37")",
      "BoolValueCommandInput(idBtnApply).isEnabled=(true) -> true"};
  EXPECT_EQ(callsOf("idSelection", [&] { session().pick("Base"); }), expected);
}

TEST_F(CallsOf, Apply) {
  session().pick("Base");
  const Lines expected = {
      "InputChangedEventArgs.input() -> BoolValueCommandInput(idBtnApply)",
      R"(BoolValueCommandInput(idBtnApply).id() -> "idBtnApply")",
      R"(ButtonRowCommandInput(idFilterSelect).id() -> "idFilterSelect")",
      R"(SelectionCommandInput(idSelection).id() -> "idSelection")",
      R"(DropDownCommandInput(idLibAssets).id() -> "idLibAssets")",
      R"(StringValueCommandInput(idFilterAppearance).id() -> "idFilterAppearance")",
      R"(DropDownCommandInput(idLibMaterials).id() -> "idLibMaterials")",
      R"(StringValueCommandInput(idFilterMaterial).id() -> "idFilterMaterial")",
      R"(GroupCommandInput(idGroupAppearance).id() -> "idGroupAppearance")",
      R"(GroupCommandInput(idGroupMaterial).id() -> "idGroupMaterial")",
      R"(BoolValueCommandInput(idKeepAppearance).id() -> "idKeepAppearance")",
      R"(BoolValueCommandInput(idRemoveAssignAppearance).id() -> "idRemoveAssignAppearance")",
      R"(BoolValueCommandInput(idBtnApply).id() -> "idBtnApply")",
      "Application.currentUser() -> User",
      R"(User.userId() -> "USER")",
      "ButtonRowCommandInput(idFilterSelect).selectedItem() -> ListItem(idFilterSelect: Body)",
      "ListItem(idFilterSelect: Body).index() -> 1",
      "GroupCommandInput(idGroupAppearance).isExpanded() -> true",
      "DropDownCommandInput(idLibAssets).selectedItem() -> ListItem(idLibAssets: RAL_COLORS)",
      R"(ListItem(idLibAssets: RAL_COLORS).name() -> "RAL_COLORS")",
      "DropDownCommandInput(idAppearanceList).selectedItem() -> ListItem(idAppearanceList: RAL 3000 Flame red)",
      R"(ListItem(idAppearanceList: RAL 3000 Flame red).name() -> "RAL 3000 Flame red")",
      "GroupCommandInput(idGroupMaterial).isExpanded() -> true",
      "DropDownCommandInput(idLibMaterials).selectedItem() -> ListItem(idLibMaterials: Metals)",
      R"(ListItem(idLibMaterials: Metals).name() -> "Metals")",
      "DropDownCommandInput(idMaterialList).selectedItem() -> ListItem(idMaterialList: Steel 37)",
      R"(ListItem(idMaterialList: Steel 37).name() -> "Steel 37")",
      "GroupCommandInput(idGroupAppearance).isEnabledCheckBoxChecked() -> true",
      "GroupCommandInput(idGroupMaterial).isEnabledCheckBoxChecked() -> true",
      "SelectionCommandInput(idSelection).selectionCount() -> 1",
      "SelectionCommandInput(idSelection).selection(0) -> Selection",
      "Selection.entity() -> BRepBody(Base)",
      "GroupCommandInput(idGroupMaterial).isExpanded() -> true",
      "Application.materialLibraries() -> MaterialLibraries",
      "DropDownCommandInput(idLibMaterials).selectedItem() -> ListItem(idLibMaterials: Metals)",
      R"(ListItem(idLibMaterials: Metals).name() -> "Metals")",
      R"(MaterialLibraries.itemByName("Metals") -> MaterialLibrary(Metals))",
      "MaterialLibrary(Metals).materials() -> Materials",
      "DropDownCommandInput(idMaterialList).selectedItem() -> ListItem(idMaterialList: Steel 37)",
      R"(ListItem(idMaterialList: Steel 37).name() -> "Steel 37")",
      R"(Materials.itemByName("Steel 37") -> Material(Steel 37))",
      R"(BRepBody(Base).objectType() -> "adsk::fusion::BRepBody")",
      "BRepBody(Base).material=(Material(Steel 37)) -> true",
      "BRepBody(Base).appearance=(none) -> true",
      "GroupCommandInput(idGroupAppearance).isExpanded() -> true",
      "DropDownCommandInput(idAppearanceList).selectedItem() -> ListItem(idAppearanceList: RAL 3000 Flame red)",
      "Application.materialLibraries() -> MaterialLibraries",
      "DropDownCommandInput(idLibAssets).selectedItem() -> ListItem(idLibAssets: RAL_COLORS)",
      R"(ListItem(idLibAssets: RAL_COLORS).name() -> "RAL_COLORS")",
      R"(MaterialLibraries.itemByName("RAL_COLORS") -> MaterialLibrary(RAL_COLORS))",
      "MaterialLibrary(RAL_COLORS).appearances() -> Appearances",
      "DropDownCommandInput(idAppearanceList).selectedItem() -> ListItem(idAppearanceList: RAL 3000 Flame red)",
      R"(ListItem(idAppearanceList: RAL 3000 Flame red).name() -> "RAL 3000 Flame red")",
      R"(Appearances.itemByName("RAL 3000 Flame red") -> Appearance(RAL 3000 Flame red))",
      R"(BRepBody(Base).objectType() -> "adsk::fusion::BRepBody")",
      "BRepBody(Base).faces() -> BRepFaces",
      "BRepFaces.count() -> 2",
      "BRepFaces.item(0) -> BRepFace(Base)",
      "BRepFace(Base).appearanceSourceType() -> 0",
      "BRepFaces.item(1) -> BRepFace(Base)",
      "BRepFace(Base).appearanceSourceType() -> 0",
      "BRepBody(Base).appearance=(Appearance(RAL 3000 Flame red)) -> true",
      "GroupCommandInput(idGroupMaterial).isExpanded() -> true",
      "BoolValueCommandInput(idKeepAppearance).value() -> false",
      "BoolValueCommandInput(idBtnApply).isEnabled=(false) -> true",
      "InputChangedEventArgs.inputs() -> CommandInputs",
      "CommandInputs.command() -> Command(idAssetsMatMng)",
      "Command(idAssetsMatMng).doExecute(false) -> true"};
  EXPECT_EQ(callsOf("idBtnApply", [&] { session().click("idBtnApply"); }), expected);
}

TEST_F(CallsOf, TheFilterRow) {
  const Lines expected = {"InputChangedEventArgs.input() -> ButtonRowCommandInput(idFilterSelect)",
                          R"(ButtonRowCommandInput(idFilterSelect).id() -> "idFilterSelect")",
                          R"(ButtonRowCommandInput(idFilterSelect).id() -> "idFilterSelect")",
                          R"(TextBoxCommandInput(idActAppearance).formattedText=("") -> true)",
                          R"(TextBoxCommandInput(idActMaterial).formattedText=("") -> true)",
                          "SelectionCommandInput(idSelection).clearSelection() -> true",
                          "SelectionCommandInput(idSelection).clearSelectionFilter() -> true",
                          "ButtonRowCommandInput(idFilterSelect).selectedItem() -> ListItem(idFilterSelect: Face)",
                          "ListItem(idFilterSelect: Face).index() -> 2",
                          R"(SelectionCommandInput(idSelection).addSelectionFilter("Faces") -> true)",
                          R"(SelectionCommandInput(idSelection).commandPrompt=("Select Face") -> true)",
                          "UserInterface.commandDefinitions() -> CommandDefinitions",
                          R"(CommandDefinitions.itemById("SelectionFilterCommand") -> none)"};
  EXPECT_EQ(callsOf("idFilterSelect", [&] { session().choose("idFilterSelect", "Face"); }), expected);
}

TEST_F(CallsOf, ATypedLetter) {
  const Lines expected = {
      "InputChangedEventArgs.input() -> StringValueCommandInput(idFilterAppearance)",
      R"(StringValueCommandInput(idFilterAppearance).id() -> "idFilterAppearance")",
      R"(ButtonRowCommandInput(idFilterSelect).id() -> "idFilterSelect")",
      R"(SelectionCommandInput(idSelection).id() -> "idSelection")",
      R"(DropDownCommandInput(idLibAssets).id() -> "idLibAssets")",
      R"(StringValueCommandInput(idFilterAppearance).id() -> "idFilterAppearance")",
      R"(DropDownCommandInput(idLibAssets).id() -> "idLibAssets")",
      R"(StringValueCommandInput(idFilterAppearance).id() -> "idFilterAppearance")",
      R"(DropDownCommandInput(idAppearanceList).id() -> "idAppearanceList")",
      R"(CommandInputs.itemById("idLibAssets") -> DropDownCommandInput(idLibAssets))",
      R"(CommandInputs.itemById("idFilterAppearance") -> StringValueCommandInput(idFilterAppearance))",
      R"(CommandInputs.itemById("idAppearanceList") -> DropDownCommandInput(idAppearanceList))",
      R"(DropDownCommandInput(idLibAssets).id() -> "idLibAssets")",
      R"(DropDownCommandInput(idLibAssets).id() -> "idLibAssets")",
      "DropDownCommandInput(idLibAssets).selectedItem() -> ListItem(idLibAssets: RAL_COLORS)",
      R"(ListItem(idLibAssets: RAL_COLORS).name() -> "RAL_COLORS")",
      R"(StringValueCommandInput(idFilterAppearance).value() -> "3")",
      "Application.materialLibraries() -> MaterialLibraries",
      R"(MaterialLibraries.itemByName("RAL_COLORS") -> MaterialLibrary(RAL_COLORS))",
      "MaterialLibrary(RAL_COLORS).appearances() -> Appearances",
      "Appearances.count() -> 5",
      "Appearances.item(0) -> Appearance(RAL 1000 Green beige)",
      R"(Appearance(RAL 1000 Green beige).name() -> "RAL 1000 Green beige")",
      "Appearances.item(1) -> Appearance(RAL 3000 Flame red)",
      R"(Appearance(RAL 3000 Flame red).name() -> "RAL 3000 Flame red")",
      "Appearances.item(2) -> Appearance(RAL 3001 Signal red)",
      R"(Appearance(RAL 3001 Signal red).name() -> "RAL 3001 Signal red")",
      "Appearances.item(3) -> Appearance(RAL 5015 Sky blue)",
      R"(Appearance(RAL 5015 Sky blue).name() -> "RAL 5015 Sky blue")",
      "Appearances.item(4) -> Appearance(RAL 9005 Jet black)",
      R"(Appearance(RAL 9005 Jet black).name() -> "RAL 9005 Jet black")",
      "DropDownCommandInput(idLibAssets).selectedItem() -> ListItem(idLibAssets: RAL_COLORS)",
      R"(ListItem(idLibAssets: RAL_COLORS).name() -> "RAL_COLORS")",
      "DropDownCommandInput(idAppearanceList).listItems() -> ListItems(idAppearanceList)",
      "ListItems(idAppearanceList).clear() -> true",
      R"(ListItems(idAppearanceList).add("RAL 3000 Flame red", false, "", -1) -> ListItem(idAppearanceList: RAL 3000 Flame red))",
      R"(ListItems(idAppearanceList).add("RAL 3001 Signal red", false, "", -1) -> ListItem(idAppearanceList: RAL 3001 Signal red))",
      "ListItems(idAppearanceList).item(0) -> ListItem(idAppearanceList: RAL 3000 Flame red)",
      "ListItem(idAppearanceList: RAL 3000 Flame red).isSelected=(true) -> true",
      "DropDownCommandInput(idAppearanceList).listItems() -> ListItems(idAppearanceList)",
      "ListItems(idAppearanceList).item(0) -> ListItem(idAppearanceList: RAL 3000 Flame red)",
      R"(ListItem(idAppearanceList: RAL 3000 Flame red).name() -> "RAL 3000 Flame red")",
      "DropDownCommandInput(idMaterialList).listItems() -> ListItems(idMaterialList)",
      "ListItems(idMaterialList).item(0) -> ListItem(idMaterialList: Steel 37)",
      R"(ListItem(idMaterialList: Steel 37).name() -> "Steel 37")",
      "BoolValueCommandInput(idBtnApply).isEnabled=(true) -> true"};
  EXPECT_EQ(callsOf("idFilterAppearance", [&] { session().type("idFilterAppearance", "3"); }), expected);
}

TEST_F(CallsOf, APickReachChildrenBeforeBodies) {
  session().choose("idFilterSelect", "Component");
  const Lines calls = callsOf("idSelection", [&] { session().pick("Frame:1"); });
  const Lines walks = {"Occurrence(Frame:1).childOccurrences() -> OccurrenceList",
                       "Occurrence(Frame:1).bRepBodies() -> BRepBodies"};
  Lines found;
  std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
               [&](const std::string& call) { return std::find(walks.begin(), walks.end(), call) != walks.end(); });
  EXPECT_EQ(found, walks);
}

}  // namespace
}  // namespace tests
