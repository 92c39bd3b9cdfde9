// What the dialog shows about the current selection.
#pragma once

#include <vector>

#include "shell/host_objects.h"

namespace tintora {

/// The selected entities in the selection's order. A handle is empty where the host returns no entity. Raises the
/// null-access exception without a selection input. [while the dialog is open]
std::vector<Ptr<core::Base>> selectedEntities();

/// Takes the inventory of applied appearances, enables the remove button if there are any, and rewrites the two
/// information texts. What it raises leaves the texts as they were. [while the dialog is open]
void updateSelectionInfo();

}  // namespace tintora
