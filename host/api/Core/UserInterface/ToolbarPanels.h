// Class ToolbarPanels.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class ToolbarPanel;

/// Panels of a tab, or of all tabs of a workspace, in the order on screen. All members are documented.
class ToolbarPanels : public Base {
  ADSK_API_CLASS(ToolbarPanels, Base)

  using iterable_type = ToolbarPanel;
  /// Empty for a bad index.
  virtual Ptr<ToolbarPanel> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Empty when there is none of that id.
  virtual Ptr<ToolbarPanel> itemById(const std::string& id) const = 0;
  /// A new panel, before or after the one named; at the end when `positionID` is empty. Empty when the id is taken by
  /// any panel.
  virtual Ptr<ToolbarPanel> add(const std::string& id, const std::string& name, const std::string& positionID = "",
                                bool isBefore = true) = 0;
};

}  // namespace core
}  // namespace adsk
