#include "host/cli/addin_copy.h"

#include <algorithm>
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

fs::path temporaryFolder() {
  std::error_code failed;
  fs::path folder = fs::temp_directory_path(failed);
  if (failed) {
    throw Failure("There is no folder for temporary files, where a copy of the add-in would go: TMPDIR names none (" +
                  failed.message() + "). " + remedy);
  }
  return folder;
}

/// True when the add-in's own files are to blame, so that another place for the copy would not help.
bool isAboutSource(const std::error_code& error) {
  return error == std::errc::permission_denied || error == std::errc::no_such_file_or_directory ||
         error == std::errc::too_many_symbolic_link_levels || error == std::errc::not_supported;
}

// No links: Windows keeps a link to a module that another run has loaded, so that the folder would stay behind. For the
// same reason nothing in the copy is read-only.
void copyAddIn(const fs::path& from, const fs::path& to) {
  for (auto entry = fs::recursive_directory_iterator(from, fs::directory_options::follow_directory_symlink);
       entry != fs::recursive_directory_iterator(); ++entry) {
    const fs::path target = to / entry->path().lexically_relative(from);
    if (entry->is_directory()) {
      fs::create_directory(target);
    } else if (!isSettingsFile(entry->path())) {
      fs::copy_file(entry->path(), target);
      fs::permissions(target, fs::perms::owner_write, fs::perm_options::add);
    }
  }
}

bool isWithin(const fs::path& folder, const fs::path& other) {
  const fs::path inner = fs::canonical(folder);
  const fs::path outer = fs::canonical(other);
  return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
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
  std::error_code failed;
  const fs::file_status module = fs::status(used / moduleFileName, failed);
  if (!fs::is_regular_file(module)) {
    throw Failure("There is no add-in in " + used.u8string() + ": no file " + moduleFileName +
                  (fs::status_known(module) ? "" : " can be reached (" + failed.message() + ")") +
                  ". Build it, or name its folder with --addin.");
  }
  if (settings == Settings::Fresh) {
    copy();
  }
}

void AddInCopy::copy() {
  const fs::path source = used;
  const fs::path parent = temporaryFolder();
  try {
    if (isWithin(parent, source)) {
      throw Failure("The add-in cannot be copied for this run into its own folder, to " + parent.u8string() + ". " +
                    remedy);
    }
    temporary.emplace(parent, "tintora-host-", "");
    used = temporary->path() / "Tintora";
    fs::create_directory(used);
    copyAddIn(source, used);
  } catch (const fs::filesystem_error& error) {
    const bool isSourceToBlame = temporary && isAboutSource(error.code());
    throw Failure("The add-in cannot be copied for this run: " + std::string(error.what()) + "." +
                  (isSourceToBlame ? "" : std::string(" ") + remedy));
  }
}

}  // namespace headless::cli
