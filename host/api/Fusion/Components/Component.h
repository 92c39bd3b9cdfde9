// Class Component.
#pragma once

#include <string>

#include "../../Core/Base.h"

namespace adsk {
namespace core {
class Material;
}  // namespace core

namespace fusion {

class BRepBodies;
class Design;
class OccurrenceList;
class Occurrences;

/// A part or sub-assembly. It has no appearance of its own. All members are documented unless marked.
class Component : public core::Base {
  ADSK_API_CLASS(Component, core::Base)

  /// Name as in the browser, without a counter.
  virtual std::string name() const = 0;
  /// Top level of this component only.
  virtual core::Ptr<Occurrences> occurrences() const = 0;
  /// All levels; parents before children, depth first (the order is assumed).
  virtual core::Ptr<OccurrenceList> allOccurrences() const = 0;
  /// Its own bodies, not proxies.
  virtual core::Ptr<BRepBodies> bRepBodies() const = 0;
  /// The material assigned to the component; empty when its bodies differ or none was assigned (assumed).
  virtual core::Ptr<core::Material> material() const = 0;
  /// Goes to all its own bodies (assumed); false for an empty material (assumed).
  virtual bool material(const core::Ptr<core::Material>& value) = 0;
  /// The design that it is part of.
  virtual core::Ptr<Design> parentDesign() const = 0;
};

}  // namespace fusion
}  // namespace adsk
