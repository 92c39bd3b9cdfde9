// Class NamedValues.
#pragma once

#include "../Base.h"

namespace adsk {
namespace core {

/// A set of named input values for a command; current hosts ignore it. All members are documented.
class NamedValues : public Base {
  ADSK_API_CLASS(NamedValues, Base)

  /// A new, empty set.
  static Ptr<NamedValues> create();
};

}  // namespace core
}  // namespace adsk
