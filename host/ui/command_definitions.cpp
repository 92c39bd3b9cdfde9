#include "host/ui/command_definitions.h"

#include <algorithm>
#include <utility>

namespace headless {

using adsk::core::CommandDefinition;
using adsk::core::Ptr;

namespace {

bool isAllowedInId(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

bool isAllowedId(const std::string& id) {
  return !id.empty() && std::all_of(id.begin(), id.end(), isAllowedInId);
}

}  // namespace

ListControlDefinitionObject::ListControlDefinitionObject(const std::string& shownName,
                                                         adsk::core::ListControlDisplayTypes display,
                                                         const std::vector<std::string>& itemNames)
    : ControlDefinitionBase(shownName), display_(display) {
  ListRules rules;
  rules.isSingleChoice = display != adsk::core::CheckBoxListType;
  rules.keepsActiveItem = false;
  list_ = makeObject<ListItemsObject>(shownName, rules, [](bool) {});
  for (const std::string& itemName : itemNames) {
    list_->append(itemName);
  }
}

Ptr<adsk::core::ListItems> ListControlDefinitionObject::listItems() const {
  return call("listItems", [this] { return Ptr<adsk::core::ListItems>(list_); });
}

adsk::core::ListControlDisplayTypes ListControlDefinitionObject::listControlDisplayType() const {
  return call("listControlDisplayType", [this] { return display_; });
}

Ptr<adsk::core::ListItem> ListControlDefinitionObject::lastSelected() const {
  return call("lastSelected", [this] { return Ptr<adsk::core::ListItem>(list_->selected()); });
}

void ListControlDefinitionObject::markGone() {
  list_->markAllDeleted();
  markDeleted();
}

DefinitionObject::DefinitionObject(Texts definitionTexts, bool native, StartCommand startCommand,
                                   std::function<void()> forget)
    : texts_(std::move(definitionTexts)),
      native_(native),
      start(std::move(startCommand)),
      forget_(std::move(forget)),
      created(makeObject<CommandCreatedEventObject>("commandCreated", this)),
      button(makeObject<ButtonControlDefinitionObject>(texts_.name)) {}

DefinitionObject::~DefinitionObject() {
  markGone();
}

void DefinitionObject::markGone() {
  created->markDeleted();
  button->markDeleted();
  if (list) {
    list->markGone();
  }
  markDeleted();
}

std::string DefinitionObject::id() const {
  return call("id", [this] { return texts_.id; });
}

std::string DefinitionObject::name() const {
  return call("name", [this] { return texts_.name; });
}

bool DefinitionObject::name(const std::string& value) {
  return storeText("name=", texts_.name, value);
}

std::string DefinitionObject::tooltip() const {
  return call("tooltip", [this] { return texts_.tooltip; });
}

bool DefinitionObject::tooltip(const std::string& value) {
  return storeText("tooltip=", texts_.tooltip, value);
}

std::string DefinitionObject::resourceFolder() const {
  return call("resourceFolder", [this] { return texts_.resourceFolder; });
}

bool DefinitionObject::resourceFolder(const std::string& value) {
  return storeText("resourceFolder=", texts_.resourceFolder, value);
}

bool DefinitionObject::storeText(const char* member, std::string& field, const std::string& value) {
  return call(
      member,
      [&] {
        field = value;
        return true;
      },
      value);
}

Ptr<adsk::core::CommandCreatedEvent> DefinitionObject::commandCreated() const {
  return call("commandCreated", [this] { return Ptr<adsk::core::CommandCreatedEvent>(created); });
}

Ptr<adsk::core::ControlDefinition> DefinitionObject::controlDefinition() const {
  return call("controlDefinition", [this] {
    return list ? Ptr<adsk::core::ControlDefinition>(list) : Ptr<adsk::core::ControlDefinition>(button);
  });
}

bool DefinitionObject::execute(const Ptr<adsk::core::NamedValues>&) const {
  return call("execute", [this] { return start(const_cast<DefinitionObject&>(*this)); });
}

bool DefinitionObject::deleteMe() {
  return call("deleteMe", [this] {
    if (native_) {
      return false;
    }
    markGone();
    forget_();
    return true;
  });
}

bool DefinitionObject::isNative() const {
  return call("isNative", [this] { return native_; });
}

void DefinitionObject::showAsList(adsk::core::ListControlDisplayTypes display,
                                  const std::vector<std::string>& itemNames) {
  list = makeObject<ListControlDefinitionObject>(texts_.name, display, itemNames);
}

Ptr<CommandDefinition> DefinitionsObject::item(size_t index) const {
  return call(
      "item",
      [&]() -> Ptr<CommandDefinition> {
        return index < definitions.size() ? Ptr<CommandDefinition>(definitions[index]) : nullptr;
      },
      index);
}

size_t DefinitionsObject::count() const {
  return call("count", [this] { return definitions.size(); });
}

Ptr<CommandDefinition> DefinitionsObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return Ptr<CommandDefinition>(find(id), false); }, id);
}

Ptr<CommandDefinition> DefinitionsObject::addButtonDefinition(const std::string& id, const std::string& name,
                                                              const std::string& tooltip,
                                                              const std::string& resourceFolder) {
  return call(
      "addButtonDefinition",
      [&]() -> Ptr<CommandDefinition> {
        if (!isAllowedId(id) || find(id) != nullptr) {
          return nullptr;
        }
        return insert({id, name, tooltip, resourceFolder}, false);
      },
      id, name, tooltip, resourceFolder);
}

DefinitionObject* DefinitionsObject::find(const std::string& id) const {
  const auto found = std::find_if(definitions.begin(), definitions.end(),
                                  [&](const Ptr<DefinitionObject>& each) { return each->texts().id == id; });
  return found == definitions.end() ? nullptr : found->get();
}

DefinitionObject& DefinitionsObject::addNative(const std::string& id, const std::string& name) {
  return *insert({id, name, "", ""}, true).get();
}

Ptr<DefinitionObject> DefinitionsObject::insert(DefinitionObject::Texts texts, bool isNative) {
  const std::string id = texts.id;
  definitions.push_back(makeObject<DefinitionObject>(std::move(texts), isNative, start, [this, id] { remove(id); }));
  return definitions.back();
}

void DefinitionsObject::remove(const std::string& id) {
  const auto gone = std::remove_if(definitions.begin(), definitions.end(),
                                   [&](const Ptr<DefinitionObject>& each) { return each->texts().id == id; });
  definitions.erase(gone, definitions.end());
}

}  // namespace headless
