// Class InputChangedEventArgs.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class CommandInput;
class CommandInputs;

/// What an input-changed handler is given. All members are documented unless marked.
class InputChangedEventArgs : public EventArgs {
  ADSK_API_CLASS(InputChangedEventArgs, EventArgs)

  /// The input that was changed.
  virtual Ptr<CommandInput> input() const = 0;
  /// The inputs of the command; some hosts may give those of the input's group (assumed: the command's).
  virtual Ptr<CommandInputs> inputs() const = 0;
};

}  // namespace core
}  // namespace adsk
