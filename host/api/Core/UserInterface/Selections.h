// Class Selections.
#pragma once

#include <cstddef>

#include "../Base.h"

namespace adsk {
namespace core {

class Selection;

/// The idle selection. All members are documented unless marked.
class Selections : public Base {
  ADSK_API_CLASS(Selections, Base)

  using iterable_type = Selection;
  /// Empty for a bad index.
  virtual Ptr<Selection> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// False when it cannot be selected, or is already (the latter assumed).
  virtual bool add(const Ptr<Base>& entity) = 0;
  /// Lets go of everything that is selected.
  virtual bool clear() = 0;
};

}  // namespace core
}  // namespace adsk
