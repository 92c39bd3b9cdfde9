// Class CommandEvent.
#pragma once

#include "../Application/Events.h"
#include "../Base.h"

namespace adsk {
namespace core {

class CommandEventHandler;

/// Fires at a point in the life of a command, such as its execution (documented).
class CommandEvent : public Event {
  ADSK_API_CLASS(CommandEvent, Event)

  /// True when the handler joined (documented); false for nullptr (assumed). The handler stays the caller's
  /// (documented). Adding one twice is not documented: true, and it is called once (assumed).
  virtual bool add(CommandEventHandler* handler) = 0;
  /// True when it was found and removed (documented).
  virtual bool remove(CommandEventHandler* handler) = 0;
};

}  // namespace core
}  // namespace adsk
