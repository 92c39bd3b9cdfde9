#include "host/cli/addin_copy.h"

#include <string>
#include <system_error>

#include "host/cli/failure.h"
#include "host/cli/platform.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* settingsEnding = "_CmdSet.txt";
constexpr const char* remedy =
    "Set TMPDIR (on Windows TMP) to a folder with room that can be written, or use --keep-settings.";

bool isSettingsFile(const fs::path& file) {
  const std::string name = file.filename().u8string();
  const std::string ending = settingsEnding;
  return name.size() >= ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

// No links: Windows keeps a link to a module that another run has loaded, so that the folder would stay behind.
void copyAddIn(const fs::path& from, const fs::path& to) {
  for (const auto& entry : fs::recursive_directory_iterator(from)) {
    const fs::path target = to / fs::relative(entry.path(), from);
    if (entry.is_directory()) {
      fs::create_directories(target);
    } else if (!isSettingsFile(entry.path())) {
      fs::copy_file(entry.path(), target);
    }
  }
}

}  // namespace

fs::path addInFolderBesideProgram() {
  const fs::path program = programFile();
  if (program.empty()) {
    throw Failure("The system does not tell where this program is: name the add-in's folder with --addin.");
  }
  return program.parent_path() / "addin";
}

AddInCopy::AddInCopy(const fs::path& folder, Settings settings) : used(fs::absolute(folder).lexically_normal()) {
  if (!fs::is_regular_file(used / moduleFileName)) {
    throw Failure("There is no add-in in " + used.u8string() + ": no file " + moduleFileName +
                  ". Build it, or name its folder with --addin.");
  }
  if (settings == Settings::Kept) {
    return;
  }
  const fs::path source = used;
  try {
    temporary.emplace(fs::temp_directory_path(), "tintora-host-", "");
    used = temporary->path() / "Tintora";
    fs::create_directory(used);
    copyAddIn(source, used);
  } catch (const fs::filesystem_error& error) {
    throw Failure("The add-in cannot be copied for this run: " + std::string(error.what()) + ". " + remedy);
  }
}

}  // namespace headless::cli
