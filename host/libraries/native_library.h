// The appearance library that comes with the headless host, in the place of the one that the CAD program is delivered
// with.
#pragma once

#include "host/model/materials.h"

namespace headless::libraries {

/// Id of that library and of the plain, opaque appearance in it from which coloured ones are made; the same as in the
/// CAD program, whatever its language. All else about it, names included, is made up.
inline constexpr const char* nativeLibraryId = "BA5EE55E-9982-449B-9D66-9F036540E140";
inline constexpr const char* plainAppearanceId = "Prism-129";

/// A native library of that id: the plain appearance among a textured, a metallic and a transparent one.
model::Library nativeLibrary();

}  // namespace headless::libraries
