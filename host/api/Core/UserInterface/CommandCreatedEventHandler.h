// Class CommandCreatedEventHandler.
#pragma once

#include "../Application/EventHandler.h"
#include "../Memory.h"

namespace adsk {
namespace core {

class CommandCreatedEventArgs;

/// To be derived from by whoever wants to be called when a CommandCreatedEvent fires.
class CommandCreatedEventHandler : public EventHandler {
 public:
  /// Called on the user-interface thread (documented). What becomes of an exception that leaves it is not documented:
  /// the host keeps it, and calls the next handler (assumed).
  virtual void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) = 0;
};

}  // namespace core
}  // namespace adsk
