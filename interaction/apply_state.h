// When the Apply button is enabled. Two rules, on purpose not the same: one for a change of the selection or of a
// group, one for a change of a list.
#pragma once

#include "shell/host_objects.h"

namespace tintora {

/// Whether a list has nothing to show, which its first item tells. Raises the null-access exception for a list without
/// items.
bool hasNothingToShow(const Ptr<core::DropDownCommandInput>& list);

/// Enables Apply if something is selected, a group is open and both lists have something to show.
void refreshApplyState();

/// Enables Apply if both lists have something to show, whatever is selected or open.
void refreshApplyStateForLists();

}  // namespace tintora
