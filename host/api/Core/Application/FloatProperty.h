// Class FloatProperty.
#pragma once

#include <string>

#include "../Base.h"
#include "Property.h"

namespace adsk {
namespace core {

/// A property that holds a number. All members are documented unless marked.
class FloatProperty : public Property {
  ADSK_API_CLASS(FloatProperty, Property)

  /// The number, in the unit of units().
  virtual double value() const = 0;
  /// False when the property is read-only, as every one of a material is here (the latter assumed).
  virtual bool value(double value) = 0;
  /// Unit text of the host; empty for a plain number.
  virtual std::string units() const = 0;
};

}  // namespace core
}  // namespace adsk
