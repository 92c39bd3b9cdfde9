// Class Appearance.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// A look that can be applied to an occurrence, a body or a face. All members are documented.
class Appearance : public Base {
  ADSK_API_CLASS(Appearance, Base)

  /// Name as shown.
  virtual std::string name() const = 0;
  virtual std::string id() const = 0;
};

}  // namespace core
}  // namespace adsk
