#include "tests/support/addin_folder.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "tests/support/journal.h"

namespace tests {

namespace fs = std::filesystem;

AddInFolder::AddInFolder(const std::string& name)
    : folder(parent.path() / fs::u8path(name)), moduleFile(folder / "Tintora.dll") {
  fs::create_directories(folder);
  fs::copy_file(TINTORA_MODULE, moduleFile);
}

void AddInFolder::renameModule(const std::string& fileName) {
  const fs::path renamed = folder / fs::u8path(fileName);
  fs::rename(moduleFile, renamed);
  moduleFile = renamed;
}

void AddInFolder::moveModuleTo(const fs::path& subfolder) {
  makeFolder(subfolder);
  renameModule((subfolder / "Tintora.dll").u8string());
  fs::rename(folder / "resources", folder / subfolder / "resources");
}

void AddInFolder::write(const fs::path& file, const std::string& content) const {
  const fs::path target = folder / file;
  fs::create_directories(target.parent_path());
  std::ofstream stream(target, std::ios::binary);
  stream << content;
  if (!stream) {
    throw std::runtime_error("cannot write " + target.string());
  }
}

std::string AddInFolder::read(const fs::path& file) const {
  std::ifstream stream(folder / file, std::ios::binary);
  if (!stream) {
    throw std::runtime_error("cannot read " + (folder / file).string());
  }
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool AddInFolder::has(const fs::path& file) const {
  return fs::exists(folder / file);
}

void AddInFolder::remove(const fs::path& file) const {
  fs::remove_all(folder / file);
}

std::vector<std::string> AddInFolder::listing(const fs::path& relative) const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder / relative)) {
    names.push_back(entry.path().filename().u8string());
  }
  return names;
}

namespace {

using Names = std::vector<std::string>;

/// Puts all entries of a folder away and back in that order.
void putBackInOrder(const fs::path& folder, const Names& names) {
  const fs::path aside = folder.parent_path() / "aside";
  fs::rename(folder, aside);
  fs::create_directory(folder);
  for (const std::string& name : names) {
    fs::rename(aside / fs::u8path(name), folder / fs::u8path(name));
  }
  fs::remove(aside);
}

}  // namespace

// File systems in memory list what came last first, or the other way round; most others go by other rules.
// Windows does list by name.
void AddInFolder::listByName(const fs::path& relative) const {
  if (fs::path::preferred_separator == '\\' || !fs::is_directory(folder / relative)) {
    return;
  }
  Names names = listing(relative);
  std::sort(names.begin(), names.end());
  const Names backwards(names.rbegin(), names.rend());
  for (const Names& order : {backwards, names}) {
    if (listing(relative) != names) {
      putBackInOrder(folder / relative, order);
    }
  }
  if (listing(relative) != names) {
    throw std::runtime_error("no listing by name in " + folder.u8string() + ": use a folder in memory for TMPDIR");
  }
}

void AddInFolder::listLibrariesByName() const {
  const fs::path place = fs::relative(moduleFile.parent_path(), folder);
  listByName(place / appearancesFolder);
  listByName(place / materialsFolder);
}

// The order depends on the names of files and not on what is in them.
void AddInFolder::writeLibraries(const fs::path& libraries, const std::vector<std::string>& contents) const {
  remove(libraries);
  makeFolder(libraries);
  for (std::size_t i = 0; i < contents.size(); ++i) {
    write(libraries / ("Library" + std::to_string(i) + ".adsklib"), "");
  }
  if (keepsJournals()) {
    listByName(libraries);
  }
  const std::vector<std::string> files = listing(libraries);
  for (std::size_t i = 0; i < contents.size(); ++i) {
    write(libraries / files.at(i), contents[i]);
  }
}

void AddInFolder::makeFolder(const fs::path& relative) const {
  fs::create_directories(folder / relative);
}

void AddInFolder::addColourIcon(const std::string& key) const {
  write(appearancesFolder / "RAL_COLORS" / key / "16x16.png", "icon");
}

}  // namespace tests
