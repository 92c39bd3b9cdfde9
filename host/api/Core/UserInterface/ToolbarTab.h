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

  /// Independent of the language.
  virtual std::string id() const = 0;
  /// Text on the tab.
  virtual std::string name() const = 0;
  /// The panels of this tab; a panel added here joins this tab.
  virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;
  /// Position among the tabs of the workspace.
  virtual size_t index() const = 0;
  /// True for the host's own.
  virtual bool isNative() const = 0;
};

}  // namespace core
}  // namespace adsk
