// Options that several sub-commands share.
#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>
#include <vector>

#include "host/cli/dialog_work.h"
#include "host/cli/output_files.h"
#include "host/cli/sitting.h"

namespace headless::cli {

/// An option or argument that names a file or folder, in UTF-8 on every system. A name that is empty makes no sense.
CLI::Option* addPathOption(CLI::App& command, const std::string& name, std::filesystem::path& path,
                           const std::string& description);

/// FILE, the assembly.
void addInputFile(CLI::App& command, std::filesystem::path& file);
/// FILE, the assembly, where it must have geometry.
void addStepFile(CLI::App& command, std::filesystem::path& file);

/// --addin and --quiet.
void addHostOptions(CLI::App& command, SittingOptions& options);

/// The same and --profile, --keep-settings, --trace and --count-calls, for commands that run the add-in.
void addAddInOptions(CLI::App& command, SittingOptions& options);

/// --filter and --select as given.
struct PickOptions {
  std::string kindWord;
  std::vector<std::string> patterns;

  Picks picks() const;
};

/// Whether something must be picked.
enum class Picking { Required, Optional };

void addPickOptions(CLI::App& command, PickOptions& options, Picking picking);

/// --save, which is required, and --glb where this build can write it.
void addOutputOptions(CLI::App& command, OutputFiles& outputs);

/// --colour as given.
struct ColourOption {
  std::string when = "auto";

  /// True when the standard output is to be coloured.
  bool isOn() const;
};

void addColourOption(CLI::App& command, ColourOption& option);

}  // namespace headless::cli
