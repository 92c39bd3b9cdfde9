// Colours survive the kernel's way of keeping them.
#include "host/step/colours.h"

#include <gtest/gtest.h>

namespace headless::step {
namespace {

TEST(Colours, ComeBackFromTheKernelExactly) {
  for (int i = 0; i < 256; ++i) {
    const auto level = static_cast<std::uint8_t>(i);
    const model::Colour colour{level, static_cast<std::uint8_t>(255 - i), 77, level};
    EXPECT_EQ(colourFrom(kernelColour(colour)), colour) << model::hexText(colour);
  }
}

TEST(Colours, ShareOneAppearance) {
  ColourAppearances appearances;
  const auto red = appearances.of({255, 0, 0, 255});
  EXPECT_EQ(appearances.of({255, 0, 0, 255}), red);
  EXPECT_NE(appearances.of({255, 0, 0, 254}), red);
  EXPECT_EQ(red->name, "Opaque(255,0,0)");
}

}  // namespace
}  // namespace headless::step
