// Class ListItem.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// An item of a list. All members are documented unless marked.
class ListItem : public Base {
  ADSK_API_CLASS(ListItem, Base)

  /// Always empty in a button row; the setter gives false there (the latter assumed).
  virtual std::string name() const = 0;
  virtual bool name(const std::string& value) = 0;
  /// In a single-choice list selecting one item unselects the current one; unselecting that leaves none selected (the
  /// latter assumed).
  virtual bool isSelected() const = 0;
  virtual bool isSelected(bool value) = 0;
  /// Position in the list.
  virtual int index() const = 0;
  /// A folder, for lists with icons; the setter gives false for others (the latter assumed).
  virtual std::string icon() const = 0;
  virtual bool icon(const std::string& value) = 0;
  /// False for the active item of a drop-down.
  virtual bool deleteMe() = 0;
};

}  // namespace core
}  // namespace adsk
