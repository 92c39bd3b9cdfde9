// Class CommandCreatedEvent.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class CommandCreatedEventHandler;

/// Fires when a command was created, before its dialog is shown: the place to add inputs (documented).
class CommandCreatedEvent : public Event {
  ADSK_API_CLASS(CommandCreatedEvent, Event)

  /// True when the handler joined (documented); false for nullptr (assumed). The handler stays the caller's
  /// (documented). Adding one twice is not documented: true, and it is called once (assumed).
  virtual bool add(CommandCreatedEventHandler* handler) = 0;
  /// True when it was found and removed (documented).
  virtual bool remove(CommandCreatedEventHandler* handler) = 0;
};

}  // namespace core
}  // namespace adsk
