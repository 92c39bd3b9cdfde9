#include "host/ui/events.h"

namespace headless {

namespace {

using Attachments = std::vector<AttachedEvent*>;

Attachments& attachmentsOf(const adsk::core::EventHandler& handler) {
  return *static_cast<Attachments*>(handler.attachments());
}

}  // namespace

void tieHandler(const adsk::core::EventHandler& handler, AttachedEvent& event) {
  attachmentsOf(handler).push_back(&event);
}

void untieHandler(const adsk::core::EventHandler& handler, const AttachedEvent& event) {
  Attachments& attachments = attachmentsOf(handler);
  attachments.erase(std::remove(attachments.begin(), attachments.end(), &event), attachments.end());
}

}  // namespace headless

namespace adsk {
namespace core {

EventHandler::EventHandler() : hostData(new headless::Attachments) {}

EventHandler::~EventHandler() {
  headless::Attachments& attachments = headless::attachmentsOf(*this);
  for (headless::AttachedEvent* event : attachments) {
    event->forget(this);
  }
  delete &attachments;
}

}  // namespace core
}  // namespace adsk
