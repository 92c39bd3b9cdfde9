// Class Material.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Appearance;
class Properties;

/// A physical material. All members are documented unless marked.
class Material : public Base {
  ADSK_API_CLASS(Material, Base)

  /// Name as shown.
  virtual std::string name() const = 0;
  /// Id in its library, independent of the language.
  virtual std::string id() const = 0;
  /// Physical properties. The density has the id "structural_Density" and is in kg/m3 (both assumed).
  virtual Ptr<Properties> materialProperties() const = 0;
  /// The appearance that belongs to the material.
  virtual Ptr<Appearance> appearance() const = 0;
};

}  // namespace core
}  // namespace adsk
