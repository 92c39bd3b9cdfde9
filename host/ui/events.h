// Events that handlers can be added to, and the ties between a handler and the events it is attached to.
#pragma once

#include <Core/CoreAll.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "host/runtime/boundary.h"
#include "host/runtime/object.h"

namespace headless {

/// The side of an event that a handler's destructor knows.
class AttachedEvent {
 public:
  virtual void forget(const adsk::core::EventHandler* handler) = 0;

 protected:
  ~AttachedEvent() = default;
};

/// Ties handler and event together, so that either may go first.
void tieHandler(const adsk::core::EventHandler& handler, AttachedEvent& event);
void untieHandler(const adsk::core::EventHandler& handler, const AttachedEvent& event);

/// Implements one of the API's event classes. Handlers are called in the order in which they were added.
template <class Interface, class Handler, class Arguments>
class EventObject final : public HostObject<Interface>, public AttachedEvent {
 public:
  /// `owner` is what sender() gives; it must outlive the event or mark it deleted.
  EventObject(std::string eventName, adsk::core::Base* owner) : name_(std::move(eventName)), owner_(owner) {}

  ~EventObject() override {
    for (const Handler* handler : handlers) {
      untieHandler(*handler, *this);
    }
  }

  std::string name() const override {
    return this->call("name", [this] { return name_; });
  }

  adsk::core::Ptr<adsk::core::Base> sender() const override {
    return this->call("sender", [this] { return adsk::core::Ptr<adsk::core::Base>(owner_, false); });
  }

  bool add(Handler* handler) override {
    return this->call(
        "add",
        [this, handler] {
          if (handler == nullptr) {
            return false;
          }
          if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end()) {
            handlers.push_back(handler);
            tieHandler(*handler, *this);
          }
          return true;
        },
        handler);
  }

  bool remove(Handler* handler) override {
    return this->call(
        "remove",
        [this, handler] {
          if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end()) {
            return false;
          }
          untieHandler(*handler, *this);
          forget(handler);
          return true;
        },
        handler);
  }

  void forget(const adsk::core::EventHandler* handler) override {
    handlers.erase(std::remove(handlers.begin(), handlers.end(), handler), handlers.end());
  }

  /// Calls the handlers; what one throws is kept and the next one is called all the same.
  void fire(Boundary& boundary, const adsk::core::Ptr<Arguments>& arguments, const std::string& detail = {}) {
    const std::string where = detail.empty() ? name_ : name_ + "(" + detail + ")";
    if (CallGate* gate = CallGate::active()) {
      gate->note("event " + where);
    }
    const std::vector<Handler*> called = handlers;
    for (Handler* handler : called) {
      if (std::find(handlers.begin(), handlers.end(), handler) != handlers.end()) {
        boundary.run(where, [&] { handler->notify(arguments); });
      }
    }
  }

  std::size_t handlerCount() const { return handlers.size(); }

 protected:
  std::string traceDetail() const override { return name_; }

 private:
  std::string name_;
  adsk::core::Base* owner_;
  std::vector<Handler*> handlers;
};

using CommandCreatedEventObject = EventObject<adsk::core::CommandCreatedEvent, adsk::core::CommandCreatedEventHandler,
                                              adsk::core::CommandCreatedEventArgs>;
using CommandEventObject =
    EventObject<adsk::core::CommandEvent, adsk::core::CommandEventHandler, adsk::core::CommandEventArgs>;
using InputChangedEventObject =
    EventObject<adsk::core::InputChangedEvent, adsk::core::InputChangedEventHandler, adsk::core::InputChangedEventArgs>;
using ApplicationCommandEventObject =
    EventObject<adsk::core::ApplicationCommandEvent, adsk::core::ApplicationCommandEventHandler,
                adsk::core::ApplicationCommandEventArgs>;

}  // namespace headless
