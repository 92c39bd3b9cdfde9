// STEP assemblies out: designs as AP214 files.
#pragma once

#include <filesystem>

#include "host/model/design.h"
#include "host/step/progress.h"

namespace headless::step {

/// Writes what is reached from the root: structure, names, placements, own colours of faces, bodies and occurrences,
/// and the materials that were chosen. read() gives the same design back, with colours for appearances. Bodies that
/// show a chosen material get its colour as well; read() with a lookup that knows the material takes that back.
///
/// The file appears whole or not at all; an earlier file of that name is replaced. Phases: "translating", "writing".
/// Raises Error when the file cannot be written or the design has no geometry.
void write(const model::Design& design, const std::filesystem::path& file, const Progress& progress = {});

}  // namespace headless::step
