// The surfaces of a design as coloured triangles, for pictures.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "host/model/design.h"
#include "host/step/mesher.h"

namespace headless::step {

/// A point in the root's coordinates, in millimetres.
using Point = std::array<double, 3>;

struct Triangle {
  std::array<Point, 3> corners{};
  /// What the face really shows there.
  model::Colour colour;
  /// Tells the triangles of one face, as seen through one occurrence, from all others.
  std::uint32_t face = 0;
};

/// All triangles of everything that is placed in the root. Phase: "meshing". Raises Error when the design has no
/// geometry.
std::vector<Triangle> trianglesOf(const model::Design& design, const MeshQuality& quality, const Progress& progress);

}  // namespace headless::step
