#include "host/libraries/native_library.h"

#include <memory>
#include <utility>

namespace headless::libraries {

model::Library nativeLibrary() {
  model::Library library;
  library.id = nativeLibraryId;
  library.name = "Headless Appearance Library";
  library.isNative = true;
  const auto add = [&library](model::Appearance appearance) {
    library.appearances.push_back(std::make_shared<const model::Appearance>(std::move(appearance)));
  };
  add({"headless-oak", "Wood - Oak", {0xB5, 0x8B, 0x5A}, model::Surface::Opaque, 0.6, true});
  add({"headless-brass", "Metal - Brass", {0xC9, 0xA9, 0x4F}, model::Surface::Metal, 0.2});
  add({"headless-glass", "Glass - Clear", {0xE8, 0xF2, 0xF2, 0x60}, model::Surface::Transparent, 0.0});
  add({plainAppearanceId, "Plastic - Plain", {0xC0, 0xC0, 0xC0}, model::Surface::Opaque, 0.5});
  return library;
}

}  // namespace headless::libraries
