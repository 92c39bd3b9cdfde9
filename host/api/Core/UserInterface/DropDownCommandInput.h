// Class DropDownCommandInput.
#pragma once

#include "../Base.h"
#include "../CoreTypeDefs.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

class ListItem;
class ListItems;

/// A drop-down list. All members are documented.
class DropDownCommandInput : public CommandInput {
  ADSK_API_CLASS(DropDownCommandInput, CommandInput)

  virtual DropDownStyles dropDownStyle() const = 0;
  virtual Ptr<ListItems> listItems() const = 0;
  /// Empty when nothing is selected.
  virtual Ptr<ListItem> selectedItem() const = 0;
};

}  // namespace core
}  // namespace adsk
