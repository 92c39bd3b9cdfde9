// Where the add-in's files are: the module's own path, and one way to compose names beside and below it. Paths are
// narrow text in the ANSI code page with the system's own separator; on Windows they are exactly the texts that users
// and the host see.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tintora {

/// Full file name of the add-in's module, cut at 260 characters by the system.
std::string getModulePath();

/// Folder of the module, without a trailing separator.
std::string addinFolder();

/// The module's path with its first ".dll" (searched from the start, so a folder of that name counts) replaced by
/// `suffix`. Raises std::out_of_range when the path has no ".dll".
std::string pathBesideModule(const std::string& suffix);

/// The parts joined by the system's separator. An empty part at the front or the end gives a leading or a trailing
/// separator.
std::string joinPath(std::initializer_list<std::string_view> parts);

/// A narrow ANSI path in the form for file-system calls. Standard libraries do not agree on the encoding of narrow
/// paths, so that these calls only ever get wide text.
std::filesystem::path toSystemPath(const std::string& ansiPath);

}  // namespace tintora
