#include "host/ui/list_items.h"

#include <algorithm>
#include <utility>

namespace headless {

using adsk::core::ListItem;
using adsk::core::Ptr;

ListItemsObject::ListItemsObject(std::string owner, ListRules listRules, std::function<void(bool)> selectionSet)
    : owner_(std::move(owner)), rules_(listRules), selectionSet_(std::move(selectionSet)) {}

ListItemsObject::~ListItemsObject() {
  markAllDeleted();
}

Ptr<ListItem> ListItemsObject::item(size_t index) const {
  return call(
      "item", [&]() -> Ptr<ListItem> { return index < items.size() ? Ptr<ListItem>(items[index]) : nullptr; }, index);
}

size_t ListItemsObject::count() const {
  return call("count", [&] { return items.size(); });
}

Ptr<ListItem> ListItemsObject::add(const std::string& name, bool isSelected, const std::string& icon, int beforeIndex) {
  return call(
      "add",
      [&]() -> Ptr<ListItem> {
        const bool isIconMissing = rules_.isButtonRow && icon.empty();
        if (isIconMissing || beforeIndex < -1 || beforeIndex > static_cast<int>(items.size())) {
          return nullptr;
        }
        const Ptr<ListItem> added = insert(name, isSelected, icon, beforeIndex);
        if (isSelected) {
          selectionSet_(true);
        }
        return added;
      },
      name, isSelected, icon, beforeIndex);
}

Ptr<ListItemObject> ListItemsObject::insert(const std::string& name, bool isSelected, const std::string& icon,
                                            int beforeIndex) {
  const Ptr<ListItemObject> added = makeObject<ListItemObject>(*this, name, rules_.hasIcons ? icon : std::string());
  items.insert(beforeIndex < 0 ? items.end() : items.begin() + beforeIndex, added);
  if (isSelected) {
    setSelected(*added.get(), true);
  }
  return added;
}

bool ListItemsObject::clear() {
  return call("clear", [&] {
    const bool hadSelection = selectedItem != nullptr;
    for (const Ptr<ListItemObject>& gone : items) {
      gone->markDeleted();
    }
    items.clear();
    selectedItem = nullptr;
    if (hadSelection) {
      selectionSet_(true);
    }
    return true;
  });
}

Ptr<ListItemObject> ListItemsObject::selected() const {
  return Ptr<ListItemObject>(selectedItem, false);
}

void ListItemsObject::setSelected(ListItemObject& item, bool isSelected) {
  if (rules_.isSingleChoice && isSelected && selectedItem != nullptr) {
    selectedItem->selected = false;
  }
  item.selected = isSelected;
  if (isSelected) {
    selectedItem = &item;
  } else if (selectedItem == &item) {
    const auto other = std::find_if(items.begin(), items.end(), [](const auto& each) { return each->selected; });
    selectedItem = other == items.end() ? nullptr : other->get();
  }
}

int ListItemsObject::indexOf(const ListItemObject& item) const {
  const auto found =
      std::find_if(items.begin(), items.end(), [&](const Ptr<ListItemObject>& each) { return each.get() == &item; });
  return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

bool ListItemsObject::remove(ListItemObject& item) {
  const int index = indexOf(item);
  if (index < 0 || (rules_.keepsActiveItem && selectedItem == &item)) {
    return false;
  }
  setSelected(item, false);
  item.markDeleted();
  items.erase(items.begin() + index);
  return true;
}

void ListItemsObject::markAllDeleted() {
  for (const Ptr<ListItemObject>& item : items) {
    item->markDeleted();
  }
  markDeleted();
}

ListItemObject::ListItemObject(ListItemsObject& owner, std::string itemName, std::string iconFolder)
    : list(owner), label_(std::move(itemName)), icon_(std::move(iconFolder)) {}

std::string ListItemObject::name() const {
  return call("name", [&] { return list.rules().isButtonRow ? std::string() : label_; });
}

bool ListItemObject::name(const std::string& value) {
  return call(
      "name=",
      [&] {
        if (!list.rules().isButtonRow) {
          label_ = value;
        }
        return !list.rules().isButtonRow;
      },
      value);
}

bool ListItemObject::isSelected() const {
  return call("isSelected", [&] { return selected; });
}

bool ListItemObject::isSelected(bool value) {
  return call(
      "isSelected=",
      [&] {
        const bool isOther = selected != value;
        if (isOther) {
          list.setSelected(*this, value);
        }
        list.reportSet(isOther);
        return true;
      },
      value);
}

int ListItemObject::index() const {
  return call("index", [&] { return list.indexOf(*this); });
}

std::string ListItemObject::icon() const {
  return call("icon", [&] { return icon_; });
}

bool ListItemObject::icon(const std::string& value) {
  return call(
      "icon=",
      [&] {
        if (list.rules().hasIcons) {
          icon_ = value;
        }
        return list.rules().hasIcons;
      },
      value);
}

bool ListItemObject::deleteMe() {
  return call("deleteMe", [&] { return list.remove(*this); });
}

std::string ListItemObject::traceDetail() const {
  return isAlive() ? list.owner() + ": " + label_ : label_;
}

}  // namespace headless
