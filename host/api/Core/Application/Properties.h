// Class Properties.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Property;

/// The properties of a material or an appearance. All members are documented.
class Properties : public Base {
  ADSK_API_CLASS(Properties, Base)

  using iterable_type = Property;
  /// The property of that id; empty when there is none.
  virtual Ptr<Property> itemById(const std::string& id) const = 0;
  /// The property of that shown name, in the language of the host; empty when there is none.
  virtual Ptr<Property> itemByName(const std::string& name) const = 0;
  /// Empty for a bad index.
  virtual Ptr<Property> item(int index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
};

}  // namespace core
}  // namespace adsk
