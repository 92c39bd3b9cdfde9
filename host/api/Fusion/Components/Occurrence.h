// Class Occurrence.
#pragma once

#include <string>

#include "../../Core/Base.h"

namespace adsk {
namespace core {
class Appearance;
}  // namespace core

namespace fusion {

class BRepBodies;
class Component;
class OccurrenceList;

/// A use of a component in an assembly. It has no material of its own. All members are documented unless marked.
class Occurrence : public core::Base {
  ADSK_API_CLASS(Occurrence, core::Base)

  /// Component name, colon, counter.
  virtual std::string name() const = 0;
  /// The names from the top level down to this one, joined by "+".
  virtual std::string fullPathName() const = 0;
  /// The component that it is a use of.
  virtual core::Ptr<Component> component() const = 0;
  /// Direct children in the context of this occurrence.
  virtual core::Ptr<OccurrenceList> childOccurrences() const = 0;
  /// Proxies of the component's bodies, in the context of this occurrence.
  virtual core::Ptr<BRepBodies> bRepBodies() const = 0;
  /// The occurrence's own appearance; empty when it has none. One that was applied inside a sub-assembly counts
  /// wherever the sub-assembly is used (assumed).
  virtual core::Ptr<core::Appearance> appearance() const = 0;
  /// An empty handle removes it, inside the sub-assembly too (the latter assumed).
  virtual bool appearance(const core::Ptr<core::Appearance>& value) = 0;
};

}  // namespace fusion
}  // namespace adsk
