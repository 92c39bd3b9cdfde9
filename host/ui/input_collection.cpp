// Collections of inputs: adding, with ids unique in the whole command, and finding.
#include "host/ui/inputs.h"

namespace headless {

using adsk::core::CommandInput;
using adsk::core::Ptr;

template <class Interface, class Added, class... Arguments>
Ptr<Interface> InputCollection::addInput(const std::string& id, const std::string& name,
                                         const Arguments&... arguments) {
  auto& byId = owner.inputsById();
  if (id.empty() || byId.count(id) != 0) {
    return nullptr;
  }
  const Ptr<Added> added = makeObject<Added>(owner, *this, id, name, arguments...);
  byId.emplace(id, added.get());
  inputs.push_back(added.get());
  owned.push_back(added->handle());
  return Ptr<Interface>(added);
}

Ptr<CommandInput> InputCollection::item(size_t index) const {
  return call(
      "item", [&]() -> Ptr<CommandInput> { return index < owned.size() ? owned[index] : nullptr; }, index);
}

size_t InputCollection::count() const {
  return call("count", [this] { return owned.size(); });
}

Ptr<CommandInput> InputCollection::itemById(const std::string& id) const {
  return call(
      "itemById",
      [&]() -> Ptr<CommandInput> {
        const auto& byId = owner.inputsById();
        const auto found = byId.find(id);
        return found == byId.end() ? nullptr : found->second->handle();
      },
      id);
}

Ptr<adsk::core::Command> InputCollection::command() const {
  return call("command", [this] { return owner.commandHandle(); });
}

Ptr<adsk::core::GroupCommandInput> InputCollection::addGroupCommandInput(const std::string& id,
                                                                         const std::string& name) {
  return call(
      "addGroupCommandInput", [&] { return addInput<adsk::core::GroupCommandInput, GroupInput>(id, name); }, id, name);
}

Ptr<adsk::core::SelectionCommandInput> InputCollection::addSelectionInput(const std::string& id,
                                                                          const std::string& name,
                                                                          const std::string& commandPrompt) {
  return call(
      "addSelectionInput",
      [&] { return addInput<adsk::core::SelectionCommandInput, SelectionInput>(id, name, commandPrompt); }, id, name,
      commandPrompt);
}

Ptr<adsk::core::ButtonRowCommandInput> InputCollection::addButtonRowCommandInput(const std::string& id,
                                                                                 const std::string& name,
                                                                                 bool isMultiSelectEnabled) {
  return call(
      "addButtonRowCommandInput",
      [&] { return addInput<adsk::core::ButtonRowCommandInput, ButtonRowInput>(id, name, isMultiSelectEnabled); }, id,
      name, isMultiSelectEnabled);
}

Ptr<adsk::core::TextBoxCommandInput> InputCollection::addTextBoxCommandInput(const std::string& id,
                                                                             const std::string& name,
                                                                             const std::string& formattedText,
                                                                             int numRows, bool isReadOnly) {
  return call(
      "addTextBoxCommandInput",
      [&] {
        return addInput<adsk::core::TextBoxCommandInput, TextBoxInput>(id, name, formattedText, numRows, isReadOnly);
      },
      id, name, formattedText, numRows, isReadOnly);
}

Ptr<adsk::core::DropDownCommandInput> InputCollection::addDropDownCommandInput(
    const std::string& id, const std::string& name, adsk::core::DropDownStyles dropDownStyle) {
  return call(
      "addDropDownCommandInput",
      [&] { return addInput<adsk::core::DropDownCommandInput, DropDownInput>(id, name, dropDownStyle); }, id, name,
      dropDownStyle);
}

Ptr<adsk::core::StringValueCommandInput> InputCollection::addStringValueInput(const std::string& id,
                                                                              const std::string& name,
                                                                              const std::string& initialValue) {
  return call(
      "addStringValueInput",
      [&] { return addInput<adsk::core::StringValueCommandInput, StringInput>(id, name, initialValue); }, id, name,
      initialValue);
}

Ptr<adsk::core::BoolValueCommandInput> InputCollection::addBoolValueInput(const std::string& id,
                                                                          const std::string& name, bool isCheckBox,
                                                                          const std::string& resourceFolder,
                                                                          bool initialValue) {
  return call(
      "addBoolValueInput",
      [&] {
        return addInput<adsk::core::BoolValueCommandInput, BoolInput>(id, name, isCheckBox, resourceFolder,
                                                                      initialValue);
      },
      id, name, isCheckBox, resourceFolder, initialValue);
}

void InputCollection::markAllGone() {
  for (InputCore* input : inputs) {
    input->markGone();
  }
  markDeleted();
}

std::string InputCollection::traceDetail() const {
  return isAlive() && group_ != nullptr ? group_->inputId() : std::string();
}

}  // namespace headless
