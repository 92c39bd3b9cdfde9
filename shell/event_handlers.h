// The five handler classes that the host calls, and their static objects. Each only takes its event apart and calls
// one routine. The host knows the objects by address, from `run` or from the building of a dialog until the library is
// unloaded; the destructors of their bases detach them.
#pragma once

#include "shell/host_objects.h"

namespace tintora {

/// Builds the dialog of a new main command.
class CmdCreatedEventHandler : public core::CommandCreatedEventHandler {
 public:
  void notify(const Ptr<core::CommandCreatedEventArgs>& eventArgs) override;
};

/// Makes a new help command open the guide when it executes.
class CmdHelpCreatedEventHandler : public core::CommandCreatedEventHandler {
 public:
  void notify(const Ptr<core::CommandCreatedEventArgs>& eventArgs) override;
};

/// Opens the guide for a help command. Attached to the main command too, whose execution does nothing: it only
/// commits what its dialog changed.
class CmdExecuteEventHandler : public core::CommandEventHandler {
 public:
  void notify(const Ptr<core::CommandEventArgs>& eventArgs) override;
};

/// Reacts to a change of an input of the main command's dialog.
class CmdInputChangedEventHandler : public core::InputChangedEventHandler {
 public:
  void notify(const Ptr<core::InputChangedEventArgs>& eventArgs) override;
};

/// Starts the main command again when it was completed, so that the dialog comes back after an assignment.
class MyCommandEndingEventHandler : public core::ApplicationCommandEventHandler {
 public:
  void notify(const Ptr<core::ApplicationCommandEventArgs>& eventArgs) override;
};

extern CmdCreatedEventHandler cmdCreatedHandler;            ///< attached to both main command definitions
extern CmdHelpCreatedEventHandler cmdHelpCreatedHandler;    ///< attached to both help command definitions
extern CmdExecuteEventHandler cmdExecuteHandler;            ///< attached to every command of the add-in
extern CmdInputChangedEventHandler cmdInputChangedHandler;  ///< attached to every main command
extern MyCommandEndingEventHandler commandEndingHandler;    ///< attached to the end of all commands of the host

}  // namespace tintora
