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
  /// Called on the user-interface thread (documented). What becomes of an exception that leaves it is not documented:
  /// the host keeps it, and calls the next handler (assumed).
  virtual void notify(const Ptr<InputChangedEventArgs>& eventArgs) = 0;
};

}  // namespace core
}  // namespace adsk
