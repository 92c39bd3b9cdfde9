// Class Selections.
#pragma once

#include <cstddef>

#include "../Base.h"

namespace adsk {
namespace core {

class Selection;

/// The idle selection. All members are documented.
class Selections : public Base {
  ADSK_API_CLASS(Selections, Base)

  using iterable_type = Selection;
  /// Empty for a bad index.
  virtual Ptr<Selection> item(size_t index) const = 0;
  virtual size_t count() const = 0;
  /// False when it cannot be selected.
  virtual bool add(const Ptr<Base>& entity) = 0;
  virtual bool clear() = 0;
};

}  // namespace core
}  // namespace adsk
