// Colours of the kernel as the design's appearances and back.
#pragma once

#include <Quantity_ColorRGBA.hxx>
#include <memory>
#include <unordered_map>

#include "host/model/materials.h"

namespace headless::step {

/// The nearest 8-bit sRGB colour.
model::Colour colourFrom(const Quantity_ColorRGBA& colour);

Quantity_ColorRGBA kernelColour(const model::Colour& colour);

/// All four channels in one number; equal exactly for equal colours.
std::uint32_t colourKey(const model::Colour& colour);

/// One appearance per colour: asking twice gives the same object.
class ColourAppearances {
 public:
  std::shared_ptr<const model::Appearance> of(const model::Colour& colour);

 private:
  std::unordered_map<std::uint32_t, std::shared_ptr<const model::Appearance>> known;
};

}  // namespace headless::step
