// Output files that are whole or not there at all.
#pragma once

#include <filesystem>
#include <string>

#include "host/files/scratch_folder.h"

namespace headless::files {

/// Raises Error: what cannot be written, why, and what would help.
[[noreturn]] void failToWrite(const std::filesystem::path& file, const std::string& why, const std::string& help);

/// A file under construction, in a temporary folder beside its destination so that it can be moved into place in one
/// step. Until then an earlier file of that name stays as it is; without commit() nothing remains. A link stays, and
/// the file that it stands for is written; a file that is replaced hands on its permissions.
class AtomicFile {
 public:
  /// Raises Error when the destination's folder does not exist or cannot be written, or when there is something of that
  /// name that is no file but a folder, a device or a pipe.
  explicit AtomicFile(const std::filesystem::path& destination);

  /// Where to write; same file name as the destination.
  const std::filesystem::path& path() const { return temporary; }

  /// Moves the written file into place. Raises Error when that is not possible.
  void commit();

 private:
  std::filesystem::path target;
  ScratchFolder folder;
  std::filesystem::path temporary;
};

}  // namespace headless::files
