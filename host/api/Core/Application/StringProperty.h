// Class StringProperty.
#pragma once

#include <string>

#include "../Base.h"
#include "Property.h"

namespace adsk {
namespace core {

/// A property that holds a text. Class and member are assumed to be like those of a number (FloatProperty).
class StringProperty : public Property {
  ADSK_API_CLASS(StringProperty, Property)

  /// The text, which may be empty.
  virtual std::string value() const = 0;
};

}  // namespace core
}  // namespace adsk
