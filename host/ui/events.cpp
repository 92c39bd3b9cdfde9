#include "host/ui/events.h"

namespace {

using Attachments = std::vector<headless::AttachedEvent*>;

}  // namespace

namespace adsk {
namespace core {

/// What stands behind the hidden pointer of a handler.
class HandlerAttachments {
 public:
  static Attachments& of(const EventHandler& handler) { return *static_cast<Attachments*>(handler.hostData); }
};

EventHandler::EventHandler() : hostData(new Attachments) {}

EventHandler::~EventHandler() {
  Attachments& attachments = HandlerAttachments::of(*this);
  for (headless::AttachedEvent* event : attachments) {
    event->forget(this);
  }
  delete &attachments;
}

}  // namespace core
}  // namespace adsk

namespace headless {

using adsk::core::HandlerAttachments;

void tieHandler(const adsk::core::EventHandler& handler, AttachedEvent& event) {
  HandlerAttachments::of(handler).push_back(&event);
}

void untieHandler(const adsk::core::EventHandler& handler, const AttachedEvent& event) {
  Attachments& attachments = HandlerAttachments::of(handler);
  attachments.erase(std::remove(attachments.begin(), attachments.end(), &event), attachments.end());
}

}  // namespace headless
