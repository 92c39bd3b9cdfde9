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

  /// Icons, texts only or check boxes.
  virtual DropDownStyles dropDownStyle() const = 0;
  /// The items; a collection without any until some are added.
  virtual Ptr<ListItems> listItems() const = 0;
  /// Empty when nothing is selected; a list of check boxes has no use for it.
  virtual Ptr<ListItem> selectedItem() const = 0;
};

}  // namespace core
}  // namespace adsk
