#include "host/files/atomic_file.h"

#include <random>
#include <system_error>
#include <utility>

#include "host/files/error.h"

namespace headless::files {

namespace fs = std::filesystem;

namespace {

/// A folder name that nobody else uses at the same time.
std::string temporaryName(const fs::path& target) {
  std::random_device random;
  return "." + target.filename().u8string() + "." + std::to_string(random()) + ".part";
}

}  // namespace

void failToWrite(const fs::path& file, const std::string& why, const std::string& help) {
  throw Error("Cannot write \"" + file.u8string() + "\": " + why + ". " + help);
}

AtomicFile::AtomicFile(fs::path destination) : target(std::move(destination)) {
  const fs::path parent = target.has_parent_path() ? target.parent_path() : fs::path(".");
  std::error_code error;
  if (!target.has_filename() || fs::is_directory(target, error)) {
    failToWrite(target, "that is a folder", "Give a file name.");
  }
  if (!fs::is_directory(parent, error)) {
    failToWrite(target, "the folder \"" + parent.u8string() + "\" does not exist",
                "Create it or choose another folder.");
  }
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
