// What takes the geometry kernel: STEP files, and files for viewers. Builds without it have the same functions, which
// raise Failure, saying what to use instead. The sub-command `render` belongs here as well.
#pragma once

#include <filesystem>
#include <memory>

#include "host/files/progress.h"
#include "host/model/design.h"

namespace headless::cli {

/// True in builds with the kernel.
bool hasGeometry();

/// A STEP file as a design. Raises files::Error.
std::unique_ptr<model::Design> readStep(const std::filesystem::path& file, const model::MaterialLookup& lookup,
                                        const files::Progress& progress);

/// A design as STEP. Raises files::Error.
void writeStep(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress);

/// A design as GLB. Raises files::Error.
void writeGlb(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress);

}  // namespace headless::cli
