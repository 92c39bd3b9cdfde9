// Pictures of assemblies: orthographic, from the front, the right and above.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "host/step/triangles.h"

namespace headless::cli {

/// Rows from the top, each pixel three bytes: red, green, blue.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> pixels;
};

/// How many places of a picture are looked at before they become pixels, unless told otherwise: 160 MB of them.
inline constexpr int usualSamplesAtATime = 1 << 22;

/// Draws the triangles so that they fill the picture, lit from the viewer's side, with a line where faces meet, on
/// white. It is drawn from the top downwards, as many rows at a time as have so many samples, at least one; the picture
/// is the same.
Picture drawn(const std::vector<step::Triangle>& triangles, int width, int height,
              int samplesAtATime = usualSamplesAtATime);

/// Writes a PNG file, whole or not at all. Raises files::Error.
void writePng(const Picture& picture, const std::filesystem::path& file);

}  // namespace headless::cli
