// Class InputChangedEventHandler.
#pragma once

#include "../Application/EventHandler.h"
#include "../Memory.h"

namespace adsk {
namespace core {

class InputChangedEventArgs;

/// To be derived from by whoever wants to be called when an InputChangedEvent fires.
class InputChangedEventHandler : public EventHandler {
 public:
  /// Called on the user-interface thread; what happens to an exception that leaves it is the host's affair.
  virtual void notify(const Ptr<InputChangedEventArgs>& eventArgs) = 0;
};

}  // namespace core
}  // namespace adsk
