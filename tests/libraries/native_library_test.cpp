// The library that comes with the headless host holds what modules rely on in the CAD program's own.
#include "host/libraries/native_library.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace headless::libraries {
namespace {

TEST(NativeLibrary, HasTheDocumentedIdAndThePlainAppearance) {
  const model::Library library = nativeLibrary();
  EXPECT_TRUE(library.isNative);
  EXPECT_EQ(library.id, "BA5EE55E-9982-449B-9D66-9F036540E140");
  const auto found = std::find_if(library.appearances.begin(), library.appearances.end(),
                                  [](const auto& each) { return each->id == "Prism-129"; });
  ASSERT_NE(found, library.appearances.end());
  EXPECT_EQ((*found)->surface, model::Surface::Opaque);
  EXPECT_FALSE((*found)->hasTexture);
}

TEST(NativeLibrary, HasOtherSurfacesToo) {
  const model::Library library = nativeLibrary();
  const auto has = [&](auto fits) { return std::any_of(library.appearances.begin(), library.appearances.end(), fits); };
  EXPECT_TRUE(has([](const auto& each) { return each->hasTexture; }));
  EXPECT_TRUE(has([](const auto& each) { return each->surface == model::Surface::Metal; }));
  EXPECT_TRUE(has([](const auto& each) { return each->surface == model::Surface::Transparent; }));
}

}  // namespace
}  // namespace headless::libraries
