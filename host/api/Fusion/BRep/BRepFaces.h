// Class BRepFaces.
#pragma once

#include <cstddef>

#include "../../Core/Base.h"

namespace adsk {
namespace fusion {

class BRepFace;

/// The faces of a body. All members are documented.
class BRepFaces : public core::Base {
  ADSK_API_CLASS(BRepFaces, core::Base)

  using iterable_type = BRepFace;
  /// Empty for a bad index.
  virtual core::Ptr<BRepFace> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
};

}  // namespace fusion
}  // namespace adsk
