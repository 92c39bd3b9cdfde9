#include "host/cli/addin_copy.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include "host/cli/failure.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* settingsEnding = "_CmdSet.txt";

bool isSettingsFile(const fs::path& file) {
  const std::string name = file.filename().string();
  const std::string ending = settingsEnding;
  return name.size() >= ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

fs::path makeTemporaryFolder() {
  std::string name = (fs::temp_directory_path() / "tintora-host-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) {
    throw Failure("No folder can be made in " + fs::temp_directory_path().string() +
                  " for a copy of the add-in. Set TMPDIR to a folder that can be written, or use --keep-settings.");
  }
  return name;
}

// A link is as good as a copy, since nobody writes into these files; it only works on one file system.
void linkOrCopy(const fs::path& from, const fs::path& to) {
  std::error_code isElsewhere;
  fs::create_hard_link(from, to, isElsewhere);
  if (isElsewhere) {
    fs::copy_file(from, to);
  }
}

void copyAddIn(const fs::path& from, const fs::path& to) {
  for (const auto& entry : fs::recursive_directory_iterator(from)) {
    const fs::path target = to / fs::relative(entry.path(), from);
    if (entry.is_directory()) {
      fs::create_directories(target);
    } else if (!isSettingsFile(entry.path())) {
      linkOrCopy(entry.path(), target);
    }
  }
}

}  // namespace

fs::path addInFolderBesideProgram() {
  std::error_code failed;
  const fs::path program = fs::read_symlink("/proc/self/exe", failed);
  if (failed) {
    throw Failure("The system does not tell where this program is: name the add-in's folder with --addin.");
  }
  return program.parent_path() / "addin";
}

AddInCopy::AddInCopy(const fs::path& folder, Settings settings) : used(fs::absolute(folder).lexically_normal()) {
  if (!fs::is_regular_file(used / moduleFileName)) {
    throw Failure("There is no add-in in " + used.string() + ": no file " + moduleFileName +
                  ". Build it, or name its folder with --addin.");
  }
  if (settings == Settings::Kept) {
    return;
  }
  temporary = makeTemporaryFolder();
  try {
    const fs::path source = used;
    used = temporary / "Tintora";
    fs::create_directory(used);
    copyAddIn(source, used);
  } catch (const fs::filesystem_error& error) {
    std::error_code ignored;
    fs::remove_all(temporary, ignored);
    throw Failure("The add-in cannot be copied for this run: " + std::string(error.what()));
  }
}

AddInCopy::~AddInCopy() {
  std::error_code ignored;
  if (!temporary.empty()) {
    fs::remove_all(temporary, ignored);
  }
}

}  // namespace headless::cli
