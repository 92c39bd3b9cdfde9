// The dispatcher: what the dialog does when one of its inputs changes.
#pragma once

#include "shell/host_objects.h"

namespace tintora {

/// Runs the reaction to the changed input; nothing for an event without input and for inputs without reaction. An error
/// ends the handling of this event; inputs changed until then stay changed. [while the dialog is open]
void handleInputChanged(const Ptr<core::InputChangedEventArgs>& eventArgs);

}  // namespace tintora
