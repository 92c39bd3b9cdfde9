// The handlers' callbacks. What they raise leaves them and is the host's to report.
#include "shell/event_handlers.h"

#include <string>

#include "dialog/command_dialog.h"
#include "interaction/input_changed.h"
#include "shell/command_ids.h"
#include "shell/users_guide.h"

namespace tintora {

CmdCreatedEventHandler cmdCreatedHandler;
CmdHelpCreatedEventHandler cmdHelpCreatedHandler;
CmdExecuteEventHandler cmdExecuteHandler;
CmdInputChangedEventHandler cmdInputChangedHandler;
MyCommandEndingEventHandler commandEndingHandler;

void CmdCreatedEventHandler::notify(const Ptr<core::CommandCreatedEventArgs>& eventArgs) {
  buildCommandDialog(eventArgs, cmdExecuteHandler, cmdInputChangedHandler);
}

void CmdHelpCreatedEventHandler::notify(const Ptr<core::CommandCreatedEventArgs>& eventArgs) {
  eventArgs->command()->execute()->add(&cmdExecuteHandler);
}

void CmdExecuteEventHandler::notify(const Ptr<core::CommandEventArgs>& eventArgs) {
  const std::string id = eventArgs->command()->parentCommandDefinition()->id();
  if (id == helpCommandId || id == helpCommandOnToolsId) {
    openUsersGuide();
  }
}

void CmdInputChangedEventHandler::notify(const Ptr<core::InputChangedEventArgs>& eventArgs) {
  handleInputChanged(eventArgs);
}

void MyCommandEndingEventHandler::notify(const Ptr<core::ApplicationCommandEventArgs>& eventArgs) {
  const std::string id = eventArgs->commandId();
  if (id != mainCommandId && id != mainCommandOnToolsId) {
    return;
  }
  if (eventArgs->terminationReason() == core::CompletedTerminationReason) {
    eventArgs->commandDefinition()->execute();
  }
}

}  // namespace tintora
