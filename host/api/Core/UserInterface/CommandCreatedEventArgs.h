// Class CommandCreatedEventArgs.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class Command;

/// What a command-created handler is given.
class CommandCreatedEventArgs : public EventArgs {
  ADSK_API_CLASS(CommandCreatedEventArgs, EventArgs)

  /// The new command (documented).
  virtual Ptr<Command> command() const = 0;
};

}  // namespace core
}  // namespace adsk
