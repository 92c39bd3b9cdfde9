#include "host/files/atomic_file.h"

#include <system_error>
#include <utility>

#include "host/files/error.h"

namespace headless::files {

namespace fs = std::filesystem;

namespace {

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// Beside the file, named without it: the name of the file may already be as long as the file system allows.
ScratchFolder scratchFolderBeside(const fs::path& file) {
  checkDestination(file);
  const fs::path parent = folderOf(file);
  try {
    return {parent, ".tintora-", ".part"};
  } catch (const fs::filesystem_error& error) {
    failToWrite(file, "the folder \"" + parent.u8string() + "\" cannot be written (" + error.code().message() + ")",
                "Choose another folder or change its permissions.");
  }
}

}  // namespace

void failToWrite(const fs::path& file, const std::string& why, const std::string& help) {
  throw Error("Cannot write \"" + file.u8string() + "\": " + why + ". " + help);
}

void checkDestination(const fs::path& file) {
  std::error_code error;
  if (!file.has_filename() || fs::is_directory(file, error)) {
    failToWrite(file, "that is a folder", "Give a file name.");
  }
  if (!fs::is_directory(folderOf(file), error)) {
    failToWrite(file, "the folder \"" + folderOf(file).u8string() + "\" does not exist",
                "Create it or choose another folder.");
  }
}

AtomicFile::AtomicFile(fs::path destination)
    : target(std::move(destination)),
      folder(scratchFolderBeside(target)),
      temporary(folder.path() / target.filename()) {}

void AtomicFile::commit() {
  std::error_code error;
  fs::rename(temporary, target, error);
  if (error) {
    failToWrite(target, "the finished file cannot be put in place (" + error.message() + ")",
                "Close programs that have the file open and check its permissions.");
  }
}

}  // namespace headless::files
