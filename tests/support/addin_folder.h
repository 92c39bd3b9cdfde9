// An add-in folder of a test's own: the module, libraries beside it and whatever else the test puts there. It is gone
// with the test.
#pragma once

#include <filesystem>
#include <string>

#include <vector>
#include "tests/support/temporary_folder.h"

namespace tests {

class AddInFolder {
 public:
  /// Makes an empty folder with the module in it. `name` is the folder's own name.
  explicit AddInFolder(const std::string& name = "Tintora");

  const std::filesystem::path& path() const { return folder; }
  /// The module file, named Tintora.dll unless it was renamed.
  const std::filesystem::path& module() const { return moduleFile; }
  /// Gives the module file another name.
  void renameModule(const std::string& fileName);

  /// Moves the module into a folder below its own, and the libraries with it.
  void moveModuleTo(const std::filesystem::path& subfolder);

  /// Writes a file, folders included; the path is relative to the add-in folder.
  void write(const std::filesystem::path& file, const std::string& content) const;
  /// The bytes of a file; the path is relative to the add-in folder.
  std::string read(const std::filesystem::path& file) const;
  bool has(const std::filesystem::path& file) const;
  void remove(const std::filesystem::path& file) const;
  /// Names of the entries of a folder, in the order in which the file system lists them.
  std::vector<std::string> listing(const std::filesystem::path& relative) const;
  /// Makes the file system list the libraries of both kinds by name, as Windows does. Raises std::runtime_error where
  /// it cannot be brought to that.
  void listLibrariesByName() const;
  /// Replaces the library files of a folder by these, so that the file system lists them in this order.
  void writeLibraries(const std::filesystem::path& libraries, const std::vector<std::string>& contents) const;
  /// Makes a folder.
  void makeFolder(const std::filesystem::path& relative) const;
  /// Makes the icon of a colour of the RAL library, such as "RAL3000".
  void addColourIcon(const std::string& key) const;

 private:
  void listByName(const std::filesystem::path& relative) const;

  TemporaryFolder parent;
  std::filesystem::path folder;
  std::filesystem::path moduleFile;
};

/// Folders of the libraries in an add-in folder.
inline const std::filesystem::path appearancesFolder = "resources/Libs/Appearances";
inline const std::filesystem::path materialsFolder = "resources/Libs/Materials";

}  // namespace tests
