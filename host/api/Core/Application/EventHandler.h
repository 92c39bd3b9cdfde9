// Base class of everything that is called when an event fires.
#pragma once

namespace adsk {
namespace core {

class HandlerAttachments;

/// A handler belongs to the client. Its destructor takes it out of every event it was added to. It is no API object: it
/// has no references (both documented), and here it cannot be copied: a copy would share the hidden pointer.
class EventHandler {
 public:
  EventHandler();
  EventHandler(const EventHandler&) = delete;
  EventHandler& operator=(const EventHandler&) = delete;
  virtual ~EventHandler();

 private:
  // The events that the handler is attached to, as the host keeps them.
  friend class HandlerAttachments;
  void* hostData;
};

}  // namespace core
}  // namespace adsk
