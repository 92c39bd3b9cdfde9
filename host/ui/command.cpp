#include "host/ui/command.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace headless {

using adsk::core::Ptr;

namespace {

// In the order of the dialog, those in groups included.
std::vector<SelectionInput*> selectionInputs(const InputCollection& collection) {
  std::vector<SelectionInput*> found;
  for (InputCore* input : collection.all()) {
    if (auto* selection = dynamic_cast<SelectionInput*>(input)) {
      found.push_back(selection);
    } else if (const auto* group = dynamic_cast<const GroupInput*>(input)) {
      const auto inGroup = selectionInputs(group->childInputs());
      found.insert(found.end(), inGroup.begin(), inGroup.end());
    }
  }
  return found;
}

}  // namespace

CommandObject::CommandObject(const Ptr<DefinitionObject>& madeFrom, const Profile& hostProfile, CommandListener& runner)
    : executeEvent(makeObject<CommandEventObject>("execute", this)),
      inputChangedEvent(makeObject<InputChangedEventObject>("inputChanged", this)),
      activateEvent(makeObject<CommandEventObject>("activate", this)),
      deactivateEvent(makeObject<CommandEventObject>("deactivate", this)),
      destroyEvent(makeObject<CommandEventObject>("destroy", this)),
      definition_(madeFrom),
      profile(hostProfile),
      listener(runner),
      inputs_(makeObject<InputCollection>(*this, nullptr)) {}

CommandObject::~CommandObject() {
  markGone();
}

Ptr<adsk::core::CommandInputs> CommandObject::commandInputs() const {
  return call("commandInputs", [this] { return inputs_->handle(); });
}

Ptr<adsk::core::CommandDefinition> CommandObject::parentCommandDefinition() const {
  return call("parentCommandDefinition", [this]() -> Ptr<adsk::core::CommandDefinition> {
    return definition_->isAlive() ? Ptr<adsk::core::CommandDefinition>(definition_) : nullptr;
  });
}

Ptr<adsk::core::CommandEvent> CommandObject::execute() const {
  return call("execute", [this] { return Ptr<adsk::core::CommandEvent>(executeEvent); });
}

Ptr<adsk::core::InputChangedEvent> CommandObject::inputChanged() const {
  return call("inputChanged", [this] { return Ptr<adsk::core::InputChangedEvent>(inputChangedEvent); });
}

Ptr<adsk::core::CommandEvent> CommandObject::activate() const {
  return call("activate", [this] { return Ptr<adsk::core::CommandEvent>(activateEvent); });
}

Ptr<adsk::core::CommandEvent> CommandObject::deactivate() const {
  return call("deactivate", [this] { return Ptr<adsk::core::CommandEvent>(deactivateEvent); });
}

Ptr<adsk::core::CommandEvent> CommandObject::destroy() const {
  return call("destroy", [this] { return Ptr<adsk::core::CommandEvent>(destroyEvent); });
}

bool CommandObject::doExecute(bool terminate) {
  return call(
      "doExecute", [&] { return listener.executeByProgram(*this, terminate); }, terminate);
}

template <class Value>
bool CommandObject::store(const char* member, Value& field, const Value& value) {
  return call(
      member,
      [&] {
        field = value;
        return true;
      },
      value);
}

bool CommandObject::isOKButtonVisible() const {
  return call("isOKButtonVisible", [this] { return options_.isOKButtonVisible; });
}

bool CommandObject::isOKButtonVisible(bool value) {
  return store("isOKButtonVisible=", options_.isOKButtonVisible, value);
}

std::string CommandObject::okButtonText() const {
  return call("okButtonText", [this] { return options_.okButtonText; });
}

bool CommandObject::okButtonText(const std::string& value) {
  return store("okButtonText=", options_.okButtonText, value);
}

std::string CommandObject::cancelButtonText() const {
  return call("cancelButtonText", [this] { return options_.cancelButtonText; });
}

bool CommandObject::cancelButtonText(const std::string& value) {
  return store("cancelButtonText=", options_.cancelButtonText, value);
}

bool CommandObject::isExecutedWhenPreEmpted() const {
  return call("isExecutedWhenPreEmpted", [this] { return options_.isExecutedWhenPreEmpted; });
}

bool CommandObject::isExecutedWhenPreEmpted(bool value) {
  return store("isExecutedWhenPreEmpted=", options_.isExecutedWhenPreEmpted, value);
}

bool CommandObject::isAutoExecute() const {
  return call("isAutoExecute", [this] { return options_.isAutoExecute; });
}

bool CommandObject::isAutoExecute(bool value) {
  return store("isAutoExecute=", options_.isAutoExecute, value);
}

bool CommandObject::isRepeatable() const {
  return call("isRepeatable", [this] { return options_.isRepeatable; });
}

bool CommandObject::isRepeatable(bool value) {
  return store("isRepeatable=", options_.isRepeatable, value);
}

bool CommandObject::setDialogInitialSize(int width, int height) {
  return storeSize("setDialogInitialSize", options_.initialSize, {width, height});
}

bool CommandObject::setDialogMinimumSize(int width, int height) {
  return storeSize("setDialogMinimumSize", options_.minimumSize, {width, height});
}

bool CommandObject::storeSize(const char* member, DialogSize& field, const DialogSize& value) {
  return call(
      member,
      [&] {
        const bool isSize = value.width > 0 && value.height > 0;
        field = isSize ? value : field;
        return isSize;
      },
      value.width, value.height);
}

void CommandObject::inputChangedByProgram(InputCore& input) {
  listener.changedByProgram(*this, input);
}

void CommandObject::selectionClearedByProgram(InputCore& input) {
  listener.selectionCleared(*this, input);
}

InputCore* CommandObject::findInput(const std::string& id) const {
  const auto found = byId.find(id);
  return found == byId.end() ? nullptr : found->second;
}

SelectionInput* CommandObject::selectionInput() const {
  SelectionInput* first = nullptr;
  for (SelectionInput* each : selectionInputs(*inputs_.get())) {
    if (each->enabled) {
      return each;
    }
    first = first != nullptr ? first : each;
  }
  return first;
}

bool CommandObject::areInputsValid() const {
  const auto inputs = selectionInputs(*inputs_.get());
  return std::none_of(inputs.begin(), inputs.end(),
                      [](const SelectionInput* each) { return each->visible && each->isBelowMinimum(); });
}

void CommandObject::markGone() {
  inputs_->markAllGone();
  executeEvent->markDeleted();
  inputChangedEvent->markDeleted();
  activateEvent->markDeleted();
  deactivateEvent->markDeleted();
  destroyEvent->markDeleted();
  markDeleted();
}

Ptr<adsk::core::Event> CreatedArguments::firingEvent() const {
  return call("firingEvent", [this] { return event; });
}

Ptr<adsk::core::Command> CreatedArguments::command() const {
  return call("command", [this] { return command_; });
}

Ptr<adsk::core::Event> CommandArguments::firingEvent() const {
  return call("firingEvent", [this] { return event; });
}

Ptr<adsk::core::Command> CommandArguments::command() const {
  return call("command", [this] { return command_; });
}

bool CommandArguments::executeFailed() const {
  return call("executeFailed", [this] { return hasFailed; });
}

bool CommandArguments::executeFailed(bool value) {
  return call(
      "executeFailed=",
      [&] {
        hasFailed = value;
        return true;
      },
      value);
}

std::string CommandArguments::executeFailedMessage() const {
  return call("executeFailedMessage", [this] { return message; });
}

bool CommandArguments::executeFailedMessage(const std::string& value) {
  return call(
      "executeFailedMessage=",
      [&] {
        message = value;
        return true;
      },
      value);
}

adsk::core::CommandTerminationReason CommandArguments::terminationReason() const {
  return call("terminationReason", [this] { return reason; });
}

Ptr<adsk::core::Event> InputChangedArguments::firingEvent() const {
  return call("firingEvent", [this] { return event; });
}

Ptr<adsk::core::CommandInput> InputChangedArguments::input() const {
  return call("input", [this] { return input_; });
}

Ptr<adsk::core::CommandInputs> InputChangedArguments::inputs() const {
  return call("inputs", [this] { return inputs_; });
}

Ptr<adsk::core::Event> ApplicationArguments::firingEvent() const {
  return call("firingEvent", [this] { return event; });
}

std::string ApplicationArguments::commandId() const {
  return call("commandId", [this] { return commandId_; });
}

Ptr<adsk::core::CommandDefinition> ApplicationArguments::commandDefinition() const {
  return call("commandDefinition", [this]() -> Ptr<adsk::core::CommandDefinition> {
    return definition->isAlive() ? Ptr<adsk::core::CommandDefinition>(definition) : nullptr;
  });
}

adsk::core::CommandTerminationReason ApplicationArguments::terminationReason() const {
  return call("terminationReason", [this] { return reason; });
}

bool ApplicationArguments::isCanceled() const {
  return call("isCanceled", [this] { return stopped; });
}

bool ApplicationArguments::isCanceled(bool value) {
  return call(
      "isCanceled=",
      [&] {
        stopped = value;
        return true;
      },
      value);
}

}  // namespace headless
