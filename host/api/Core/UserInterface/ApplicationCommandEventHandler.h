// Class ApplicationCommandEventHandler.
#pragma once

#include "../Application/EventHandler.h"
#include "../Memory.h"

namespace adsk {
namespace core {

class ApplicationCommandEventArgs;

/// To be derived from by whoever wants to be called when an ApplicationCommandEvent fires.
class ApplicationCommandEventHandler : public EventHandler {
 public:
  /// Called on the user-interface thread (documented). What becomes of an exception that leaves it is not documented:
  /// the host keeps it, and calls the next handler (assumed).
  virtual void notify(const Ptr<ApplicationCommandEventArgs>& eventArgs) = 0;
};

}  // namespace core
}  // namespace adsk
