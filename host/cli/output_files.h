// The files that the program writes.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/cli/progress_line.h"
#include "host/model/design.h"

namespace headless::cli {

/// Where a design goes; an empty path for none.
struct OutputFiles {
  std::filesystem::path design;
  std::filesystem::path glb;
};

/// A file to be written, the option that names it, and the endings that its name may have, or none for any.
struct NamedOutput {
  const char* option;
  std::filesystem::path file;
  std::vector<std::string> endings = {};
};

/// Raises UsageError when writing one of the outputs would replace the input or another output, under whatever name, or
/// has the wrong ending, and files::Error when one cannot be made where it is to go. Those without a file are passed
/// over.
void checkDestinations(const std::filesystem::path& input, const std::vector<NamedOutput>& outputs);

/// Raises UsageError when an output has the wrong ending, takes geometry that the input has not, or would replace the
/// input, another output or one of `others`, and files::Error when one cannot be there. `designOption` is the name
/// under which the command line has the design.
void checkOutputs(const std::filesystem::path& input, const OutputFiles& outputs,
                  const std::vector<NamedOutput>& others = {}, const char* designOption = "--save");

/// Writes the files, each whole or not at all, and says so on the standard output. Raises files::Error.
void writeOutputs(const model::Design& design, const OutputFiles& outputs, ProgressStyle progress);

}  // namespace headless::cli
