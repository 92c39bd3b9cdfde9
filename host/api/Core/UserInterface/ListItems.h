// Class ListItems.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class ListItem;

/// The items of a list. All members are documented unless marked.
class ListItems : public Base {
  ADSK_API_CLASS(ListItems, Base)

  using iterable_type = ListItem;
  /// Empty for a bad index.
  virtual Ptr<ListItem> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// A new item, before the one at that index or, with -1, at the end. `icon` is a folder, required in a button row. In
  /// a single-choice list a selected new item unselects the others, and a first one that is not selected stays so (the
  /// latter assumed). Empty on failure, which an icon folder that is not there is not (assumed).
  virtual Ptr<ListItem> add(const std::string& name, bool isSelected, const std::string& icon = "",
                            int beforeIndex = -1) = 0;
  /// Removes all items; nothing is selected then (the latter assumed).
  virtual bool clear() = 0;
};

}  // namespace core
}  // namespace adsk
