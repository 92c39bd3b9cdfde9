// Base classes of events and of what their handlers are given.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// Something that handlers can be added to. All members are documented unless marked.
class Event : public Base {
  ADSK_API_CLASS(Event, Base)

  /// Name of the event, such as "execute".
  virtual std::string name() const = 0;
  /// Who fires it: the command, the user interface for application-wide events, and the definition for its
  /// command-created event (the last assumed).
  virtual Ptr<Base> sender() const = 0;
};

/// What a handler is given.
class EventArgs : public Base {
  ADSK_API_CLASS(EventArgs, Base)

  /// The event that is being fired (documented).
  virtual Ptr<Event> firingEvent() const = 0;
};

}  // namespace core
}  // namespace adsk
