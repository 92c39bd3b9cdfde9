// Class ToolbarPanel.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class ToolbarControls;

/// A panel of a toolbar tab. All members are documented unless marked.
class ToolbarPanel : public Base {
  ADSK_API_CLASS(ToolbarPanel, Base)

  /// Unique within the workspace.
  virtual std::string id() const = 0;
  /// Text below the panel.
  virtual std::string name() const = 0;
  /// All controls. For a panel that was deleted: a collection without controls (assumed), or nothing.
  virtual Ptr<ToolbarControls> controls() const = 0;
  /// Position among all panels of the workspace.
  virtual size_t index() const = 0;
  /// True when deleted; its controls go with it (the latter assumed).
  virtual bool deleteMe() = 0;
};

}  // namespace core
}  // namespace adsk
