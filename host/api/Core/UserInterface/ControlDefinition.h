// Class ControlDefinition.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// How a definition is shown in a toolbar. All members are documented.
class ControlDefinition : public Base {
  ADSK_API_CLASS(ControlDefinition, Base)

  /// Text of the control.
  virtual std::string name() const = 0;
  virtual bool name(const std::string& value) = 0;
  /// Greyed out when false.
  virtual bool isEnabled() const = 0;
  virtual bool isEnabled(bool value) = 0;
  /// Not in the toolbar when false.
  virtual bool isVisible() const = 0;
  virtual bool isVisible(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
