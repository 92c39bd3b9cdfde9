// Designs in files, of the kind that the file's ending says.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/files/progress.h"
#include "host/model/design.h"

namespace headless::cli {

/// The endings of designs that this build can write.
std::vector<std::string> designEndings();

/// The design in a design file or, whatever its ending, a STEP file. Raises files::Error, files::FormatError, and
/// Failure where this build does not read such files.
std::unique_ptr<model::Design> readDesign(const std::filesystem::path& file, const model::MaterialLookup& lookup,
                                          const files::Progress& progress);

/// Writes the design, whole or not at all. Raises the same.
void writeDesign(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress);

/// Raises UsageError when `output` takes geometry that a design read from `input` has not.
void requireGeometryFor(const std::filesystem::path& input, const std::filesystem::path& output);

}  // namespace headless::cli
