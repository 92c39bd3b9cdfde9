// Discovery of the library files that are shipped below the add-in's folder.
#pragma once

#include <string>

#include "shell/text.h"

namespace tintora {

/// The two kinds of libraries, named like the sub-folders of "resources\Libs" that hold them.
inline constexpr const char* appearanceLibraries = "Appearances";
inline constexpr const char* materialLibraries = "Materials";

/// Folder of one kind of libraries relative to the add-in's folder, without separators around it.
std::string libraryFolder(const char* kind);

/// Has the host load every library file of one kind, anew on each call. Returns the names of the libraries that it
/// loaded, in the file system's order; a file that it refuses is left out. Raises std::filesystem::filesystem_error
/// when the folder or an entry of it cannot be read.
NameSequence loadLibraryFolder(const char* kind);

}  // namespace tintora
