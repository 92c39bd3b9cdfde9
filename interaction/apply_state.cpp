// The rules of the Apply button.
#include "interaction/apply_state.h"

#include "dialog/item_lists.h"
#include "shell/globals.h"

namespace tintora {

bool hasNothingToShow(const Ptr<core::DropDownCommandInput>& list) {
  return list->listItems()->item(0)->name() == nothingFoundItem;
}

void refreshApplyState() {
  if (selectionInput->selectionCount() == 0) {
    applyButton->isEnabled(false);
    return;
  }
  if (!groupAppearanceInput->isExpanded() && !groupMaterialInput->isExpanded()) {
    applyButton->isEnabled(false);
    return;
  }
  refreshApplyStateForLists();
}

void refreshApplyStateForLists() {
  applyButton->isEnabled(!hasNothingToShow(appearanceListInput) && !hasNothingToShow(materialListInput));
}

}  // namespace tintora
