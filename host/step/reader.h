// STEP assemblies in: AP203, AP214 and AP242 files as designs.
#pragma once

#include <filesystem>
#include <memory>

#include "host/model/design.h"
#include "host/step/material_reader.h"
#include "host/step/progress.h"

namespace headless::step {

/// The assembly in `file`, with everything that it takes to write it again: the file is not needed any more.
///
/// Products are components, their uses instances; solids and open shells are bodies. A single assembly at the top is
/// the root; anything else stands in a root named after the file. Colours are appearances of the face, body or
/// occurrence that has them. Materials that `lookup` finds by name are taken from there, and a body in its material's
/// colour then has no appearance of its own. Phases: "reading", "translating".
///
/// Raises Error when the file cannot be read or holds no shapes.
std::unique_ptr<model::Design> read(const std::filesystem::path& file, const MaterialLookup& lookup = {},
                                    const Progress& progress = {});

}  // namespace headless::step
