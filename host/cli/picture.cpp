#include "host/cli/picture.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "host/files/atomic_file.h"
#include "host/files/error.h"

namespace headless::cli {

namespace {

using step::Point;
using step::Triangle;

// Drawn this many times as large and scaled down, which smoothes the edges.
constexpr int oversampling = 3;
constexpr double marginPart = 0.04;
constexpr double lineDarkness = 0.35;
constexpr double ambientLight = 0.55;
constexpr std::uint8_t paperWhite = 255;

double dot(const Point& a, const Point& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Point cross(const Point& a, const Point& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Point minus(const Point& a, const Point& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Point unit(const Point& a) {
  const double length = std::sqrt(dot(a, a));
  return length > 0 ? Point{a[0] / length, a[1] / length, a[2] / length} : a;
}

// Directions in the root's coordinates, where z points upwards.
const Point towardsViewer = unit({0.55, -0.75, 0.55});
const Point rightwards = unit(cross({0, 0, 1}, towardsViewer));
const Point upwards = cross(towardsViewer, rightwards);
const Point towardsLight = unit({0.25, -0.6, 0.9});

/// Where a point is in the picture; the third number grows towards the viewer.
Point inView(const Point& point) {
  return {dot(point, rightwards), -dot(point, upwards), dot(point, towardsViewer)};
}

/// How a view fills a picture.
struct Fit {
  double scale = 1;
  double left = 0;
  double top = 0;
};

Fit fitOf(const std::vector<Triangle>& triangles, int width, int height) {
  constexpr double far = std::numeric_limits<double>::max();
  std::array<double, 2> low{far, far};
  std::array<double, 2> high{-far, -far};
  for (const Triangle& triangle : triangles) {
    for (const Point& corner : triangle.corners) {
      const Point seen = inView(corner);
      for (std::size_t i = 0; i < 2; ++i) {
        low[i] = std::min(low[i], seen[i]);
        high[i] = std::max(high[i], seen[i]);
      }
    }
  }
  const double wide = std::max(high[0] - low[0], 1e-9);
  const double tall = std::max(high[1] - low[1], 1e-9);
  const double scale = (1 - 2 * marginPart) * std::min(width / wide, height / tall);
  return {scale, (width - scale * (low[0] + high[0])) / 2, (height - scale * (low[1] + high[1])) / 2};
}

/// What the nearest surface at a place of the picture is.
struct Sample {
  double depth = -std::numeric_limits<double>::max();
  std::uint32_t face = 0;
  std::array<double, 3> colour{paperWhite, paperWhite, paperWhite};
};

/// The samples of some rows of a picture.
class Canvas {
 public:
  Canvas(int canvasWidth, int canvasTop, int canvasBottom)
      : width(canvasWidth),
        top(canvasTop),
        bottom(canvasBottom),
        samples(static_cast<std::size_t>(canvasWidth) * static_cast<std::size_t>(canvasBottom - canvasTop)) {}

  const Sample& at(int x, int y) const { return samples[index(x, y)]; }

  void draw(const Triangle& triangle, const Fit& fit) {
    std::array<Point, 3> corners{};
    std::transform(triangle.corners.begin(), triangle.corners.end(), corners.begin(), [&](const Point& corner) {
      const Point seen = inView(corner);
      return Point{fit.left + fit.scale * seen[0], fit.top + fit.scale * seen[1], seen[2]};
    });
    const auto& [a, b, c] = corners;
    const auto [highest, lowest] = std::minmax({a[1], b[1], c[1]});
    const int begin = std::max(top, firstCentre(highest));
    const int end = std::min(bottom, firstCentre(lowest));
    if (begin >= end) {
      return;
    }
    const double area = (b[0] - a[0]) * (c[1] - a[1]) - (c[0] - a[0]) * (b[1] - a[1]);
    if (std::abs(area) < 1e-12) {
      return;
    }
    // Depth is a + slope * steps.
    const double slopeX = ((b[2] - a[2]) * (c[1] - a[1]) - (c[2] - a[2]) * (b[1] - a[1])) / area;
    const double slopeY = ((c[2] - a[2]) * (b[0] - a[0]) - (b[2] - a[2]) * (c[0] - a[0])) / area;
    const std::array<double, 3> colour = litColour(triangle);
    for (int y = begin; y < end; ++y) {
      const auto [left, right] = spanOf(corners, y + 0.5);
      for (int x = firstCentre(left); x < std::min(width, firstCentre(right)); ++x) {
        const double depth = a[2] + slopeX * (x + 0.5 - a[0]) + slopeY * (y + 0.5 - a[1]);
        Sample& sample = samples[index(x, y)];
        if (depth > sample.depth) {
          sample = {depth, triangle.face, colour};
        }
      }
    }
  }

  /// True where another face begins to the right or below.
  bool isOnLine(int x, int y) const {
    const std::uint32_t face = at(x, y).face;
    return (x + 1 < width && at(x + 1, y).face != face) || (y + 1 < bottom && at(x, y + 1).face != face);
  }

 private:
  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y - top) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }

  /// The first row or column whose middle is not before that place.
  static int firstCentre(double place) { return std::max(0, static_cast<int>(std::ceil(place - 0.5))); }

  /// Where a horizontal line enters and leaves a triangle.
  static std::pair<double, double> spanOf(const std::array<Point, 3>& corners, double y) {
    std::pair<double, double> span{std::numeric_limits<double>::max(), -std::numeric_limits<double>::max()};
    for (std::size_t i = 0; i < 3; ++i) {
      const Point& from = corners[i];
      const Point& to = corners[(i + 1) % 3];
      if ((from[1] <= y) != (to[1] <= y)) {
        const double x = from[0] + (to[0] - from[0]) * (y - from[1]) / (to[1] - from[1]);
        span = {std::min(span.first, x), std::max(span.second, x)};
      }
    }
    return span;
  }

  static std::array<double, 3> litColour(const Triangle& triangle) {
    const auto& [a, b, c] = triangle.corners;
    Point normal = unit(cross(minus(b, a), minus(c, a)));
    if (dot(normal, towardsViewer) < 0) {
      normal = {-normal[0], -normal[1], -normal[2]};
    }
    const double light = ambientLight + (1 - ambientLight) * std::max(0.0, dot(normal, towardsLight));
    return {light * triangle.colour.red, light * triangle.colour.green, light * triangle.colour.blue};
  }

  int width;
  int top;
  int bottom;
  std::vector<Sample> samples;
};

std::array<std::uint8_t, 3> averageAt(const Canvas& canvas, int x, int y) {
  std::array<double, 3> sum{};
  for (int i = 0; i < oversampling * oversampling; ++i) {
    const int sampleX = x * oversampling + i % oversampling;
    const int sampleY = y * oversampling + i / oversampling;
    const double darkness = canvas.isOnLine(sampleX, sampleY) ? lineDarkness : 1.0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      sum[channel] += darkness * canvas.at(sampleX, sampleY).colour[channel];
    }
  }
  std::array<std::uint8_t, 3> pixel{};
  std::transform(sum.begin(), sum.end(), pixel.begin(), [](double value) {
    return static_cast<std::uint8_t>(std::lround(value / (oversampling * oversampling)));
  });
  return pixel;
}

}  // namespace

Picture drawn(const std::vector<Triangle>& triangles, int width, int height, int samplesAtATime) {
  const Fit fit = fitOf(triangles, width * oversampling, height * oversampling);
  const int rowsAtATime = std::max(1, samplesAtATime / (oversampling * oversampling * width));
  Picture picture{width, height, {}};
  picture.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
  for (int top = 0; top < height; top += rowsAtATime) {
    const int bottom = std::min(height, top + rowsAtATime);
    // With the row below, whose faces decide where lines are in the one above.
    Canvas canvas(width * oversampling, top * oversampling, std::min(bottom * oversampling + 1, height * oversampling));
    for (const Triangle& triangle : triangles) {
      canvas.draw(triangle, fit);
    }
    for (int y = top; y < bottom; ++y) {
      for (int x = 0; x < width; ++x) {
        const auto pixel = averageAt(canvas, x, y);
        picture.pixels.insert(picture.pixels.end(), pixel.begin(), pixel.end());
      }
    }
  }
  return picture;
}

void writePng(const Picture& picture, const std::filesystem::path& file) {
  files::AtomicFile output(file);
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = PNG_FORMAT_RGB;
  if (png_image_write_to_file(&image, output.path().c_str(), 0, picture.pixels.data(), 0, nullptr) == 0) {
    throw files::Error("Cannot write \"" + file.u8string() + "\": " + image.message);
  }
  output.commit();
}

}  // namespace headless::cli
