// What a design looks like, for viewers.
#pragma once

#include <filesystem>

#include "host/model/design.h"
#include "host/step/mesher.h"
#include "host/step/progress.h"

namespace headless::step {

/// Writes a GLB file (binary glTF) with a node for every occurrence, named like it, in metres and with y upwards. Every
/// face has the colour that it really shows there, and the faces of a body that show the same colour are one piece.
/// Bodies and placements that look the same share their triangles.
///
/// The file appears whole or not at all; an earlier file of that name is replaced. Phases: "meshing", "writing". Keeps
/// the triangles with the design's geometry, so that a second file takes less time. Raises Error when the file cannot
/// be written or the design has no geometry.
void writeGlb(const model::Design& design, const std::filesystem::path& file, const Progress& progress = {},
              const MeshQuality& quality = {});

}  // namespace headless::step
