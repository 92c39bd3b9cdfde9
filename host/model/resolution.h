// What an object shows and where that comes from, worked out from the looks that were applied at each level: the lower
// level wins (face, then body, then the nearest occurrence, then the material). Nothing here is remembered.
#pragma once

#include <memory>

#include "host/model/design.h"

namespace headless::model {

/// Where a visible appearance comes from; the values are the API's AppearanceSourceTypes.
enum class Source { Material = 0, Body = 1, Occurrence = 2, Face = 3, Override = 4 };

/// What an object shows; the appearance is never empty for bodies that belong to a component.
struct Look {
  std::shared_ptr<const Appearance> appearance;
  Source source = Source::Material;
};

/// The node that gives `occurrence` a look of its own, or nullptr when there is none: the node itself or, when nothing
/// was applied to it, the node at the same place in the own tree of a component above it, nearest component first.
/// (What was applied to "Bolt:1" as seen from the sub-assembly shows wherever the sub-assembly is used.)
Occurrence* lookCarrier(Occurrence& occurrence);

/// The look of a body seen through `context` (nullptr: the body in its own component, or in the root).
Look lookOf(const Body& body, const Occurrence* context);

/// The same for a face.
Look lookOf(const Face& face, const Occurrence* context);

/// The component's material: the one that all its own bodies share, or, without bodies, what was assigned to it; empty
/// when bodies differ or nothing was assigned.
std::shared_ptr<const Material> materialOf(const Component& component);

}  // namespace headless::model
