#include "tests/support/addin_folder.h"

#include <fstream>
#include <stdexcept>

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

// The order depends on the names of files and not on what is in them.
void AddInFolder::writeLibraries(const fs::path& libraries, const std::vector<std::string>& contents) const {
  remove(libraries);
  makeFolder(libraries);
  for (std::size_t i = 0; i < contents.size(); ++i) {
    write(libraries / ("Library" + std::to_string(i) + ".adsklib"), "");
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
