// Dispatching on the changed input, and the reactions that are no larger than a few calls.
#include "interaction/input_changed.h"

#include <string>

#include "dialog/item_lists.h"
#include "dialog/selection_filter.h"
#include "inspection/selection_info.h"
#include "interaction/apply_state.h"
#include "interaction/assignment.h"
#include "interaction/removal.h"
#include "shell/echo_guard.h"
#include "shell/globals.h"

namespace tintora {

namespace {

// Inputs are set only where they differ, so that a host that reports changes late, or reports even changes to the same
// value, runs out of events.

void setTicked(const Ptr<core::GroupCommandInput>& group, bool ticked) {
  if (group->isEnabledCheckBoxChecked() != ticked) {
    group->isEnabledCheckBoxChecked(ticked);
  }
}

void untick(const Ptr<core::BoolValueCommandInput>& checkBox) {
  if (checkBox->value()) {
    checkBox->value(false);
  }
}

void clearText(const Ptr<core::StringValueCommandInput>& text) {
  if (!text->value().empty()) {
    text->value("");
  }
}

// Each id in a statement of its own: C++ leaves open in which order the arguments of a call are worked out.
void refillAppearanceList() {
  const std::string libraryId = libAssetsInput->id();
  const std::string filterId = filterAppearanceInput->id();
  fillItemList(libraryId, filterId, appearanceListInput->id());
}

void refillMaterialList() {
  const std::string libraryId = libMaterialsInput->id();
  const std::string filterId = filterMaterialInput->id();
  fillItemList(libraryId, filterId, materialListInput->id());
}

/// Selects the third item of the host's own selection filter list, where the host has that list.
void adjustHostSelectionFilter() {
  const Ptr<core::CommandDefinitions> definitions = uiHandle->commandDefinitions();
  if (!definitions) {
    return;
  }
  const Ptr<core::CommandDefinition> definition = definitions->itemById("SelectionFilterCommand");
  if (!definition) {
    return;
  }
  const auto control = hostCast<core::ListControlDefinition>(definition->controlDefinition());
  if (!control) {
    return;
  }
  const Ptr<core::ListItems> list = control->listItems();
  if (!list) {
    return;
  }
  const Ptr<core::ListItem> item = list->item(2);
  if (item) {
    item->isSelected(true);
  }
}

void onFilterModeChanged() {
  setupSelectionFilter();
  adjustHostSelectionFilter();
}

void onSelectionChanged() {
  updateSelectionInfo();
  refreshApplyState();
}

void onAppearanceChoiceChanged() {
  refillAppearanceList();
  refreshApplyStateForLists();
}

void onMaterialChoiceChanged() {
  refillMaterialList();
  refreshApplyStateForLists();
}

void onAppearanceGroupChanged() {
  const EchoGuard guard;
  if (groupAppearanceInput->isExpanded()) {
    setTicked(groupAppearanceInput, true);
    untick(keepAppearanceInput);
  } else {
    clearText(filterAppearanceInput);
    refillAppearanceList();
    setTicked(groupAppearanceInput, false);
  }
  refreshApplyState();
}

void onMaterialGroupChanged() {
  const EchoGuard guard;
  if (groupMaterialInput->isExpanded()) {
    setTicked(groupMaterialInput, true);
  } else {
    clearText(filterMaterialInput);
    refillMaterialList();
    setTicked(groupMaterialInput, false);
  }
  refreshApplyState();
}

/// Either way of the check box unticks the appearance group; only the material list decides about Apply here.
void onKeepAppearanceChanged() {
  const EchoGuard guard;
  setTicked(groupAppearanceInput, false);
  clearText(filterAppearanceInput);
  refillAppearanceList();
  applyButton->isEnabled(!hasNothingToShow(materialListInput));
}

/// Makes what was changed one undoable step and keeps the dialog open. Where the host ends the command all the same,
/// the inputs are gone afterwards: the last call of a reaction.
void commit(const Ptr<core::InputChangedEventArgs>& eventArgs) {
  const Ptr<core::Command> command = eventArgs->inputs()->command();
  constexpr bool terminate = false;
  command->doExecute(terminate);
}

void onRemovePressed(const Ptr<core::InputChangedEventArgs>& eventArgs) {
  removeAssignedAppearance();
  removeAppearanceButton->isEnabled(false);
  applyButton->isEnabled(false);
  commit(eventArgs);
}

void onApplyPressed(const Ptr<core::InputChangedEventArgs>& eventArgs) {
  applyToSelection();
  applyButton->isEnabled(false);
  commit(eventArgs);
}

/// An echo of the add-in's own change.
bool isEcho(const std::string& changedId) {
  return EchoGuard::takesSelection() || (EchoGuard::takesInputs() && selectionInput->id() != changedId);
}

}  // namespace

void handleInputChanged(const Ptr<core::InputChangedEventArgs>& eventArgs) {
  const Ptr<core::CommandInput> changed = eventArgs->input();
  if (!changed) {
    return;
  }
  const std::string changedId = changed->id();
  if (isEcho(changedId)) {
    return;
  }
  const auto isChanged = [&changedId](const auto& input) { return input->id() == changedId; };
  if (isChanged(filterSelectInput)) {
    onFilterModeChanged();
  } else if (isChanged(selectionInput)) {
    onSelectionChanged();
  } else if (isChanged(libAssetsInput) || isChanged(filterAppearanceInput)) {
    onAppearanceChoiceChanged();
  } else if (isChanged(libMaterialsInput) || isChanged(filterMaterialInput)) {
    onMaterialChoiceChanged();
  } else if (isChanged(groupAppearanceInput)) {
    onAppearanceGroupChanged();
  } else if (isChanged(groupMaterialInput)) {
    onMaterialGroupChanged();
  } else if (isChanged(keepAppearanceInput)) {
    onKeepAppearanceChanged();
  } else if (isChanged(removeAppearanceButton)) {
    onRemovePressed(eventArgs);
  } else if (isChanged(applyButton)) {
    onApplyPressed(eventArgs);
  }
}

}  // namespace tintora
