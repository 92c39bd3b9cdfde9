// Class MaterialLibraries.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class MaterialLibrary;

/// All libraries that are loaded. All members are documented unless marked.
class MaterialLibraries : public Base {
  ADSK_API_CLASS(MaterialLibraries, Base)

  using iterable_type = MaterialLibrary;
  /// Empty for a bad index.
  virtual Ptr<MaterialLibrary> item(int index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Loads a local library file by its full path; empty on failure, which includes folders and files of another ending
  /// than ".adsklib" (assumed). A second load of one file gives the library already loaded (assumed), or nothing.
  virtual Ptr<MaterialLibrary> load(const std::string& filename) = 0;
  /// The library of that shown name; empty when there is none.
  virtual Ptr<MaterialLibrary> itemByName(const std::string& name) const = 0;
  /// The library of that id; empty when there is none.
  virtual Ptr<MaterialLibrary> itemById(const std::string& id) const = 0;
};

}  // namespace core
}  // namespace adsk
