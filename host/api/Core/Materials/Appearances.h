// Class Appearances.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Appearance;

/// Appearances of a library or a design, in its order. All members are documented unless marked.
class Appearances : public Base {
  ADSK_API_CLASS(Appearances, Base)

  using iterable_type = Appearance;
  /// Empty for a bad index.
  virtual Ptr<Appearance> item(int index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// The first one of that name (that it is the first is assumed: names need not be unique); empty when there is none.
  virtual Ptr<Appearance> itemByName(const std::string& name) const = 0;
  /// Empty when there is none.
  virtual Ptr<Appearance> itemById(const std::string& id) const = 0;
  /// Copies an appearance of a library or a design into this design, under that name; a name that is there already is
  /// there twice then (assumed). Empty on failure, and always for a library.
  virtual Ptr<Appearance> addByCopy(const Ptr<Appearance>& appearanceToCopy, const std::string& name) = 0;
};

}  // namespace core
}  // namespace adsk
