// The add-in's folder for one run of the program.
#pragma once

#include <filesystem>
#include <optional>

#include "host/files/scratch_folder.h"

namespace headless::cli {

/// The name of the module file in its folder.
inline constexpr const char* moduleFileName = "Tintora.dll";

/// The folder `addin` beside the program. Raises Failure when the system does not tell where the program is.
std::filesystem::path addInFolderBesideProgram();

/// A folder to load the add-in from. Without wishing to keep settings that is a copy of it, gone with this object,
/// without the settings of earlier runs: what was chosen last time must not change what is done this time.
class AddInCopy {
 public:
  enum class Settings { Fresh, Kept };

  /// Raises Failure when `folder` holds no add-in or cannot be copied.
  AddInCopy(const std::filesystem::path& folder, Settings settings);

  const std::filesystem::path& folder() const { return used; }
  std::filesystem::path module() const { return used / moduleFileName; }

 private:
  void copy();

  std::optional<files::ScratchFolder> temporary;
  std::filesystem::path used;
};

}  // namespace headless::cli
