#include "host/step/colours.h"

#include <Quantity_Color.hxx>
#include <cmath>

namespace headless::step {

namespace {

constexpr double highest = 255.0;

std::uint8_t channel(double value) {
  return static_cast<std::uint8_t>(std::lround(value * highest));
}

}  // namespace

model::Colour colourFrom(const Quantity_ColorRGBA& colour) {
  double red = 0;
  double green = 0;
  double blue = 0;
  colour.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
  return {channel(red), channel(green), channel(blue), channel(static_cast<double>(colour.Alpha()))};
}

Quantity_ColorRGBA kernelColour(const model::Colour& colour) {
  const Quantity_Color solid(colour.red / highest, colour.green / highest, colour.blue / highest, Quantity_TOC_sRGB);
  return Quantity_ColorRGBA(solid, static_cast<float>(colour.opacity / highest));
}

std::uint32_t colourKey(const model::Colour& colour) {
  return static_cast<std::uint32_t>(colour.red) << 24u | static_cast<std::uint32_t>(colour.green) << 16u |
         static_cast<std::uint32_t>(colour.blue) << 8u | colour.opacity;
}

std::shared_ptr<const model::Appearance> ColourAppearances::of(const model::Colour& colour) {
  auto& appearance = known[colourKey(colour)];
  if (!appearance) {
    appearance = model::makeColourAppearance(colour);
  }
  return appearance;
}

}  // namespace headless::step
