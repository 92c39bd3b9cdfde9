// Class Selection.
#pragma once

#include "../Base.h"

namespace adsk {
namespace core {

/// One thing that is selected. A handle of a selection that was cleared is no longer valid (assumed).
class Selection : public Base {
  ADSK_API_CLASS(Selection, Base)

  /// What is selected; in an assembly a proxy in the context of the root component (documented).
  virtual Ptr<Base> entity() const = 0;
};

}  // namespace core
}  // namespace adsk
