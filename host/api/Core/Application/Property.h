// Class Property.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// One property of a material or appearance. All members are documented unless marked.
class Property : public Base {
  ADSK_API_CLASS(Property, Base)

  /// Unique id, independent of the language.
  virtual std::string id() const = 0;
  /// Name as shown, in the language of the host.
  virtual std::string name() const = 0;
  /// True when every edit fails, as for anything still in a library (the latter assumed).
  virtual bool isReadOnly() const = 0;
};

}  // namespace core
}  // namespace adsk
