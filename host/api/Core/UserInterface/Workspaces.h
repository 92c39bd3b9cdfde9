// Class Workspaces.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Workspace;

/// All workspaces. All members are documented.
class Workspaces : public Base {
  ADSK_API_CLASS(Workspaces, Base)

  using iterable_type = Workspace;
  /// Empty for a bad index.
  virtual Ptr<Workspace> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Empty when there is none of that id.
  virtual Ptr<Workspace> itemById(const std::string& id) const = 0;
};

}  // namespace core
}  // namespace adsk
