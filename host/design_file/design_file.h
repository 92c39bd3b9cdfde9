// Designs in the headless host's own plain format: a JSON text that a person can read and write. It keeps everything
// about a design but its geometry: bodies and faces that are read from it have no shape.
//
//   {
//     "format": "headless design",
//     "version": 1,
//     "name": "Pump",
//     "appearances": [{"name": "Flame red", "id": "flame-red", "colour": "#A72920",
//                      "surface": "opaque", "roughness": 0.5, "texture": false}],
//     "designAppearances": [0],                 those that were copied into the design
//     "materials": [{"name": "Brass", "id": "brass", "appearance": 0,
//                    "properties": [{"id": "structural_Density", "name": "Density", "value": 8500, "unit":
//                    "kg/m^3"}]}],
//     "components": [                            the first one is the root
//       {"name": "Pump",
//        "material": 0,                          what was assigned to the component as a whole
//        "bodies": [{"name": "Lid", "material": 0, "appearance": 0, "faces": [null, 0]}],
//        "instances": [{"component": 1, "counter": 1, "placement": [1, 0, 0, 0,  0, 1, 0, 0,  0, 0, 1, 0]}]},
//       {"name": "Bolt"}],
//     "looks": [{"tree": 0, "path": [0], "appearance": 0}]
//   }
//
// Appearances, materials and components are meant by their place in the list, from 0; "default" means the default
// material, and its appearance. An absent "appearance" is one that was not applied, an absent "material" is the default
// one for bodies and none for components, an absent "placement" moves nothing, an absent "counter" is the next one. A
// surface is "opaque", "metal" or "transparent", and its roughness a number from 0 to 1, or null where there is none;
// the example shows what they are when absent. "faces" has an entry for each face: its own appearance, or null. "looks"
// are the appearances that were applied to occurrences: the component whose tree it is, the root unless given, and the
// way down that tree, the place of the instance in its component at each step. Lists may be left out when they are
// empty.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "host/files/error.h"
#include "host/files/format_error.h"
#include "host/files/progress.h"
#include "host/model/design.h"

namespace headless::design_file {

/// What the names of such files end in.
inline constexpr std::string_view ending = ".design.json";

/// Whether the file's name ends so; case is free.
bool hasEnding(const std::filesystem::path& file);

/// Writes the design. The file appears whole or not at all; an earlier file of that name is replaced. Phase: "writing".
/// Raises files::Error when it cannot be written, or when a name is no UTF-8 or a number is none.
void write(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress = {});

/// The design in a file. A material that `lookup` knows by name, and that is the same in everything, is taken from
/// there. Phase: "reading". Raises files::FormatError.
std::unique_ptr<model::Design> read(const std::filesystem::path& file, const model::MaterialLookup& lookup = {},
                                    const files::Progress& progress = {});

/// The design in a text of that format; `fileName` is for messages only. Raises files::FormatError.
std::unique_ptr<model::Design> parse(std::string_view text, const std::string& fileName,
                                     const model::MaterialLookup& lookup = {});

}  // namespace headless::design_file
