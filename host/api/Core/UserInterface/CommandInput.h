// Class CommandInput.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Command;
class CommandInputs;

/// An input of a dialog. All members are documented.
class CommandInput : public Base {
  ADSK_API_CLASS(CommandInput, Base)

  /// Unique in the whole command.
  virtual std::string id() const = 0;
  /// The label.
  virtual std::string name() const = 0;
  /// Greyed out when false; for a selection input it acts like hasFocus.
  virtual bool isEnabled() const = 0;
  virtual bool isEnabled(bool value) = 0;
  /// Hiding a selection input clears it.
  virtual bool isVisible() const = 0;
  virtual bool isVisible(bool value) = 0;
  /// The collection it lives in, the command's or its group's.
  virtual Ptr<CommandInputs> commandInputs() const = 0;
  /// The command whose dialog it is in.
  virtual Ptr<Command> parentCommand() const = 0;
  /// The group; empty at the top level.
  virtual Ptr<CommandInput> parentCommandInput() const = 0;
};

}  // namespace core
}  // namespace adsk
