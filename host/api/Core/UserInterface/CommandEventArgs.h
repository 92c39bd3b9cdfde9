// Class CommandEventArgs.
#pragma once

#include <string>

#include "../Application/Events.h"
#include "../Base.h"
#include "../CoreTypeDefs.h"

namespace adsk {
namespace core {

class Command;

/// What a handler of a command event is given. All members are documented.
class CommandEventArgs : public EventArgs {
  ADSK_API_CLASS(CommandEventArgs, EventArgs)

  /// The command that the event is about.
  virtual Ptr<Command> command() const = 0;
  /// Set to true by a handler to abort the transaction of the command.
  virtual bool executeFailed() const = 0;
  virtual bool executeFailed(bool value) = 0;
  /// The text shown when it failed.
  virtual std::string executeFailedMessage() const = 0;
  virtual bool executeFailedMessage(const std::string& value) = 0;
  /// Valid in the destroy event only.
  virtual CommandTerminationReason terminationReason() const = 0;
};

}  // namespace core
}  // namespace adsk
