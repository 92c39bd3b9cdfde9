#include "host/ui/user_interface.h"

#include <algorithm>

namespace headless {

using adsk::core::Ptr;

Ptr<adsk::core::Selection> IdleSelection::item(size_t index) const {
  return call(
      "item",
      [&]() -> Ptr<adsk::core::Selection> {
        return index < selections.size() ? Ptr<adsk::core::Selection>(selections[index]) : nullptr;
      },
      index);
}

size_t IdleSelection::count() const {
  return call("count", [this] { return selections.size(); });
}

bool IdleSelection::add(const Ptr<adsk::core::Base>& entity) {
  return call(
      "add", [&] { return pick(entity); }, entity);
}

bool IdleSelection::clear() {
  return call("clear", [this] {
    drop();
    return true;
  });
}

void IdleSelection::drop() {
  for (const Ptr<SelectionObject>& each : selections) {
    each->markDeleted();
  }
  selections.clear();
}

bool IdleSelection::unpick(const Ptr<adsk::core::Base>& entity) {
  const auto found = std::find_if(selections.begin(), selections.end(), [&](const Ptr<SelectionObject>& each) {
    return isSameEntity(each->picked(), entity);
  });
  if (found == selections.end()) {
    return false;
  }
  (*found)->markDeleted();
  selections.erase(found);
  return true;
}

bool IdleSelection::pick(const Ptr<adsk::core::Base>& entity) {
  const bool isSelected = std::any_of(selections.begin(), selections.end(), [&](const Ptr<SelectionObject>& each) {
    return isSameEntity(each->picked(), entity);
  });
  if (!isThere(entity) || isSelected) {
    return false;
  }
  selections.push_back(makeObject<SelectionObject>(entity));
  return true;
}

UserInterfaceObject::UserInterfaceObject(const Profile& hostProfile, Boundary& boundary)
    : starting(makeObject<ApplicationCommandEventObject>("commandStarting", this)),
      created(makeObject<ApplicationCommandEventObject>("commandCreated", this)),
      terminated(makeObject<ApplicationCommandEventObject>("commandTerminated", this)),
      runner_(hostProfile, boundary, {*starting.get(), *created.get(), *terminated.get()}),
      workspaces_(makeObject<WorkspacesObject>()),
      definitions_(makeObject<DefinitionsObject>(
          [this](DefinitionObject& definition) { return runner_.startByProgram(definition); })),
      idleSelection_(makeObject<IdleSelection>()) {
  runner_.fillPreselection = [this](SelectionInput& input) {
    for (const Ptr<SelectionObject>& each : idleSelection_->picked()) {
      if (input.whyRefused(each->picked()).empty()) {
        input.pick(each->picked());
      }
    }
  };
  runner_.showFailure = [this](const std::string& message) {
    boxes_.show({message, "", adsk::core::OKButtonType, adsk::core::CriticalIconType});
  };
}

UserInterfaceObject::~UserInterfaceObject() = default;

std::vector<std::string> UserInterfaceObject::attachedHandlers() const {
  std::vector<std::string> sentences;
  const auto look = [&](const std::string& event, std::size_t count) {
    if (count > 0) {
      const std::string handlers = count == 1 ? " handler is" : " handlers are";
      sentences.push_back(std::to_string(count) + handlers + " still attached to " + event);
    }
  };
  look("commandStarting", starting->handlerCount());
  look("commandCreated", created->handlerCount());
  look("commandTerminated", terminated->handlerCount());
  for (const Ptr<DefinitionObject>& definition : definitions_->all()) {
    look("commandCreated of " + definition->texts().id, definition->createdEvent().handlerCount());
  }
  return sentences;
}

Ptr<adsk::core::Workspaces> UserInterfaceObject::workspaces() const {
  return call("workspaces", [this] { return Ptr<adsk::core::Workspaces>(workspaces_); });
}

Ptr<adsk::core::CommandDefinitions> UserInterfaceObject::commandDefinitions() const {
  return call("commandDefinitions", [this] { return Ptr<adsk::core::CommandDefinitions>(definitions_); });
}

Ptr<adsk::core::ApplicationCommandEvent> UserInterfaceObject::commandTerminated() const {
  return call("commandTerminated", [this] { return Ptr<adsk::core::ApplicationCommandEvent>(terminated); });
}

Ptr<adsk::core::ApplicationCommandEvent> UserInterfaceObject::commandCreated() const {
  return call("commandCreated", [this] { return Ptr<adsk::core::ApplicationCommandEvent>(created); });
}

Ptr<adsk::core::ApplicationCommandEvent> UserInterfaceObject::commandStarting() const {
  return call("commandStarting", [this] { return Ptr<adsk::core::ApplicationCommandEvent>(starting); });
}

adsk::core::DialogResults UserInterfaceObject::messageBox(const std::string& text, const std::string& title,
                                                          adsk::core::MessageBoxButtonTypes buttons,
                                                          adsk::core::MessageBoxIconTypes icon) const {
  return call(
      "messageBox",
      [&] {
        return boxes_.show({text, title, buttons, icon});
      },
      text, title, buttons, icon);
}

Ptr<adsk::core::ProgressDialog> UserInterfaceObject::createProgressDialog() {
  return call("createProgressDialog", [this] {
    progressDialogs.push_back(makeObject<ProgressDialogObject>());
    return Ptr<adsk::core::ProgressDialog>(progressDialogs.back());
  });
}

ProgressDialogObject* UserInterfaceObject::shownProgress() const {
  const auto newest = std::find_if(progressDialogs.rbegin(), progressDialogs.rend(),
                                   [](const auto& dialog) { return dialog->isOnScreen(); });
  return newest != progressDialogs.rend() ? newest->get() : nullptr;
}

std::string UserInterfaceObject::activeCommand() const {
  return call("activeCommand", [this]() -> std::string {
    return runner_.active() ? runner_.active()->definition().texts().id : "SelectCommand";
  });
}

Ptr<adsk::core::Selections> UserInterfaceObject::activeSelections() const {
  return call("activeSelections", [this] { return Ptr<adsk::core::Selections>(idleSelection_); });
}

void UserInterfaceObject::close() {
  runner_.close();
  idleSelection_->drop();
  for (const Ptr<DefinitionObject>& definition : definitions_->all()) {
    definition->markGone();
  }
  const std::initializer_list<Ptr<ApplicationCommandEventObject>> events{starting, created, terminated};
  for (const auto& event : events) {
    event->markDeleted();
  }
  for (const Ptr<ProgressDialogObject>& dialog : progressDialogs) {
    dialog->markDeleted();
  }
  workspaces_->markGone();
  definitions_->markDeleted();
  idleSelection_->markDeleted();
  markDeleted();
}

}  // namespace headless
