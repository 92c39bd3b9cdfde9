// The dialog's inputs in their order, the fill of each list right after its drop-down. Each function that adds inputs
// tells whether the host returned them all; the first that it does not return ends the build.
#include "dialog/command_dialog.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "dialog/item_lists.h"
#include "dialog/libraries.h"
#include "dialog/selection_filter.h"
#include "dialog/wait_cursor.h"
#include "shell/command_settings.h"
#include "shell/echo_guard.h"
#include "shell/globals.h"
#include "shell/text.h"

namespace tintora {

namespace {

bool addSelectionInput() {
  selectionInput = groupSelectChildren->addSelectionInput("idSelection", toUtf8(L"Select Object"), "Select");
  if (!selectionInput) {
    return false;
  }
  constexpr std::size_t noUpperLimit = 0;
  selectionInput->setSelectionLimits(1, noUpperLimit);
  return true;
}

bool addFilterRow() {
  constexpr bool multiSelect = false;
  filterSelectInput =
      groupSelectChildren->addButtonRowCommandInput("idFilterSelect", toUtf8(L"Selection Filter"), multiSelect);
  if (!filterSelectInput) {
    return false;
  }
  const Ptr<core::ListItems> buttons = filterSelectInput->listItems();
  if (!buttons) {
    return false;
  }
  buttons->add(toUtf8(L"Component"), false, "resources/BtnSelects/Comp", atTheEnd);
  buttons->add(toUtf8(L"Body"), true, "resources/BtnSelects/Body", atTheEnd);
  buttons->add(toUtf8(L"Face"), false, "resources/BtnSelects/Face", atTheEnd);
  return true;
}

bool addSelectGroup() {
  groupSelectInput = commandInputs->addGroupCommandInput("idGroupSelect", toUtf8(L"Select Component/Body/Face"));
  if (!groupSelectInput) {
    return false;
  }
  groupSelectInput->isEnabledCheckBoxChecked(false);
  groupSelectInput->isExpanded(true);
  groupSelectInput->isEnabledCheckBoxDisplayed(false);
  groupSelectChildren = groupSelectInput->children();
  return groupSelectChildren && addSelectionInput() && addFilterRow();
}

/// Adds one of the two groups that assign something, open and ticked. Returns its child collection.
Ptr<core::CommandInputs> addAssignmentGroup(Ptr<core::GroupCommandInput>& group, const char* id, const wchar_t* label) {
  group = commandInputs->addGroupCommandInput(id, toUtf8(label));
  if (!group) {
    return {};
  }
  group->isEnabledCheckBoxChecked(true);
  group->isEnabledCheckBoxDisplayed(true);
  group->isExpanded(true);
  return group->children();
}

/// Adds a read-only text about the selection.
Ptr<core::TextBoxCommandInput> addInformation(const Ptr<core::CommandInputs>& group, const char* id,
                                              const wchar_t* label) {
  constexpr int rows = 2;
  constexpr bool readOnly = true;
  return group->addTextBoxCommandInput(id, toUtf8(label), toUtf8(L"Nothing selected"), rows, readOnly);
}

Ptr<core::StringValueCommandInput> addNameFilter(const Ptr<core::CommandInputs>& group, const char* id) {
  return group->addStringValueInput(id, toUtf8(L"Filter"), "");
}

/// Adds a button that has nothing to act on yet.
Ptr<core::BoolValueCommandInput> addDisabledButton(const Ptr<core::CommandInputs>& inputs, const char* id,
                                                   const char* icons) {
  constexpr bool isCheckBox = false;
  const Ptr<core::BoolValueCommandInput> button = inputs->addBoolValueInput(id, "", isCheckBox, icons, false);
  if (button) {
    button->isEnabled(false);
  }
  return button;
}

/// Lists the appearance libraries. Returns the selected item, the last one of a library with the add-in's colours;
/// empty when there is none.
Ptr<core::ListItem> fillAppearanceLibraries(const Ptr<core::ListItems>& list) {
  const NameSequence names = loadLibraryFolder(appearanceLibraries);
  appendPlainItems(list, names);
  const auto last = std::find_if(names.rbegin(), names.rend(), isColourLibrary);
  if (last == names.rend()) {
    return {};
  }
  const auto index = std::distance(last, names.rend()) - 1;
  const Ptr<core::ListItem> colourLibrary = list->item(static_cast<std::size_t>(index));
  colourLibrary->isSelected(true);
  return colourLibrary;
}

void selectFirstItem(const Ptr<core::ListItems>& list) {
  const Ptr<core::ListItem> first = list->item(0);
  if (first) {
    first->isSelected(true);
  }
}

bool addAppearanceLists() {
  libAssetsInput = groupAppearanceChildren->addDropDownCommandInput("idLibAssets", toUtf8(L"Library of Appearances"),
                                                                    core::TextListDropDownStyle);
  if (!libAssetsInput) {
    return false;
  }
  const Ptr<core::ListItems> libraries = libAssetsInput->listItems();
  if (!libraries) {
    return false;
  }
  const Ptr<core::ListItem> colourLibrary = fillAppearanceLibraries(libraries);

  appearanceListInput = groupAppearanceChildren->addDropDownCommandInput("idAppearanceList", toUtf8(L"Appearance"),
                                                                         core::LabeledIconDropDownStyle);
  if (!appearanceListInput) {
    return false;
  }
  const Ptr<core::ListItems> appearances = appearanceListInput->listItems();
  if (!appearances) {
    return false;
  }
  appendColourItems(appearances, listAppearanceNames(colourLibrary->name(), ""));
  selectFirstItem(appearances);
  return true;
}

bool addAppearanceGroup() {
  groupAppearanceChildren =
      addAssignmentGroup(groupAppearanceInput, "idGroupAppearance", L"Assign Appearance to Selected Object");
  if (!groupAppearanceChildren) {
    return false;
  }
  actAppearanceInput = addInformation(groupAppearanceChildren, "idActAppearance", L"Selection Appearance");
  if (!actAppearanceInput || !addAppearanceLists()) {
    return false;
  }
  filterAppearanceInput = addNameFilter(groupAppearanceChildren, "idFilterAppearance");
  if (!filterAppearanceInput) {
    return false;
  }
  removeAppearanceButton =
      addDisabledButton(groupAppearanceChildren, "idRemoveAssignAppearance", "resources/RemoveAppearance");
  return removeAppearanceButton;
}

bool addMaterialLists() {
  libMaterialsInput = groupMaterialChildren->addDropDownCommandInput("idLibMaterials", toUtf8(L"Library of Materials"),
                                                                     core::TextListDropDownStyle);
  if (!libMaterialsInput) {
    return false;
  }
  const Ptr<core::ListItems> libraries = libMaterialsInput->listItems();
  if (!libraries) {
    return false;
  }
  appendPlainItems(libraries, loadLibraryFolder(materialLibraries));
  selectFirstItem(libraries);

  materialListInput = groupMaterialChildren->addDropDownCommandInput("idMaterialList", toUtf8(L"Material"),
                                                                     core::TextListDropDownStyle);
  if (!materialListInput) {
    return false;
  }
  const Ptr<core::ListItems> materials = materialListInput->listItems();
  if (!materials) {
    return false;
  }
  appendPlainItems(materials, listMaterialNames(libraries->item(0)->name(), ""));
  selectFirstItem(materials);
  return true;
}

bool addMaterialGroup() {
  groupMaterialChildren =
      addAssignmentGroup(groupMaterialInput, "idGroupMaterial", L"Assign Material to Selected Object");
  if (!groupMaterialChildren) {
    return false;
  }
  actMaterialInput = addInformation(groupMaterialChildren, "idActMaterial", L"Selection material");
  if (!actMaterialInput) {
    return false;
  }
  constexpr bool isCheckBox = true;
  keepAppearanceInput = groupMaterialChildren->addBoolValueInput(
      "idKeepAppearance", toUtf8(L"Set Appearance by Material"), isCheckBox, "", false);
  if (!keepAppearanceInput || !addMaterialLists()) {
    return false;
  }
  filterMaterialInput = addNameFilter(groupMaterialChildren, "idFilterMaterial");
  return filterMaterialInput;
}

bool addApplyButton() {
  applyButton = addDisabledButton(commandInputs, "idBtnApply", "resources/BtnApply");
  return applyButton;
}

/// The command acts through its own Apply button: the host's OK would only end it.
void setUpFrame(const Ptr<core::Command>& command) {
  command->isOKButtonVisible(false);
  command->okButtonText(toUtf8(L"Apply"));
  command->cancelButtonText(toUtf8(L"Close"));
  command->setDialogInitialSize(425, 400);
}

}  // namespace

void buildCommandDialog(const Ptr<core::CommandCreatedEventArgs>& eventArgs, core::CommandEventHandler& executeHandler,
                        core::InputChangedEventHandler& inputChangedHandler) {
  void* const previousCursor = showWaitCursor();
  const EchoGuard guard(Echoes::all);
  const Ptr<core::Command> command = eventArgs->command();
  commandInputs = command->commandInputs();
  if (!commandInputs) {
    return;
  }
  command->execute()->add(&executeHandler);
  command->inputChanged()->add(&inputChangedHandler);
  // Otherwise another command that the user chooses would have the host execute this one first, to no effect.
  command->isExecutedWhenPreEmpted(false);

  if (!addSelectGroup() || !addAppearanceGroup() || !addMaterialGroup() || !addApplyButton()) {
    return;
  }
  setUpFrame(command);
  loadCommandSettings();
  setupSelectionFilter();
  restoreCursor(previousCursor);
}

}  // namespace tintora
