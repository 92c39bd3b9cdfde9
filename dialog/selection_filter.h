// What the selection input accepts, chosen with the button row "idFilterSelect".
#pragma once

namespace tintora {

/// Makes the selection input's filter and prompt follow the button row, and starts the selection and the two
/// information texts afresh. Raises the null-access exception when the selection input or the row's choice is missing.
void setupSelectionFilter();

}  // namespace tintora
