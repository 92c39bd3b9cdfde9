#include "host/files/scratch_folder.h"

#include <mutex>
#include <random>
#include <set>
#include <system_error>

namespace headless::files {

namespace fs = std::filesystem;

namespace {

constexpr int namesTried = 100;
// A file can come into being in a folder that is being removed, but not often.
constexpr int removalsTried = 100;

struct Registry {
  std::mutex mutex;
  std::set<fs::path> folders;
};

/// Never destroyed: the program may be ended from outside while it is ending by itself.
Registry& registry() {
  static Registry* const only = new Registry;
  return *only;
}

fs::path makeFolder(const fs::path& parent, const std::string& before, const std::string& after) {
  std::random_device random;
  fs::path folder;
  for (int tried = 0; tried < namesTried; ++tried) {
    folder = parent / fs::u8path(std::string(before).append(std::to_string(random())).append(after));
    if (fs::create_directory(folder)) {
      return folder;
    }
  }
  throw fs::filesystem_error("cannot make a folder", folder, std::make_error_code(std::errc::file_exists));
}

}  // namespace

ScratchFolder::ScratchFolder(const fs::path& parent, const std::string& before, const std::string& after) {
  Registry& all = registry();
  const std::lock_guard<std::mutex> lock(all.mutex);
  folder = makeFolder(parent, before, after);
  // Relative paths lose their meaning when the program goes to another folder.
  folder = fs::absolute(folder);
  std::error_code ignored;
  fs::permissions(folder, fs::perms::owner_all, ignored);
  all.folders.insert(folder);
}

ScratchFolder::~ScratchFolder() {
  Registry& all = registry();
  const std::lock_guard<std::mutex> lock(all.mutex);
  all.folders.erase(folder);
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

void removeScratchFoldersForGood() {
  Registry& all = registry();
  all.mutex.lock();
  for (const fs::path& folder : all.folders) {
    std::error_code failed;
    int tried = 0;
    do {
      fs::remove_all(folder, failed);
    } while (failed && ++tried < removalsTried);
  }
}

}  // namespace headless::files
