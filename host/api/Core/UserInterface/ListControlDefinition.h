// Class ListControlDefinition.
#pragma once

#include "../Base.h"
#include "../CoreTypeDefs.h"
#include "ControlDefinition.h"

namespace adsk {
namespace core {

class ListItem;
class ListItems;

/// A definition that is shown as a list. All members are documented unless marked.
class ListControlDefinition : public ControlDefinition {
  ADSK_API_CLASS(ListControlDefinition, ControlDefinition)

  /// The items. Selecting one of a native list may start a native command; in our host it starts none (assumed).
  virtual Ptr<ListItems> listItems() const = 0;
  /// Check boxes, a choice of one, or plain entries.
  virtual ListControlDisplayTypes listControlDisplayType() const = 0;
  /// The item chosen last; empty for a list of check boxes that was not touched.
  virtual Ptr<ListItem> lastSelected() const = 0;
};

}  // namespace core
}  // namespace adsk
