// The command's dialog, built anew each time the main command is created.
#pragma once

#include "shell/host_objects.h"

namespace tintora {

/// Builds the dialog of the event's command: attaches the handlers, adds and fills all inputs, keeping each in its
/// global, and applies the user's saved choices. Ends silently where the host returns no input or collection; what is
/// raised (no command, a library to read that is missing, an unreadable library folder) leaves the rest unbuilt too.
/// The wait cursor is restored by a complete build only. The handlers must live until the library is unloaded.
void buildCommandDialog(const Ptr<core::CommandCreatedEventArgs>& eventArgs, core::CommandEventHandler& executeHandler,
                        core::InputChangedEventHandler& inputChangedHandler);

}  // namespace tintora
