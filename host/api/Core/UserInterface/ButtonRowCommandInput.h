// Class ButtonRowCommandInput.
#pragma once

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

class ListItem;
class ListItems;

/// A row of buttons with icons. All members are documented.
class ButtonRowCommandInput : public CommandInput {
  ADSK_API_CLASS(ButtonRowCommandInput, CommandInput)

  /// The buttons.
  virtual Ptr<ListItems> listItems() const = 0;
  /// Empty when no button is selected. Its name is always empty: use the index.
  virtual Ptr<ListItem> selectedItem() const = 0;
  /// False when selecting one button unselects the other.
  virtual bool isMultiSelectEnabled() const = 0;
};

}  // namespace core
}  // namespace adsk
