#include <algorithm>

#include "tests/dialog/dialog_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using headless::InputKind;
using headless::InputView;
using headless::Profile;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct ExpectedInput {
  const char* group;
  InputKind kind;
  const char* id;
  const char* label;
  const char* icons = "";
  bool isEnabled = true;
};

const std::vector<ExpectedInput> expectedInputs = {
    {"", InputKind::Group, "idGroupSelect", "Select Component/Body/Face"},
    {"idGroupSelect", InputKind::Selection, "idSelection", "Select Object"},
    {"idGroupSelect", InputKind::ButtonRow, "idFilterSelect", "Selection Filter"},
    {"", InputKind::Group, "idGroupAppearance", "Assign Appearance to Selected Object"},
    {"idGroupAppearance", InputKind::TextBox, "idActAppearance", "Selection Appearance"},
    {"idGroupAppearance", InputKind::DropDown, "idLibAssets", "Library of Appearances"},
    {"idGroupAppearance", InputKind::DropDown, "idAppearanceList", "Appearance"},
    {"idGroupAppearance", InputKind::Text, "idFilterAppearance", "Filter"},
    {"idGroupAppearance", InputKind::Button, "idRemoveAssignAppearance", "", "resources/RemoveAppearance", false},
    {"", InputKind::Group, "idGroupMaterial", "Assign Material to Selected Object"},
    {"idGroupMaterial", InputKind::TextBox, "idActMaterial", "Selection material"},
    {"idGroupMaterial", InputKind::CheckBox, "idKeepAppearance", "Set Appearance by Material"},
    {"idGroupMaterial", InputKind::DropDown, "idLibMaterials", "Library of Materials"},
    {"idGroupMaterial", InputKind::DropDown, "idMaterialList", "Material"},
    {"idGroupMaterial", InputKind::Text, "idFilterMaterial", "Filter"},
    {"", InputKind::Button, "idBtnApply", "", "resources/BtnApply", false}};

class DialogInput : public DialogTest, public WithRow<ExpectedInput> {};

TABLE(
    All, DialogInput, [](const auto& row) { return std::string(row.id); }, expectedInputs);

TABLE_TEST(DialogInput, IsOfItsKindInItsGroupWithItsLabel) {
  startDialog();
  const ExpectedInput& expected = row();
  const InputView input = session().input(expected.id);
  EXPECT_EQ(input.kind, expected.kind);
  EXPECT_EQ(input.label, expected.label);
  EXPECT_EQ(input.icon, expected.icons);
  EXPECT_EQ(input.isEnabled, expected.isEnabled);
  EXPECT_TRUE(input.isVisible);
  const headless::GroupInput* group = command().findInput(expected.id)->homeCollection().group();
  EXPECT_EQ(group == nullptr ? "" : group->inputId(), expected.group);
}

class CommandDialogUnderProfile : public DialogTest, public WithRow<std::string> {
 protected:
  Profile profile() const { return headless::profileNamed(row()); }
};

TABLE_OF_PROFILES(CommandDialogUnderProfile);

TABLE_TEST(CommandDialogUnderProfile, ShowsAllInputsInOrder) {
  startDialog(profile());
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(16)));
}

TABLE_TEST(CommandDialogUnderProfile, OpensWithBodyFilterAndFirstItems) {
  startDialog(profile());
  EXPECT_EQ(shown("idFilterSelect"), "Body");
  EXPECT_EQ(shown("idLibAssets"), "RAL_COLORS");
  EXPECT_EQ(shown("idAppearanceList"), "RAL 1000 Green beige");
  EXPECT_EQ(shown("idFilterAppearance"), "");
  EXPECT_EQ(shown("idLibMaterials"), "Metals");
  EXPECT_EQ(shown("idMaterialList"), "Steel 37");
  EXPECT_EQ(shown("idFilterMaterial"), "");
  EXPECT_EQ(markup("idActAppearance"), "");
  EXPECT_EQ(markup("idActMaterial"), "");
  EXPECT_FALSE(session().input("idKeepAppearance").isTicked);
  EXPECT_FALSE(isEnabled("idRemoveAssignAppearance"));
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TABLE_TEST(CommandDialogUnderProfile, OpensWithBothAssignmentsExpandedAndTicked) {
  startDialog(profile());
  for (const char* id : {"idGroupAppearance", "idGroupMaterial"}) {
    const InputView group = session().input(id);
    EXPECT_TRUE(group.isExpanded) << id;
    EXPECT_TRUE(group.hasTick) << id;
    EXPECT_TRUE(group.isTicked) << id;
  }
  EXPECT_TRUE(session().input("idGroupSelect").isExpanded);
  EXPECT_FALSE(session().input("idGroupSelect").hasTick);
}

TABLE_TEST(CommandDialogUnderProfile, HasOneButtonCalledCloseAndItsSize) {
  startDialog(profile());
  const headless::DialogView dialog = session().dialog();
  EXPECT_EQ(dialog.title, "Tintora");
  EXPECT_FALSE(dialog.hasOkButton);
  EXPECT_EQ(dialog.okText, "Apply");
  EXPECT_EQ(dialog.cancelText, "Close");
  EXPECT_EQ(dialog.width, 425);
  EXPECT_EQ(dialog.height, 400);
}

TABLE_TEST(CommandDialogUnderProfile, IsTheSameFromTheToolsTab) {
  start(profile());
  session().press("idAssetsMatMngOnTools");
  EXPECT_EQ(session().dialog().commandId, "idAssetsMatMngOnTools");
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(16)));
}

TABLE_TEST(CommandDialogUnderProfile, OpensAndClosesWithoutTrace) {
  startDialog(profile());
  session().pressCancel();
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_FALSE(folder.has(settingsFile()));
  EXPECT_THROW(session().undo(), headless::UserError);
}

TABLE_TEST(CommandDialogUnderProfile, RestoresTheSavedChoicesBeforeItIsShown) {
  addMaterialLibrary("Stones.adsklib", "Stones", {{"Basalt"}, {"Granite"}});
  folder.write(settingsFile(), "2\n0\nRAL_COLORS\nRAL 5015 Sky blue\n1\nStones\nGranite\n0\n1");
  startDialog(profile());
  EXPECT_EQ(shown("idFilterSelect"), "Face");
  EXPECT_THAT(session().input("idSelection").filters, ElementsAre("Faces"));
  EXPECT_FALSE(session().input("idGroupAppearance").isExpanded);
  EXPECT_EQ(shown("idAppearanceList"), "RAL 5015 Sky blue");
  EXPECT_EQ(shown("idMaterialList"), "Granite");
}

using CommandDialog = DialogTest;

TEST_F(CommandDialog, OffersThreeThingsToPickAsOneChoice) {
  startDialog();
  std::vector<std::string> buttons;
  for (const headless::ItemView& item : session().input("idFilterSelect").items) {
    buttons.push_back(item.name + ": " + item.icon);
  }
  EXPECT_THAT(buttons, ElementsAre("Component: resources/BtnSelects/Comp", "Body: resources/BtnSelects/Body",
                                   "Face: resources/BtnSelects/Face"));
  EXPECT_FALSE(dynamic_cast<headless::ButtonRowInput&>(*command().findInput("idFilterSelect")).isMultiSelectEnabled());
}

TEST_F(CommandDialog, NeedsOneSelectedEntityAndAllowsAnyNumber) {
  startDialog();
  std::size_t minimum = 7;
  std::size_t maximum = 7;
  command().selectionInput()->getSelectionLimits(minimum, maximum);
  EXPECT_EQ(minimum, 1U);
  EXPECT_EQ(maximum, 0U);
}

TEST_F(CommandDialog, ShowsTwoRowsOfTextThatNobodyCanEdit) {
  startDialog();
  for (const char* id : {"idActAppearance", "idActMaterial"}) {
    EXPECT_TRUE(session().input(id).isReadOnly) << id;
    EXPECT_EQ(session().input(id).rows, 2) << id;
  }
}

TEST_F(CommandDialog, ShowsIconsInTheAppearanceListOnly) {
  startDialog();
  EXPECT_EQ(session().input("idLibAssets").style, 1);
  EXPECT_EQ(session().input("idAppearanceList").style, 0);
  EXPECT_EQ(session().input("idLibMaterials").style, 1);
  EXPECT_EQ(session().input("idMaterialList").style, 1);
}

TEST_F(CommandDialog, GroupOfTheSelectionIsNotTicked) {
  startDialog();
  EXPECT_FALSE(session().input("idGroupSelect").isTicked);
}

TEST_F(CommandDialog, IsNotExecutedWhenAnotherCommandEndsIt) {
  startDialog();
  session().pick("Base");
  EXPECT_FALSE(command().options().isExecutedWhenPreEmpted);
  host().gate().startTrace();
  session().press("idOpenHelp");
  EXPECT_EQ(host().gate().traceText().find("# event execute(idAssetsMatMng)"), std::string::npos);
}

TEST_F(CommandDialog, GetsNoMoreThanTwoHandlers) {
  startDialog();
  EXPECT_EQ(command().executeEvent->handlerCount(), 1U);
  EXPECT_EQ(command().inputChangedEvent->handlerCount(), 1U);
  EXPECT_EQ(command().activateEvent->handlerCount(), 0U);
  EXPECT_EQ(command().deactivateEvent->handlerCount(), 0U);
  EXPECT_EQ(command().destroyEvent->handlerCount(), 0U);
}

TEST_F(CommandDialog, ReleasesTheInputsOfTheDialogBefore) {
  startDialog();
  std::vector<adsk::core::Ptr<adsk::core::CommandInput>> kept;
  for (const ExpectedInput& expected : expectedInputs) {
    // A group would keep what is in it.
    if (expected.kind != InputKind::Group) {
      kept.push_back(command().findInput(expected.id)->handle());
    }
  }
  session().pressCancel();
  EXPECT_GT(kept.front()->refcount(), 1);
  openDialog();
  for (std::size_t i = 0; i < kept.size(); ++i) {
    EXPECT_EQ(kept[i]->refcount(), 1) << i;
  }
}

bool isAboutLists(const std::string& call) {
  const std::vector<std::string> beginnings = {"ListItem(", "ListItems(idL", "ListItems(idA", "ListItems(idM",
                                               "Material",  "DropDown",      "Appearance",    "Application"};
  return std::any_of(beginnings.begin(), beginnings.end(),
                     [&call](const std::string& beginning) { return call.rfind(beginning, 0) == 0; });
}

TEST_F(CommandDialog, IsBuiltInThisOrder) {
  start();
  host().gate().startTrace();
  pressMainButton();
  std::vector<std::string> calls = callsIn(host().gate());
  calls.erase(std::remove_if(calls.begin(), calls.end(), isAboutLists), calls.end());
  const std::vector<std::string> expected = {
      "CommandCreatedEventArgs.command()",
      "Command(idAssetsMatMng).commandInputs()",
      "Command(idAssetsMatMng).execute()",
      "CommandEvent(execute).add(handler)",
      "Command(idAssetsMatMng).inputChanged()",
      "InputChangedEvent(inputChanged).add(handler)",
      "Command(idAssetsMatMng).isExecutedWhenPreEmpted=(false)",
      R"(CommandInputs.addGroupCommandInput("idGroupSelect", "Select Component/Body/Face"))",
      "GroupCommandInput(idGroupSelect).isEnabledCheckBoxChecked=(false)",
      "GroupCommandInput(idGroupSelect).isExpanded=(true)",
      "GroupCommandInput(idGroupSelect).isEnabledCheckBoxDisplayed=(false)",
      "GroupCommandInput(idGroupSelect).children()",
      R"(CommandInputs(idGroupSelect).addSelectionInput("idSelection", "Select Object", "Select"))",
      "SelectionCommandInput(idSelection).setSelectionLimits(1, 0)",
      R"(CommandInputs(idGroupSelect).addButtonRowCommandInput("idFilterSelect", "Selection Filter", false))",
      "ButtonRowCommandInput(idFilterSelect).listItems()",
      R"(ListItems(idFilterSelect).add("Component", false, "resources/BtnSelects/Comp", -1))",
      R"(ListItems(idFilterSelect).add("Body", true, "resources/BtnSelects/Body", -1))",
      R"(ListItems(idFilterSelect).add("Face", false, "resources/BtnSelects/Face", -1))",
      R"(CommandInputs.addGroupCommandInput("idGroupAppearance", "Assign Appearance to Selected Object"))",
      "GroupCommandInput(idGroupAppearance).isEnabledCheckBoxChecked=(true)",
      "GroupCommandInput(idGroupAppearance).isEnabledCheckBoxDisplayed=(true)",
      "GroupCommandInput(idGroupAppearance).isExpanded=(true)",
      "GroupCommandInput(idGroupAppearance).children()",
      R"(CommandInputs(idGroupAppearance).addTextBoxCommandInput("idActAppearance", "Selection Appearance", )"
      R"("Nothing selected", 2, true))",
      R"(CommandInputs(idGroupAppearance).addDropDownCommandInput("idLibAssets", "Library of Appearances", 1))",
      R"(CommandInputs(idGroupAppearance).addDropDownCommandInput("idAppearanceList", "Appearance", 0))",
      R"(CommandInputs(idGroupAppearance).addStringValueInput("idFilterAppearance", "Filter", ""))",
      R"(CommandInputs(idGroupAppearance).addBoolValueInput("idRemoveAssignAppearance", "", false, )"
      R"("resources/RemoveAppearance", false))",
      "BoolValueCommandInput(idRemoveAssignAppearance).isEnabled=(false)",
      R"(CommandInputs.addGroupCommandInput("idGroupMaterial", "Assign Material to Selected Object"))",
      "GroupCommandInput(idGroupMaterial).isEnabledCheckBoxChecked=(true)",
      "GroupCommandInput(idGroupMaterial).isEnabledCheckBoxDisplayed=(true)",
      "GroupCommandInput(idGroupMaterial).isExpanded=(true)",
      "GroupCommandInput(idGroupMaterial).children()",
      R"(CommandInputs(idGroupMaterial).addTextBoxCommandInput("idActMaterial", "Selection material", )"
      R"("Nothing selected", 2, true))",
      R"(CommandInputs(idGroupMaterial).addBoolValueInput("idKeepAppearance", "Set Appearance by Material", true, "", )"
      "false)",
      R"(CommandInputs(idGroupMaterial).addDropDownCommandInput("idLibMaterials", "Library of Materials", 1))",
      R"(CommandInputs(idGroupMaterial).addDropDownCommandInput("idMaterialList", "Material", 1))",
      R"(CommandInputs(idGroupMaterial).addStringValueInput("idFilterMaterial", "Filter", ""))",
      R"(CommandInputs.addBoolValueInput("idBtnApply", "", false, "resources/BtnApply", false))",
      "BoolValueCommandInput(idBtnApply).isEnabled=(false)",
      "Command(idAssetsMatMng).isOKButtonVisible=(false)",
      R"(Command(idAssetsMatMng).okButtonText=("Apply"))",
      R"(Command(idAssetsMatMng).cancelButtonText=("Close"))",
      "Command(idAssetsMatMng).setDialogInitialSize(425, 400)",
      "User.userId()",
      R"(TextBoxCommandInput(idActAppearance).formattedText=(""))",
      R"(TextBoxCommandInput(idActMaterial).formattedText=(""))",
      "SelectionCommandInput(idSelection).clearSelection()",
      "SelectionCommandInput(idSelection).clearSelectionFilter()",
      "ButtonRowCommandInput(idFilterSelect).selectedItem()",
      R"(SelectionCommandInput(idSelection).addSelectionFilter("Bodies"))",
      R"(SelectionCommandInput(idSelection).commandPrompt=("Select Body"))"};
  EXPECT_THAT(calls, ElementsAreArray(expected));
}

TEST_F(CommandDialog, SelectsTheLastColourLibraryInListingOrder) {
  folder.writeLibraries(
      appearancesFolder,
      {appearanceLibrary("RAL_COLORS", {"RAL 1000 First"}), appearanceLibrary("Woods", {"Oak tree"}),
       appearanceLibrary("my_RAL_COLORS_2", {"RAL 2000 Second"}), appearanceLibrary("ral_colors", {"ral 3000 third"})});
  startDialog();
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS", "Woods", "my_RAL_COLORS_2", "ral_colors"));
  EXPECT_EQ(shown("idLibAssets"), "my_RAL_COLORS_2");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 2000 Second"));
}

TEST_F(CommandDialog, SelectsTheFirstMaterialLibraryInListingOrder) {
  folder.writeLibraries(materialsFolder,
                        {materialLibrary("Woods", {{"Oak"}, {"Fir"}}), materialLibrary("Metals", metals)});
  startDialog();
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Woods", "Metals"));
  EXPECT_EQ(shown("idLibMaterials"), "Woods");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Oak", "Fir"));
  EXPECT_EQ(shown("idMaterialList"), "Oak");
}

TEST_F(CommandDialog, GivesTheIconsThatExistToTheAppearances) {
  folder.addColourIcon("RAL3000");
  startDialog();
  for (const headless::ItemView& item : session().input("idAppearanceList").items) {
    const bool hasIcon = item.name == "RAL 3000 Flame red";
    EXPECT_EQ(item.icon, hasIcon ? inSystemStyle("resources/Libs/Appearances/RAL_COLORS/RAL3000") : "") << item.name;
  }
}

TEST_F(CommandDialog, LeavesTheListsOfEmptyLibrariesWithoutAnyItem) {
  addAppearanceLibrary("RAL_COLORS.adsklib", "RAL_COLORS", {});
  addMaterialLibrary("Metals.adsklib", "Metals", {});
  startDialog();
  EXPECT_THAT(itemsOf("idAppearanceList"), IsEmpty());
  EXPECT_THAT(itemsOf("idMaterialList"), IsEmpty());
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(16)));
}

class NoColourLibrary : public CommandDialog, public WithRow<const char*> {};

TABLE(Names, NoColourLibrary, byNumber, {"Woods", "ral_colors", "RAL COLORS", "RAL_COLOR"});

TABLE_TEST(NoColourLibrary, EndsTheDialogAfterTheAppearanceList) {
  addAppearanceLibrary("RAL_COLORS.adsklib", row(), ralNames);
  start();
  pressMainButton();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(7)));
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre(row()));
  EXPECT_EQ(shown("idLibAssets"), "");
  EXPECT_THAT(itemsOf("idAppearanceList"), IsEmpty());
}

TEST_F(CommandDialog, EndsAfterTheAppearanceListWithoutAnyAppearanceLibrary) {
  removeLibraries("Appearances");
  start();
  pressMainButton();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(7)));
}

TEST_F(CommandDialog, EndsAfterTheMaterialListWithoutAnyMaterialLibrary) {
  removeLibraries("Materials");
  start();
  pressMainButton();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(14)));
}

TEST_F(CommandDialog, EndsAtAnAppearanceOfLessThanFourCharacters) {
  addAppearanceLibrary("RAL_COLORS.adsklib", "RAL_COLORS", {"RAL 1000 Green beige", "RAL", "RAL 3000 Flame red"});
  start();
  pressMainButton();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::out_of_range:")));
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(7)));
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 1000 Green beige"));
}

TEST_F(CommandDialog, AttachesWithoutCaringWhetherTheHostConsents) {
  for (const char* call : {"CommandEvent.add", "InputChangedEvent.add", "Command.isExecutedWhenPreEmpted="}) {
    start();
    host().gate().setFault({1, FaultAnswer::Nothing, call});
    openDialog();
    EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(16))) << call;
    finish();
  }
}

}  // namespace
}  // namespace tests
