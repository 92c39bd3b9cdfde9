// Class ApplicationCommandEvent.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class ApplicationCommandEventHandler;

/// Fires for commands of anybody, native ones included (documented).
class ApplicationCommandEvent : public Event {
  ADSK_API_CLASS(ApplicationCommandEvent, Event)

  /// True when the handler joined (documented); false for nullptr (assumed). The handler stays the caller's
  /// (documented). Adding one twice is not documented: true, and it is called once (assumed).
  virtual bool add(ApplicationCommandEventHandler* handler) = 0;
  /// True when it was found and removed (documented).
  virtual bool remove(ApplicationCommandEventHandler* handler) = 0;
};

}  // namespace core
}  // namespace adsk
