#include "host/runtime/session.h"

#include <algorithm>
#include <utility>

namespace headless {

using adsk::core::Base;
using adsk::core::Ptr;

namespace {

// What the host tells the entry points.
constexpr const char* startContext = "{\"IsApplicationStartup\": false}";
constexpr const char* stopContext = "{\"IsApplicationClosing\": false}";

PickKind kindOfPath(const std::string& path, const model::Design& design) {
  const auto endsWithFace = [&] {
    const std::size_t slash = path.rfind('/');
    return slash != std::string::npos && path.compare(slash, 5, "/Face") == 0;
  };
  if (endsWithFace()) {
    return PickKind::Face;
  }
  const auto& rootBodies = design.root().bodies;
  const bool isRootBody =
      std::any_of(rootBodies.begin(), rootBodies.end(), [&](const auto& body) { return body->name == path; });
  return isRootBody || path.find('/') != std::string::npos ? PickKind::Body : PickKind::Component;
}

}  // namespace

Session::Session(Profile profile) : host_(std::make_unique<Host>(std::move(profile))) {}

Session::~Session() {
  unloadAddIn();
}

void Session::loadAddIn(const std::filesystem::path& moduleFile) {
  if (module_ != nullptr) {
    throw UserError("the add-in is loaded already: " + moduleFile_.string());
  }
  module_ = std::make_unique<Module>(moduleFile);
  moduleFile_ = moduleFile;
}

bool Session::runAddIn() {
  note("starts the add-in");
  bool result = false;
  host_->boundary().run("run", [&] { result = module_->run(startContext); });
  checkHost();
  return result;
}

bool Session::stopAddIn() {
  note("stops the add-in");
  bool result = false;
  host_->boundary().run("stop", [&] { result = module_->stop(stopContext); });
  const std::size_t attached = host_->ui().terminatedHandlerCount();
  if (host_->profile().attachedHandlersReported && attached > 0) {
    host_->boundary().report("stop", std::to_string(attached) + " handler is still attached to commandTerminated");
  }
  checkHost();
  return result;
}

void Session::unloadAddIn() {
  if (module_ == nullptr) {
    return;
  }
  host_->ui().runner().end(adsk::core::SessionEndingTerminationReason);
  module_ = nullptr;
  if (Module::isResident(moduleFile_)) {
    host_->boundary().report("unload", "something keeps the module in memory: " + moduleFile_.string());
  }
}

void Session::openDesign(std::unique_ptr<model::Design> design) {
  note("opens " + design->name);
  host_->open(std::move(design));
}

void Session::closeDocument() {
  note("closes the document");
  host_->closeDocument();
  checkHost();
}

model::Design& Session::design() {
  if (host_->document() == nullptr) {
    throw UserError("no document is open");
  }
  return *host_->document()->design;
}

void Session::press(const std::string& commandId) {
  note("presses " + commandId);
  for (const auto& workspace : host_->ui().workspaceList().all()) {
    for (PanelObject* panel : workspace->panels()) {
      ControlObject* control = panel->controlList().find(commandId);
      if (control == nullptr || !control->visible) {
        continue;
      }
      if (!control->definition().isAlive()) {
        throw UserError("the button " + commandId + " is dead: its command definition was deleted");
      }
      host_->ui().runner().start(control->definition());
      checkHost();
      return;
    }
  }
  throw UserError("there is no button " + commandId + " in the toolbar");
}

void Session::pick(const std::string& path) {
  const std::vector<Pickable> candidates = pickables(kindOfPath(path, design()));
  const auto found =
      std::find_if(candidates.begin(), candidates.end(), [&](const Pickable& each) { return each.path == path; });
  if (found == candidates.end()) {
    throw UserError("there is nothing called " + path + " in the design");
  }
  pick(*found);
}

void Session::pick(const Pickable& pickable) {
  pick(handleOf(pickable, *host_->document()->entities));
}

void Session::pick(const Ptr<Base>& entity) {
  note("picks " + pathOf(entity));
  if (!isDialogOpen()) {
    host_->ui().idleSelection().pick(entity);
    return;
  }
  SelectionInput* input = activeCommand().selectionInput();
  if (input == nullptr || !input->visible) {
    throw UserError("the dialog asks for no selection");
  }
  if (!input->unpick(entity)) {
    const std::string reason = input->whyRefused(entity);
    if (!reason.empty()) {
      throw UserError(pathOf(entity) + " cannot be picked: " + reason);
    }
    input->pick(entity);
  }
  changed(*input);
}

void Session::clearPicks() {
  note("picks nothing");
  SelectionInput* input = activeCommand().selectionInput();
  if (input != nullptr && input->dropAll()) {
    changed(*input);
  }
}

void Session::choose(const std::string& inputId, const std::string& itemName) {
  note("chooses \"" + itemName + "\" in " + inputId);
  InputCore& input = inputOf(inputId);
  requireUsable(input, "choose in");
  auto* dropDown = dynamic_cast<DropDownInput*>(&input);
  auto* row = dynamic_cast<ButtonRowInput*>(&input);
  if (dropDown == nullptr && row == nullptr) {
    throw UserError(inputId + " has no items to choose from");
  }
  ListItemsObject& list = dropDown != nullptr ? dropDown->list() : row->list();
  for (const auto& item : list.all()) {
    if (item->label() == itemName) {
      chooseIn(input, list, *item.get());
      return;
    }
  }
  throw UserError(inputId + " has no item \"" + itemName + "\"");
}

void Session::choose(const std::string& inputId, std::size_t index) {
  const InputView view = input(inputId);
  if (index >= view.items.size()) {
    throw UserError(inputId + " has no item number " + std::to_string(index));
  }
  note("chooses item " + std::to_string(index) + " in " + inputId);
  InputCore& chosen = inputOf(inputId);
  requireUsable(chosen, "choose in");
  auto* dropDown = dynamic_cast<DropDownInput*>(&chosen);
  ListItemsObject& list = dropDown != nullptr ? dropDown->list() : dynamic_cast<ButtonRowInput&>(chosen).list();
  chooseIn(chosen, list, *list.all()[index].get());
}

void Session::chooseIn(InputCore& input, ListItemsObject& list, ListItemObject& item) {
  if (item.selected && list.rules().isSingleChoice) {
    return;
  }
  list.setSelected(item, !item.selected);
  changed(input);
}

void Session::type(const std::string& inputId, const std::string& text) {
  note("types \"" + text + "\" into " + inputId);
  auto& input = usableInput<StringInput>(inputId, "type into");
  if (text.compare(0, input.current.size(), input.current) != 0) {
    input.current.clear();
    changed(input);
  }
  const Ptr<CommandObject> command = host_->ui().runner().active();
  while (command == host_->ui().runner().active() && input.current.size() < text.size()) {
    // A key gives one character, which may be several bytes of UTF-8.
    std::size_t end = input.current.size() + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
      ++end;
    }
    input.current = text.substr(0, end);
    changed(input);
  }
}

void Session::tick(const std::string& inputId, bool isTicked) {
  note(std::string(isTicked ? "ticks " : "unticks ") + inputId);
  InputCore& input = inputOf(inputId);
  if (auto* group = dynamic_cast<GroupInput*>(&input)) {
    if (!group->tickDisplayed) {
      throw UserError("the group " + inputId + " has no check box");
    }
    if (std::exchange(group->ticked, isTicked) != isTicked) {
      changed(*group);
      if (host_->profile().tickExpandsGroup && isDialogOpen()) {
        expand(inputId, isTicked);
      }
    }
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

void Session::expand(const std::string& groupId, bool isExpanded) {
  note(std::string(isExpanded ? "opens " : "closes ") + groupId);
  auto* group = dynamic_cast<GroupInput*>(&inputOf(groupId));
  if (group == nullptr) {
    throw UserError(groupId + " is no group");
  }
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

// With a dialog open, its transaction stands around what may be undone: nothing of its own is undone here.
void Session::undo() {
  note("undoes");
  design();
  model::History& history = host_->document()->history;
  const bool wasOpen = history.isOpen();
  if (history.hasPendingChanges()) {
    throw UserError("the open command has changes that are not executed yet: close it first");
  }
  if (wasOpen) {
    history.rollback();
  }
  const bool isDone = history.undo();
  if (wasOpen) {
    history.begin();
  }
  if (!isDone) {
    throw UserError("there is nothing to undo");
  }
}

void Session::redo() {
  note("redoes");
  design();
  model::History& history = host_->document()->history;
  const bool wasOpen = history.isOpen();
  if (wasOpen) {
    history.rollback();
  }
  const bool isDone = history.redo();
  if (wasOpen) {
    history.begin();
  }
  if (!isDone) {
    throw UserError("there is nothing to redo");
  }
}

DialogView Session::dialog() const {
  auto view = viewDialog(host_->ui());
  if (!view) {
    throw UserError("no dialog is open");
  }
  return std::move(*view);
}

InputView Session::input(const std::string& inputId) const {
  const DialogView view = dialog();
  const InputView* found = view.find(inputId);
  if (found == nullptr) {
    throw UserError("the dialog has no input " + inputId);
  }
  return *found;
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

// An input in a group is out of reach while the group is closed or its header box is not ticked.
void Session::requireUsable(const InputCore& input, const char* whatFor) const {
  const std::string action = "cannot " + std::string(whatFor) + " " + input.inputId() + ": ";
  if (!input.visible) {
    throw UserError(action + "it is hidden");
  }
  if (!input.enabled) {
    throw UserError(action + "it is greyed out");
  }
  const GroupInput* group = input.homeCollection().group();
  if (group == nullptr) {
    return;
  }
  if (!group->expanded) {
    throw UserError(action + "the group " + group->inputId() + " is closed");
  }
  if (group->tickDisplayed && !group->ticked) {
    throw UserError(action + "the box of the group " + group->inputId() + " is not ticked");
  }
}

void Session::changed(InputCore& input) {
  host_->ui().runner().changedByUser(input);
  checkHost();
}

void Session::note(const std::string& action) {
  host_->gate().note("the user " + action);
}

void Session::checkHost() {
  for (const std::string& sentence : host_->inconsistencies()) {
    host_->boundary().report("host", sentence);
  }
}

}  // namespace headless
