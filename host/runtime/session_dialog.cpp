// What a person does in an open dialog, and why some of it is refused.
#include <utility>

#include "host/runtime/session.h"

namespace headless {

using adsk::core::Base;
using adsk::core::Ptr;

namespace {

void pickInto(SelectionInput& input, const Ptr<Base>& entity) {
  const std::string reason = input.whyRefused(entity);
  if (!reason.empty()) {
    throw UserError(pathOf(entity) + " cannot be picked: " + reason);
  }
  input.pick(entity);
}

ListItemsObject* listOf(InputCore& input) {
  if (auto* dropDown = dynamic_cast<DropDownInput*>(&input)) {
    return &dropDown->list();
  }
  auto* row = dynamic_cast<ButtonRowInput*>(&input);
  return row != nullptr ? &row->list() : nullptr;
}

// The bytes of one key, from `start`: one character of UTF-8.
std::string keyAt(const std::string& text, std::size_t start) {
  std::size_t end = start + 1;
  while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
    ++end;
  }
  return text.substr(start, end - start);
}

}  // namespace

void Session::pick(const std::string& path) {
  for (const PickKind kind : {PickKind::Component, PickKind::Body, PickKind::Face}) {
    for (const Pickable& candidate : pickables(kind)) {
      if (candidate.path == path) {
        pick(candidate);
        return;
      }
    }
  }
  throw UserError("there is nothing called " + path + " in the design");
}

void Session::pick(const Pickable& pickable) {
  design();
  pick(handleOf(pickable, *host_->document()->entities));
}

void Session::pick(const Ptr<Base>& entity) {
  note("picks " + pathOf(entity));
  if (!isDialogOpen()) {
    IdleSelection& idle = host_->ui().idleSelection();
    if (!idle.unpick(entity)) {
      idle.pick(entity);
    }
    return;
  }
  SelectionInput& input = selectionInput();
  if (!input.unpick(entity)) {
    pickInto(input, entity);
  }
  changed(input);
}

void Session::pickAll(const std::vector<Pickable>& pickables) {
  note("picks " + std::to_string(pickables.size()) + " objects at once");
  SelectionInput& input = selectionInput();
  for (const Pickable& pickable : pickables) {
    const Ptr<Base> entity = handleOf(pickable, *host_->document()->entities);
    if (!input.isPicked(entity)) {
      pickInto(input, entity);
    }
  }
  changed(input);
}

void Session::clearPicks() {
  note("picks nothing");
  if (!isDialogOpen()) {
    host_->ui().idleSelection().drop();
    return;
  }
  SelectionInput* input = activeCommand().selectionInput();
  if (input != nullptr && input->dropAll()) {
    changed(*input);
  }
}

void Session::choose(const std::string& inputId, const std::string& itemName) {
  note("chooses \"" + itemName + "\" in " + inputId);
  for (const auto& item : itemsToChoose(inputId).all()) {
    if (item->label() == itemName) {
      chooseIn(inputOf(inputId), *item.get());
      return;
    }
  }
  throw UserError(inputId + " has no item \"" + itemName + "\"");
}

void Session::choose(const std::string& inputId, std::size_t index) {
  note("chooses item " + std::to_string(index) + " in " + inputId);
  const auto& items = itemsToChoose(inputId).all();
  if (index >= items.size()) {
    throw UserError(inputId + " has no item number " + std::to_string(index));
  }
  chooseIn(inputOf(inputId), *items[index].get());
}

ListItemsObject& Session::itemsToChoose(const std::string& inputId) const {
  InputCore& input = inputOf(inputId);
  requireUsable(input, "choose in");
  ListItemsObject* list = listOf(input);
  if (list == nullptr) {
    throw UserError(inputId + " has no items to choose from");
  }
  return *list;
}

void Session::chooseIn(InputCore& input, ListItemObject& item) {
  ListItemsObject& list = *listOf(input);
  if (item.selected && list.rules().isSingleChoice) {
    return;
  }
  list.setSelected(item, !item.selected);
  changed(input);
}

void Session::type(const std::string& inputId, const std::string& text) {
  note("types \"" + text + "\" into " + inputId);
  const Ptr<CommandObject> command = host_->ui().runner().active();
  const std::string before = editableText(inputId);
  const bool continues = text.compare(0, before.size(), before) == 0;
  if (!continues) {
    enter(inputId, "");
  }
  // A reaction to a key may end the dialog, change the text or take the input away; the next key meets what is there.
  std::size_t typed = continues ? before.size() : 0;
  while (typed < text.size() && command == host_->ui().runner().active()) {
    const std::string key = keyAt(text, typed);
    enter(inputId, editableText(inputId) + key);
    typed += key.size();
  }
}

std::string Session::editableText(const std::string& inputId) const {
  InputCore& input = inputOf(inputId);
  requireUsable(input, "type into");
  if (const auto* box = dynamic_cast<const TextBoxInput*>(&input)) {
    if (box->readOnly()) {
      throw UserError("cannot type into " + inputId + ": it is read-only");
    }
    return box->shownText();
  }
  return usableInput<StringInput>(inputId, "type into").current;
}

void Session::enter(const std::string& inputId, const std::string& text) {
  InputCore& input = inputOf(inputId);
  if (auto* box = dynamic_cast<TextBoxInput*>(&input)) {
    box->type(text);
  } else {
    usableInput<StringInput>(inputId, "type into").current = text;
  }
  changed(input);
}

void Session::tick(const std::string& inputId, bool isTicked) {
  note(std::string(isTicked ? "ticks " : "unticks ") + inputId);
  InputCore& input = inputOf(inputId);
  if (auto* group = dynamic_cast<GroupInput*>(&input)) {
    tickGroup(*group, isTicked);
    return;
  }
  auto& box = usableInput<BoolInput>(inputId, "tick");
  if (!box.checkBox()) {
    throw UserError(inputId + " is a button and no check box");
  }
  if (std::exchange(box.current, isTicked) != isTicked) {
    changed(box);
  }
}

void Session::tickGroup(GroupInput& group, bool isTicked) {
  requireUsable(group, "tick");
  if (!group.tickDisplayed) {
    throw UserError("the group " + group.inputId() + " has no check box");
  }
  if (std::exchange(group.ticked, isTicked) == isTicked) {
    return;
  }
  const Ptr<CommandObject> command = host_->ui().runner().active();
  changed(group);
  if (host_->profile().tickExpandsGroup && command == host_->ui().runner().active()) {
    expand(group.inputId(), isTicked);
  }
}

void Session::expand(const std::string& groupId, bool isExpanded) {
  note(std::string(isExpanded ? "opens " : "closes ") + groupId);
  auto* group = dynamic_cast<GroupInput*>(&inputOf(groupId));
  if (group == nullptr) {
    throw UserError(groupId + " is no group");
  }
  requireReachable(*group, (isExpanded ? "cannot open " : "cannot close ") + groupId + ": ");
  if (std::exchange(group->expanded, isExpanded) != isExpanded) {
    changed(*group);
  }
}

void Session::click(const std::string& inputId) {
  note("clicks " + inputId);
  auto& button = usableInput<BoolInput>(inputId, "click");
  if (button.checkBox()) {
    throw UserError(inputId + " is a check box and no button");
  }
  const Ptr<CommandObject> command = host_->ui().runner().active();
  button.current = true;
  changed(button);
  button.current = false;
  if (host_->profile().clickRaisesTwoEvents && command == host_->ui().runner().active()) {
    changed(button);
  }
}

void Session::pressOk() {
  note("presses OK");
  const CommandObject& command = activeCommand();
  if (!command.options().isOKButtonVisible) {
    throw UserError("the dialog has no OK button");
  }
  if (!command.areInputsValid()) {
    throw UserError("OK is greyed out: something is still to be selected");
  }
  host_->ui().runner().confirm();
  checkHost();
}

void Session::pressCancel() {
  note("presses Cancel");
  activeCommand();
  host_->ui().runner().end(adsk::core::CancelledTerminationReason);
  checkHost();
}

void Session::pressEscape() {
  note("presses Escape");
  host_->ui().runner().end(adsk::core::CancelledTerminationReason);
  checkHost();
}

std::vector<std::string> Session::picked() const {
  std::vector<std::string> paths;
  const SelectionInput* input = activeCommand().selectionInput();
  if (input != nullptr) {
    for (const auto& each : input->picked()) {
      paths.push_back(pathOf(each->picked()));
    }
  }
  return paths;
}

CommandObject& Session::activeCommand() const {
  const auto& command = host_->ui().runner().active();
  if (!command || !command->isShown) {
    throw UserError("no dialog is open");
  }
  return *command.get();
}

InputCore& Session::inputOf(const std::string& inputId) const {
  InputCore* input = activeCommand().findInput(inputId);
  if (input == nullptr) {
    throw UserError("the dialog has no input " + inputId);
  }
  return *input;
}

SelectionInput& Session::selectionInput() const {
  SelectionInput* input = activeCommand().selectionInput();
  if (input == nullptr || !input->visible) {
    throw UserError("the dialog asks for no selection");
  }
  return *input;
}

template <class Kind>
Kind& Session::usableInput(const std::string& inputId, const char* whatFor) const {
  InputCore& input = inputOf(inputId);
  requireUsable(input, whatFor);
  auto* found = dynamic_cast<Kind*>(&input);
  if (found == nullptr) {
    throw UserError("nobody can " + std::string(whatFor) + " " + inputId + ": it is another kind of input");
  }
  return *found;
}

void Session::requireUsable(const InputCore& input, const char* whatFor) const {
  const std::string action = "cannot " + std::string(whatFor) + " " + input.inputId() + ": ";
  requireReachable(input, action);
  if (!input.enabled) {
    throw UserError(action + "it is greyed out");
  }
}

// An input in a group is out of reach while the group, or one around it, is closed or its header box is not ticked.
void Session::requireReachable(const InputCore& input, const std::string& action) const {
  if (!input.visible) {
    throw UserError(action + "it is hidden");
  }
  for (const GroupInput* group = input.homeCollection().group(); group != nullptr;
       group = group->homeCollection().group()) {
    const std::string theGroup = "the group " + group->inputId();
    if (!group->visible) {
      throw UserError(action + theGroup + " is hidden");
    }
    if (!group->enabled) {
      throw UserError(action + theGroup + " is greyed out");
    }
    if (!group->expanded) {
      throw UserError(action + theGroup + " is closed");
    }
    if (group->tickDisplayed && !group->ticked) {
      throw UserError(std::string(action).append("the box of ").append(theGroup).append(" is not ticked"));
    }
  }
}

void Session::changed(InputCore& input) {
  host_->ui().runner().changedByUser(input);
  checkHost();
}

}  // namespace headless
