// Class ToolbarTab.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class ToolbarPanels;

/// A tab of a workspace. All members are documented.
class ToolbarTab : public Base {
  ADSK_API_CLASS(ToolbarTab, Base)

  virtual std::string id() const = 0;
  virtual std::string name() const = 0;
  /// The panels of this tab; a panel added here joins this tab.
  virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;
  virtual size_t index() const = 0;
  virtual bool isNative() const = 0;
};

}  // namespace core
}  // namespace adsk
