// Class ToolbarControl.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// A control of a panel. All members are documented.
class ToolbarControl : public Base {
  ADSK_API_CLASS(ToolbarControl, Base)

  /// Unique within the panel.
  virtual std::string id() const = 0;
  /// Position among the controls of the panel.
  virtual size_t index() const = 0;
  /// Not in the panel when false.
  virtual bool isVisible() const = 0;
  virtual bool isVisible(bool value) = 0;
  /// The controls that it belongs to.
  virtual Ptr<Base> parent() const = 0;
  /// True when deleted.
  virtual bool deleteMe() = 0;
};

}  // namespace core
}  // namespace adsk
