// Assigning the chosen material and appearance to the selection.
#pragma once

namespace tintora {

/// What the Apply button does: saves the dialog's choices, then assigns the material if its group is open, then the
/// appearance if its group is open, then puts recorded appearances back unless the material is to give the look. What
/// it raises leaves what was assigned before. [while the dialog is open]
void applyToSelection();

}  // namespace tintora
