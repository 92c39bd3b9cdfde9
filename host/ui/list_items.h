// Lists of named items, as drop-downs, button rows and toolbar lists have them.
#pragma once

#include <Core/CoreAll.h>

#include <functional>
#include <string>
#include <vector>

#include "host/runtime/object.h"

namespace headless {

class ListItemObject;

/// What distinguishes the kinds of lists.
struct ListRules {
  bool isSingleChoice = true;
  /// Items have an icon and no name, as in a button row.
  bool isButtonRow = false;
  /// Icons are kept; other lists ignore them.
  bool hasIcons = true;
  /// The active item cannot be deleted, as in a drop-down.
  bool keepsActiveItem = true;
};

/// The items of one list. Owned by its input or control definition.
class ListItemsObject final : public HostObject<adsk::core::ListItems> {
 public:
  /// `owner` names the list in traces; `selectionSet` is called after a program set which item is selected, with false
  /// where that is as it was.
  ListItemsObject(std::string owner, ListRules listRules, std::function<void(bool)> selectionSet);
  ~ListItemsObject() override;

  adsk::core::Ptr<adsk::core::ListItem> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::ListItem> add(const std::string& name, bool isSelected, const std::string& icon,
                                            int beforeIndex) override;
  bool clear() override;

  /// The items, in order; for the host's own use.
  const std::vector<adsk::core::Ptr<ListItemObject>>& all() const { return items; }
  /// Adds an unselected item at the end.
  void append(const std::string& name) { insert(name, false, "", -1); }
  /// The item that was selected last and still is; empty when none is.
  adsk::core::Ptr<ListItemObject> selected() const;
  /// Selects or unselects without reporting a change, as the user's own action does.
  void setSelected(ListItemObject& item, bool isSelected);
  void reportSet(bool isOtherValue) const { selectionSet_(isOtherValue); }
  /// Position of the item; -1 when it is not in the list.
  int indexOf(const ListItemObject& item) const;
  bool remove(ListItemObject& item);
  /// All calls on the list and its items answer with nothing from now on.
  void markAllDeleted();

  const ListRules& rules() const { return rules_; }
  const std::string& owner() const { return owner_; }

 protected:
  std::string traceDetail() const override { return owner_; }

 private:
  adsk::core::Ptr<ListItemObject> insert(const std::string& name, bool isSelected, const std::string& icon,
                                         int beforeIndex);

  std::string owner_;
  ListRules rules_;
  std::function<void(bool)> selectionSet_;
  std::vector<adsk::core::Ptr<ListItemObject>> items;
  ListItemObject* selectedItem = nullptr;
};

/// One item. Once it left its list it answers with nothing.
class ListItemObject final : public HostObject<adsk::core::ListItem> {
 public:
  ListItemObject(ListItemsObject& owner, std::string itemName, std::string iconFolder);

  std::string name() const override;
  bool name(const std::string& value) override;
  bool isSelected() const override;
  bool isSelected(bool value) override;
  int index() const override;
  std::string icon() const override;
  bool icon(const std::string& value) override;
  bool deleteMe() override;

  /// For the host's own use; `label` is the name that was given, also in a button row.
  const std::string& label() const { return label_; }
  const std::string& iconFolder() const { return icon_; }
  bool selected = false;

 protected:
  std::string traceDetail() const override;

 private:
  ListItemsObject& list;
  std::string label_;
  std::string icon_;
};

}  // namespace headless
