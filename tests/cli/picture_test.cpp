#include "host/cli/picture.h"

#include "tests/cli/native_fixture.h"

namespace tests {
namespace {

using headless::cli::drawn;
using headless::cli::Picture;
using headless::step::Triangle;
using ::testing::StartsWith;

/// A square that faces upwards, at that height.
std::vector<Triangle> square(double height, const headless::model::Colour& colour, std::uint32_t face) {
  return {{{{{0, 0, height}, {1, 0, height}, {1, 1, height}}}, colour, face},
          {{{{0, 0, height}, {1, 1, height}, {0, 1, height}}}, colour, face}};
}

std::array<int, 3> pixelAt(const Picture& picture, int x, int y) {
  const std::size_t start = 3 * static_cast<std::size_t>(y * picture.width + x);
  return {picture.pixels[start], picture.pixels[start + 1], picture.pixels[start + 2]};
}

TEST(Picture, ShowsTheColourInTheMiddleAndWhiteInTheCorners) {
  const Picture picture = drawn(square(0, {200, 0, 0}, 1), 40, 30);
  ASSERT_EQ(picture.pixels.size(), 40U * 30U * 3U);
  EXPECT_EQ(pixelAt(picture, 0, 0), (std::array<int, 3>{255, 255, 255}));
  const auto middle = pixelAt(picture, 20, 15);
  EXPECT_GT(middle[0], 100);
  EXPECT_EQ(middle[1], 0);
}

TEST(Picture, ShowsWhatIsNearestWhateverTheOrder) {
  std::vector<Triangle> below = square(0, {200, 0, 0}, 1);
  std::vector<Triangle> above = square(0.01, {0, 0, 200}, 2);
  std::vector<Triangle> belowFirst = below;
  belowFirst.insert(belowFirst.end(), above.begin(), above.end());
  std::vector<Triangle> aboveFirst = above;
  aboveFirst.insert(aboveFirst.end(), below.begin(), below.end());
  EXPECT_EQ(drawn(belowFirst, 40, 30).pixels, drawn(aboveFirst, 40, 30).pixels);
  EXPECT_GT(pixelAt(drawn(belowFirst, 40, 30), 20, 15)[2], 100);
}

TEST(Picture, HasALineWhereTwoFacesMeet) {
  std::vector<Triangle> triangles = square(0, {200, 200, 200}, 1);
  const Picture one = drawn(triangles, 60, 60);
  triangles[1].face = 2;
  const Picture two = drawn(triangles, 60, 60);
  EXPECT_NE(one.pixels, two.pixels);
}

// Faces meet at every slope, so that some line would be missing or doubled wherever rows are drawn apart.
TEST(Picture, IsTheSameHoweverManyRowsAreDrawnAtATime) {
  std::vector<Triangle> triangles = square(0, {200, 200, 200}, 1);
  triangles[1].face = 2;
  const std::vector<Triangle> above = square(0.4, {0, 0, 200}, 3);
  triangles.insert(triangles.end(), above.begin(), above.end());
  const Picture whole = drawn(triangles, 61, 53);
  for (const int samples : {1, 61 * 9, 61 * 9 * 7, 61 * 9 * 52}) {
    EXPECT_EQ(drawn(triangles, 61, 53, samples).pixels, whole.pixels) << samples;
  }
}

TEST(Picture, OfNothingIsWhite) {
  const Picture picture = drawn({}, 8, 8);
  EXPECT_EQ(picture.pixels, std::vector<std::uint8_t>(8 * 8 * 3, 255));
}

TEST_F(NativeCliTest, RenderWritesAPngOfTheWantedSize) {
  succeed({"render", rig(), "--png", at("rig.png"), "--width", "320", "--height", "200"});
  const std::string png = content("rig.png");
  EXPECT_THAT(png, StartsWith("\x89PNG\r\n\x1a\n"));
  // Width and height, four bytes each, stand at a fixed place.
  EXPECT_EQ(png.substr(16, 8), std::string("\x00\x00\x01\x40\x00\x00\x00\xC8", 8));
}

}  // namespace
}  // namespace tests
