// Class Materials.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Material;

/// Materials of a library or a design, in its order. All members are documented unless marked.
class Materials : public Base {
  ADSK_API_CLASS(Materials, Base)

  using iterable_type = Material;
  /// Empty for a bad index.
  virtual Ptr<Material> item(int index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// The first one of that name (that it is the first is assumed: names need not be unique); empty when there is none.
  virtual Ptr<Material> itemByName(const std::string& name) const = 0;
  /// Empty when there is none.
  virtual Ptr<Material> itemById(const std::string& id) const = 0;
};

}  // namespace core
}  // namespace adsk
