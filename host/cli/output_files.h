// The files that the program writes.
#pragma once

#include <filesystem>

#include "host/cli/progress_line.h"
#include "host/model/design.h"

namespace headless::cli {

/// Where a design goes; an empty path for none.
struct OutputFiles {
  std::filesystem::path design;
  std::filesystem::path glb;
};

/// Raises UsageError when writing `output` would replace `input`, under whatever name.
void requireOtherFile(const std::filesystem::path& input, const std::filesystem::path& output);

/// Raises UsageError when an output has the wrong ending, is the input, or takes geometry that the input has not.
/// `designOption` is the name under which the command line has the design.
void checkOutputs(const std::filesystem::path& input, const OutputFiles& outputs, const char* designOption = "--save");

/// Writes the files, each whole or not at all, and says so on the standard output. Raises files::Error.
void writeOutputs(const model::Design& design, const OutputFiles& outputs, ProgressStyle progress);

}  // namespace headless::cli
