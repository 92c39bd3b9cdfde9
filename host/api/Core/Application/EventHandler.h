// Base class of everything that is called when an event fires.
#pragma once

namespace adsk {
namespace core {

/// A handler belongs to the client. Its destructor takes it out of every event it was added to (documented). It is no
/// API object: it has no references and cannot be copied.
class EventHandler {
 public:
  EventHandler();
  EventHandler(const EventHandler&) = delete;
  EventHandler& operator=(const EventHandler&) = delete;
  virtual ~EventHandler();

  /// What the host keeps about the handler; owned by the host.
  void* attachments() const { return hostData; }

 private:
  void* hostData;
};

}  // namespace core
}  // namespace adsk
