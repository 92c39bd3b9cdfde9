// The tree of a design for programs: complete, as JSON.
#pragma once

#include <string>

#include "host/model/design.h"

namespace headless::cli {

/// One JSON object, indented, ending with a line break:
///
///   {"design": name, "counts": {"components", "occurrences", "bodies", "faces"},
///    "bodies": [body...], "occurrences": [occurrence...]}
///
/// occurrence: {"name", "path", "component", "material", "own", "bodies", "occurrences"}
/// body: {"name", "path", "material", "shows", "source", "sourceCode", "own", "faceCount", "faces"}
/// face: {"path", "shows", "source", "sourceCode"}, only for faces with an appearance of their own unless `allFaces`.
///
/// "shows" and "own" are {"name", "colour"}, "own" is null where nothing was applied to the object itself. "material"
/// is {"name", "density" in kg/m3 or null}, and null where the bodies of a component differ.
std::string treeJson(const model::Design& design, bool allFaces);

}  // namespace headless::cli
