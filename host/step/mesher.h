// Triangles for the geometry of a design.
#pragma once

#include "host/model/design.h"
#include "host/step/progress.h"

namespace headless::step {

/// How closely flat triangles follow curved faces.
struct MeshQuality {
  /// Largest distance, as a fraction of the body's diagonal.
  double deviation = 0.001;
  /// Largest angle between neighbouring triangles, in radians.
  double angle = 0.4;
};

/// Gives every body its triangles; they stay with its geometry. Bodies that have fine enough ones already keep them.
/// Phase: "meshing". Raises Error when a body has no geometry.
void meshBodies(const model::Design& design, const MeshQuality& quality, const Progress& progress);

}  // namespace headless::step
