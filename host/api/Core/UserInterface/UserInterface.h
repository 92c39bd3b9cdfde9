// Class UserInterface.
#pragma once

#include <string>

#include "../Base.h"
#include "../CoreTypeDefs.h"

namespace adsk {
namespace core {

class ApplicationCommandEvent;
class CommandDefinitions;
class ProgressDialog;
class Selections;
class Workspaces;

/// What is on screen. All members are documented.
class UserInterface : public Base {
  ADSK_API_CLASS(UserInterface, Base)

  /// All workspaces.
  virtual Ptr<Workspaces> workspaces() const = 0;
  /// All command definitions, native and API-made ones together.
  virtual Ptr<CommandDefinitions> commandDefinitions() const = 0;
  /// Fires when any command ends.
  virtual Ptr<ApplicationCommandEvent> commandTerminated() const = 0;
  /// Fires after any command was created.
  virtual Ptr<ApplicationCommandEvent> commandCreated() const = 0;
  /// Fires before a command starts.
  virtual Ptr<ApplicationCommandEvent> commandStarting() const = 0;
  /// Shows a modal box and gives the button that closed it.
  virtual DialogResults messageBox(const std::string& text, const std::string& title = "",
                                   MessageBoxButtonTypes buttons = OKButtonType,
                                   MessageBoxIconTypes icon = NoIconIconType) const = 0;
  /// A new progress dialog that is not shown yet.
  virtual Ptr<ProgressDialog> createProgressDialog() = 0;
  /// Id of the running command's definition; "SelectCommand" when idle.
  virtual std::string activeCommand() const = 0;
  /// The selection outside of commands.
  virtual Ptr<Selections> activeSelections() const = 0;
};

}  // namespace core
}  // namespace adsk
