#include "host/files/atomic_file.h"

#include <random>
#include <system_error>
#include <utility>

#include "host/files/error.h"

namespace headless::files {

namespace fs = std::filesystem;

namespace {

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// A folder name that nobody else uses at the same time.
std::string temporaryName(const fs::path& target) {
  std::random_device random;
  return "." + target.filename().u8string() + "." + std::to_string(random()) + ".part";
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

AtomicFile::AtomicFile(fs::path destination) : target(std::move(destination)) {
  checkDestination(target);
  const fs::path parent = folderOf(target);
  std::error_code error;
  folder = parent / fs::u8path(temporaryName(target));
  if (!fs::create_directory(folder, error)) {
    failToWrite(target, "the folder \"" + parent.u8string() + "\" cannot be written (" + error.message() + ")",
                "Choose another folder or change its permissions.");
  }
  temporary = folder / target.filename();
}

AtomicFile::~AtomicFile() {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

void AtomicFile::commit() {
  std::error_code error;
  fs::rename(temporary, target, error);
  if (error) {
    failToWrite(target, "the finished file cannot be put in place (" + error.message() + ")",
                "Close programs that have the file open and check its permissions.");
  }
}

}  // namespace headless::files
