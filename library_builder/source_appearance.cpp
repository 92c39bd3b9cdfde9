#include "library_builder/source_appearance.h"

#include <cstddef>
#include <vector>

#include "library_builder/failure.h"

namespace library_builder {

namespace core = adsk::core;
using core::Ptr;

namespace {

// Names of libraries and appearances differ with the language, so that only ids are looked up.
constexpr const char* appearanceLibraryId = "BA5EE55E-9982-449B-9D66-9F036540E140";
constexpr const char* plainAppearanceId = "Prism-129";

/// The plain appearance of a library; empty when the library or the appearance is missing or has no colour.
Ptr<core::Appearance> plainAppearanceOf(const Ptr<core::MaterialLibrary>& library) {
  const Ptr<core::Appearances> appearances = library ? library->appearances() : nullptr;
  const Ptr<core::Appearance> plain = appearances ? appearances->itemById(plainAppearanceId) : nullptr;
  return colourOf(plain) ? plain : nullptr;
}

/// The first appearance of a library that shows a plain colour; empty when there is none.
Ptr<core::Appearance> firstColouredOf(const Ptr<core::MaterialLibrary>& library) {
  const Ptr<core::Appearances> appearances = library->appearances();
  const std::size_t count = appearances ? appearances->count() : 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Ptr<core::Appearance> appearance = appearances->item(static_cast<int>(i));
    if (appearance && !appearance->hasTexture() && colourOf(appearance)) {
      return appearance;
    }
  }
  return nullptr;
}

/// The libraries that the CAD program is delivered with.
std::vector<Ptr<core::MaterialLibrary>> nativeLibraries(const Ptr<core::MaterialLibraries>& libraries) {
  std::vector<Ptr<core::MaterialLibrary>> native;
  const std::size_t count = libraries->count();
  for (std::size_t i = 0; i < count; ++i) {
    const Ptr<core::MaterialLibrary> library = libraries->item(static_cast<int>(i));
    if (library && library->isNative()) {
      native.push_back(library);
    }
  }
  return native;
}

}  // namespace

Ptr<core::ColorProperty> colourOf(const Ptr<core::Appearance>& appearance) {
  const Ptr<core::Properties> properties = appearance ? appearance->appearanceProperties() : nullptr;
  return properties ? properties->itemById(colourProperty) : nullptr;
}

Ptr<core::Appearance> findSourceAppearance(const Ptr<core::Application>& app) {
  const Ptr<core::MaterialLibraries> libraries = app->materialLibraries();
  if (!libraries) {
    throw Failure("The CAD program does not give access to its material libraries.",
                  "Restart the CAD program and run the library builder again.");
  }
  if (const Ptr<core::Appearance> plain = plainAppearanceOf(libraries->itemById(appearanceLibraryId))) {
    return plain;
  }
  const std::vector<Ptr<core::MaterialLibrary>> native = nativeLibraries(libraries);
  for (const Ptr<core::MaterialLibrary>& library : native) {
    if (const Ptr<core::Appearance> plain = plainAppearanceOf(library)) {
      return plain;
    }
  }
  for (const Ptr<core::MaterialLibrary>& library : native) {
    if (const Ptr<core::Appearance> coloured = firstColouredOf(library)) {
      return coloured;
    }
  }
  throw Failure("The CAD program's own appearance libraries hold no plain appearance with a colour.",
                "Check in the appearance panel that the program's own library is there. If it has to be downloaded "
                "first, open it once, then run the library builder again.");
}

}  // namespace library_builder
