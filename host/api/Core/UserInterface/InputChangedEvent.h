// Class InputChangedEvent.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class InputChangedEventHandler;

/// Fires when the user changed an input of the dialog (documented).
class InputChangedEvent : public Event {
  ADSK_API_CLASS(InputChangedEvent, Event)

  /// True when the handler joined (documented); false for nullptr (assumed). The handler stays the caller's
  /// (documented). Adding one twice is not documented: true, and it is called once (assumed).
  virtual bool add(InputChangedEventHandler* handler) = 0;
  /// True when it was found and removed (documented).
  virtual bool remove(InputChangedEventHandler* handler) = 0;
};

}  // namespace core
}  // namespace adsk
