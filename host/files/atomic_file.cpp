#include "host/files/atomic_file.h"

#include <system_error>

#include "host/files/error.h"

namespace headless::files {

namespace fs = std::filesystem;

namespace {

// As many as Linux follows in a path.
constexpr int linksFollowed = 40;

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// The file that a link stands for, over several steps if need be; there need not be such a file yet.
fs::path withoutLinks(fs::path file) {
  std::error_code error;
  for (int followed = 0; followed < linksFollowed && fs::is_symlink(file, error); ++followed) {
    file = folderOf(file) / fs::read_symlink(file, error);
  }
  return file;
}

/// The file to replace, or to make where there is none yet.
fs::path checkedTarget(const fs::path& destination) {
  std::error_code error;
  const fs::file_status status = fs::status(destination, error);
  if (!destination.has_filename() || fs::is_directory(status)) {
    failToWrite(destination, "that is a folder", "Give a file name.");
  }
  if (!fs::status_known(status)) {
    failToWrite(destination, error.message(), "Choose another file.");
  }
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    failToWrite(destination, "that is a device, a pipe or a socket", "Give the name of a file.");
  }
  fs::path target = withoutLinks(destination);
  const fs::path folder = folderOf(target);
  if (!fs::is_directory(folder, error)) {
    failToWrite(destination, "the folder \"" + folder.u8string() + "\" does not exist",
                "Create it or choose another folder.");
  }
  return target;
}

/// Beside the file, named without it: the name of the file may already be as long as the file system allows.
ScratchFolder scratchFolderBeside(const fs::path& file) {
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

AtomicFile::AtomicFile(const fs::path& destination)
    : target(checkedTarget(destination)),
      folder(scratchFolderBeside(target)),
      temporary(folder.path() / destination.filename()) {}

void AtomicFile::commit() {
  std::error_code error;
  const fs::file_status earlier = fs::status(target, error);
  if (fs::exists(earlier)) {
    fs::permissions(temporary, earlier.permissions(), error);
  }
  fs::rename(temporary, target, error);
  if (error) {
    // Windows removes nothing that is read-only.
    std::error_code ignored;
    fs::permissions(temporary, fs::perms::owner_write, fs::perm_options::add, ignored);
    failToWrite(target, "the finished file cannot be put in place (" + error.message() + ")",
                "Close programs that have the file open and check its permissions.");
  }
}

}  // namespace headless::files
