// The files that the program writes.
#pragma once

#include <filesystem>
#include <vector>

#include "host/cli/progress_line.h"
#include "host/model/design.h"

namespace headless::cli {

/// Where a design goes; an empty path for none.
struct OutputFiles {
  std::filesystem::path design;
  std::filesystem::path glb;
};

/// A file to be written, and the option that names it.
struct NamedOutput {
  const char* option;
  std::filesystem::path file;
};

/// Raises UsageError when writing one of the outputs would replace the input or another output, under whatever name,
/// and files::Error when one has no folder to go to or is itself a folder. Those without a file are passed over.
void checkDestinations(const std::filesystem::path& input, const std::vector<NamedOutput>& outputs);

/// Raises UsageError when an output has the wrong ending, takes geometry that the input has not, or would replace the
/// input, another output or one of `others`, and files::Error when one cannot be there. `designOption` is the name
/// under which the command line has the design.
void checkOutputs(const std::filesystem::path& input, const OutputFiles& outputs,
                  const std::vector<NamedOutput>& others = {}, const char* designOption = "--save");

/// Writes the files, each whole or not at all, and says so on the standard output. Raises files::Error.
void writeOutputs(const model::Design& design, const OutputFiles& outputs, ProgressStyle progress);

}  // namespace headless::cli
