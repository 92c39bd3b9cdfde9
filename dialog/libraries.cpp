// Walks a library folder and hands its files to the host.
#include "dialog/libraries.h"

#include <filesystem>
#include <system_error>

#include "shell/globals.h"
#include "shell/module_path.h"

namespace tintora {

namespace {

namespace fs = std::filesystem;

/// Raises an error with the same operation text whatever the standard library; its own texts differ.
[[noreturn]] void raise(const char* operation, const fs::path& path, const std::error_code& error) {
  throw fs::filesystem_error(operation, path, error);
}

/// A missing entry (a link to nowhere) is no error: the host decides what it is worth.
void requireReadable(const fs::directory_entry& entry) {
  std::error_code error;
  if (entry.status(error).type() == fs::file_type::none) {
    raise("directory_entry::status", entry.path(), error);
  }
}

}  // namespace

std::string libraryFolder(const char* kind) {
  return joinPath({"resources", "Libs", kind});
}

NameSequence loadLibraryFolder(const char* kind) {
  constexpr const char* libraryFileMark = ".adsklib";  // anywhere in the path, not only at its end
  const fs::path folder = toSystemPath(joinPath({addinFolder(), libraryFolder(kind), ""}));
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  if (error) {
    raise("directory_iterator::directory_iterator", folder, error);
  }

  const Ptr<core::MaterialLibraries> libraries = appHandle->materialLibraries();
  NameSequence names;
  while (entry != fs::directory_iterator()) {
    requireReadable(*entry);
    const std::string file = toAnsi(entry->path().wstring());
    if (contains(file, libraryFileMark)) {
      const Ptr<core::MaterialLibrary> library = libraries->load(file);
      if (library) {
        names.push_back(library->name());
      }
    }
    entry.increment(error);
    if (error) {
      raise("directory_iterator::operator++", folder, error);
    }
  }
  return names;
}

}  // namespace tintora
