// Class MaterialLibrary.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Appearances;
class Materials;

/// One library of materials and appearances. All members are documented.
class MaterialLibrary : public Base {
  ADSK_API_CLASS(MaterialLibrary, Base)

  /// Name as shown.
  virtual std::string name() const = 0;
  /// Internal id.
  virtual std::string id() const = 0;
  /// Its materials; a collection without items when it has none.
  virtual Ptr<Materials> materials() const = 0;
  /// Its appearances; a collection without items when it has none.
  virtual Ptr<Appearances> appearances() const = 0;
  /// True when delivered with the host.
  virtual bool isNative() const = 0;
  /// Forgets the library; false for a native one.
  virtual bool unload() = 0;
};

}  // namespace core
}  // namespace adsk
