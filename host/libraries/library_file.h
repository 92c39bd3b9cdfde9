// Material libraries in the headless host's own plain format: a JSON text that a person can read and write. Such files
// end in ".adsklib" because that is the ending under which the add-in looks for libraries, and say in their first entry
// what they are. The closed format of the same ending is not read, only told apart.
//
//   {
//     "format": "headless material library",
//     "version": 1,
//     "name": "Workshop",                        the library's name; an "id" is made from it unless given
//     "comment": "...",                          free text, optional
//     "appearances": [{"name": "Flame red", "colour": "#A02128"}],
//     "materials": [{"name": "Brass", "density": 8500, "appearance": "Flame red",
//                    "properties": [{"id": "thermal_Class", "name": "Class", "value": "B", "unit": ""}]}]
//   }
//
// Both lists and everything but the names, and the colours of appearances, may be left out. Entries may carry an "id",
// unique in their list. A density is in kg/m3. A material's appearance is the first of that name in the file; without
// one it looks like the default material. A property's value is a number or a text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/files/format_error.h"
#include "host/model/materials.h"

namespace headless::libraries {

/// What is wrong with a library file.
using Error = files::FormatError;

/// The library in a file. Raises Error.
model::Library readLibrary(const std::filesystem::path& file);

/// The library in a text of that format; `fileName` is for messages only. Raises Error.
model::Library parseLibrary(std::string_view text, const std::string& fileName);

}  // namespace headless::libraries
