// Class Material.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Appearance;
class Properties;

/// A physical material. All members are documented.
class Material : public Base {
  ADSK_API_CLASS(Material, Base)

  virtual std::string name() const = 0;
  virtual std::string id() const = 0;
  virtual Ptr<Properties> materialProperties() const = 0;
  /// The appearance that belongs to the material.
  virtual Ptr<Appearance> appearance() const = 0;
};

}  // namespace core
}  // namespace adsk
