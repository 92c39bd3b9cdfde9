#include "host/model/materials.h"

#include <array>
#include <charconv>
#include <stdexcept>
#include <utility>

namespace headless::model {

namespace {

constexpr std::uint8_t opaque = 255;

void appendHex(std::string& text, std::uint8_t value) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  text += digits[value / 16u];
  text += digits[value % 16u];
}

/// The two hexadecimal digits at `position`; false when they are none.
bool readHex(std::string_view text, std::size_t position, std::uint8_t& value) {
  const char* begin = text.data() + position;
  const auto [end, error] = std::from_chars(begin, begin + 2, value, 16);
  return error == std::errc() && end == begin + 2;
}

bool isAsciiDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isAsciiLower(char c) {
  return c >= 'a' && c <= 'z';
}
bool isAsciiUpper(char c) {
  return c >= 'A' && c <= 'Z';
}
bool isBeyondAscii(char c) {
  return static_cast<unsigned char>(c) >= 0x80;
}

std::shared_ptr<const Appearance> makeAppearance(std::string name, const Colour& colour) {
  Appearance appearance;
  appearance.id = idFromName(name);
  appearance.name = std::move(name);
  appearance.colour = colour;
  return std::make_shared<const Appearance>(std::move(appearance));
}

}  // namespace

std::string hexText(const Colour& colour) {
  std::string text = "#";
  appendHex(text, colour.red);
  appendHex(text, colour.green);
  appendHex(text, colour.blue);
  if (colour.opacity != opaque) {
    appendHex(text, colour.opacity);
  }
  return text;
}

Colour colourFromHex(std::string_view text) {
  constexpr std::size_t lengthOpaque = 7;
  constexpr std::size_t lengthTranslucent = 9;
  std::array<std::uint8_t, 4> channels{0, 0, 0, opaque};
  const bool translucent = text.size() == lengthTranslucent;
  bool good = (translucent || text.size() == lengthOpaque) && text.front() == '#';
  for (std::size_t i = 0; good && i < (translucent ? 4u : 3u); ++i) {
    good = readHex(text, 1 + 2 * i, channels[i]);
  }
  if (!good) {
    throw std::invalid_argument("'" + std::string(text) + "' is not a colour; write #RRGGBB or #RRGGBBAA");
  }
  return {channels[0], channels[1], channels[2], channels[3]};
}

const double* densityOf(const Material& material) {
  for (const auto& property : material.properties) {
    if (property.id == densityPropertyId) {
      return property.unit == densityUnit ? std::get_if<double>(&property.value) : nullptr;
    }
  }
  return nullptr;
}

std::string idFromName(std::string_view name) {
  std::string id;
  for (const char c : name) {
    if (isAsciiUpper(c)) {
      id += static_cast<char>(c - 'A' + 'a');
    } else if (isAsciiLower(c) || isAsciiDigit(c) || isBeyondAscii(c)) {
      id += c;
    } else if (!id.empty() && id.back() != '-') {
      id += '-';
    }
  }
  if (!id.empty() && id.back() == '-') {
    id.pop_back();
  }
  return id;
}

MaterialProperty densityProperty(double density) {
  return {densityPropertyId, "Density", density, densityUnit};
}

std::shared_ptr<const Material> makeMaterial(std::string name, double density,
                                             std::shared_ptr<const Appearance> appearance) {
  if (!appearance) {
    throw std::invalid_argument("material '" + name + "' needs an appearance");
  }
  Material material;
  material.id = idFromName(name);
  material.name = std::move(name);
  material.properties.push_back(densityProperty(density));
  material.appearance = std::move(appearance);
  return std::make_shared<const Material>(std::move(material));
}

std::shared_ptr<const Appearance> makeColourAppearance(const Colour& colour) {
  std::string channels =
      std::to_string(colour.red) + "," + std::to_string(colour.green) + "," + std::to_string(colour.blue);
  if (colour.opacity == opaque) {
    return makeAppearance("Opaque(" + channels + ")", colour);
  }
  return makeAppearance("Translucent(" + channels + "," + std::to_string(colour.opacity) + ")", colour);
}

const std::shared_ptr<const Material>& defaultMaterial() {
  static const auto steel = makeMaterial("Steel", 7850.0, makeAppearance("Steel - Satin", {0x9A, 0x9D, 0xA0}));
  return steel;
}

}  // namespace headless::model
