// Folders for what is in the making. Whatever way a program ends, none of them should stay behind.
#pragma once

#include <filesystem>
#include <string>

namespace headless::files {

/// A new folder that only its owner may enter, gone with this object together with all that is in it. [any thread]
class ScratchFolder {
 public:
  /// Makes it in `parent`; its name is `before`, a number that nobody else uses, and `after`. Raises
  /// std::filesystem::filesystem_error.
  ScratchFolder(const std::filesystem::path& parent, const std::string& before, const std::string& after);
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  const std::filesystem::path& path() const { return folder; }

 private:
  std::filesystem::path folder;
};

/// Removes all that there are, though others may be at work in them: for programs that are ended from outside. From
/// then on whoever makes or gives up a folder waits for good, so that nobody comes to report a file that was taken
/// from under him. The caller must end the program. [any thread]
void removeScratchFoldersForGood();

}  // namespace headless::files
