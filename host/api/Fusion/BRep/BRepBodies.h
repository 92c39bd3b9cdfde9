// Class BRepBodies.
#pragma once

#include <cstddef>
#include <string>

#include "../../Core/Base.h"

namespace adsk {
namespace fusion {

class BRepBody;

/// Bodies of a component, or proxies of them. All members are documented.
class BRepBodies : public core::Base {
  ADSK_API_CLASS(BRepBodies, core::Base)

  using iterable_type = BRepBody;
  /// Empty for a bad index.
  virtual core::Ptr<BRepBody> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Empty when there is none.
  virtual core::Ptr<BRepBody> itemByName(const std::string& name) const = 0;
};

}  // namespace fusion
}  // namespace adsk
