// Class ApplicationCommandEvent.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class ApplicationCommandEventHandler;

/// Fires for commands of anybody, native ones included.
class ApplicationCommandEvent : public Event {
  ADSK_API_CLASS(ApplicationCommandEvent, Event)

  /// True when the handler joined; false for nullptr. The handler stays the caller's. Adding one twice is not
  /// documented: it is called once (assumed).
  virtual bool add(ApplicationCommandEventHandler* handler) = 0;
  /// True when it was found and removed (documented).
  virtual bool remove(ApplicationCommandEventHandler* handler) = 0;
};

}  // namespace core
}  // namespace adsk
