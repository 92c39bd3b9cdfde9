// Class ApplicationCommandEventArgs.
#pragma once

#include <string>

#include "../Application/Events.h"
#include "../Base.h"
#include "../CoreTypeDefs.h"

namespace adsk {
namespace core {

class CommandDefinition;

/// What a handler of an application-wide command event is given. All members are documented unless marked.
class ApplicationCommandEventArgs : public EventArgs {
  ADSK_API_CLASS(ApplicationCommandEventArgs, EventArgs)

  /// Id of the command, which is its definition's id.
  virtual std::string commandId() const = 0;
  /// What the command was started from; empty when that was deleted meanwhile (the latter assumed).
  virtual Ptr<CommandDefinition> commandDefinition() const = 0;
  /// Meaningful for the command-terminated event only.
  virtual CommandTerminationReason terminationReason() const = 0;
  /// Set to true in the command-starting event to stop the command.
  virtual bool isCanceled() const = 0;
  virtual bool isCanceled(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
