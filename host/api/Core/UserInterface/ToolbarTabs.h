// Class ToolbarTabs.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class ToolbarTab;

/// The tabs of a workspace. All members are documented unless marked.
class ToolbarTabs : public Base {
  ADSK_API_CLASS(ToolbarTabs, Base)

  using iterable_type = ToolbarTab;
  /// Empty for a bad index.
  virtual Ptr<ToolbarTab> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Empty when there is none of that id. "SolidTab" is documented, "ToolsTab" is assumed.
  virtual Ptr<ToolbarTab> itemById(const std::string& id) const = 0;
};

}  // namespace core
}  // namespace adsk
