#include "host/entities/appearance_properties.h"

#include <array>
#include <cstdint>

#include "host/entities/design_appearances.h"

namespace headless {

using adsk::core::Color;
using adsk::core::Property;
using adsk::core::Ptr;

namespace {

using IdAndName = std::pair<const char*, const char*>;

constexpr IdAndName roughnessNames{"surface_roughness", "Roughness"};

IdAndName colourNames(const model::Appearance& appearance) {
  switch (appearance.surface) {
    case model::Surface::Metal:
      return {"metal_f0", "Color"};
    case model::Surface::Transparent:
      return {"transparent_color", "Color"};
    case model::Surface::Opaque:
      break;
  }
  return {"opaque_albedo", "Color"};
}

bool isChannel(short value) {
  return value >= 0 && value <= 255;
}

bool setChannel(std::uint8_t& channel, short value) {
  if (!isChannel(value)) {
    return false;
  }
  channel = static_cast<std::uint8_t>(value);
  return true;
}

/// As a host reads it back that keeps colours as fractions and cuts off what is beyond.
model::Colour roundedDown(const model::Colour& colour) {
  const auto down = [](std::uint8_t channel) { return static_cast<std::uint8_t>(channel > 0 ? channel - 1 : 0); };
  return {down(colour.red), down(colour.green), down(colour.blue), colour.opacity};
}

/// Colour first, then roughness where there is one.
Ptr<Property> propertyAt(MaterialStore& store, const std::shared_ptr<const model::Appearance>& appearance,
                         std::size_t index) {
  if (index == 0) {
    return makeObject<SurfaceColourObject>(store, appearance, colourNames(*appearance));
  }
  if (index == 1 && appearance->roughness) {
    return makeObject<SurfaceRoughnessObject>(store, appearance, roughnessNames);
  }
  return nullptr;
}

/// The property whose id, or whose name, is `wanted`.
Ptr<Property> findProperty(MaterialStore& store, const std::shared_ptr<const model::Appearance>& appearance,
                           const char* IdAndName::*part, const std::string& wanted) {
  const std::array<IdAndName, 2> all{colourNames(*appearance), roughnessNames};
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (wanted == all[i].*part) {
      return propertyAt(store, appearance, i);
    }
  }
  return nullptr;
}

}  // namespace

short ColorObject::red() const {
  return call("red", [this] { return static_cast<short>(colour.red); });
}

bool ColorObject::red(short value) {
  return call(
      "red=", [&] { return setChannel(colour.red, value); }, value);
}

short ColorObject::green() const {
  return call("green", [this] { return static_cast<short>(colour.green); });
}

bool ColorObject::green(short value) {
  return call(
      "green=", [&] { return setChannel(colour.green, value); }, value);
}

short ColorObject::blue() const {
  return call("blue", [this] { return static_cast<short>(colour.blue); });
}

bool ColorObject::blue(short value) {
  return call(
      "blue=", [&] { return setChannel(colour.blue, value); }, value);
}

short ColorObject::opacity() const {
  return call("opacity", [this] { return static_cast<short>(colour.opacity); });
}

bool ColorObject::opacity(short value) {
  return call(
      "opacity=", [&] { return setChannel(colour.opacity, value); }, value);
}

AppearancePropertiesObject::AppearancePropertiesObject(Lifetime& lifetime, MaterialStore& materialStore,
                                                       std::shared_ptr<const model::Appearance> owner)
    : BoundObject(lifetime), store(materialStore), appearance(std::move(owner)) {}

Ptr<Property> AppearancePropertiesObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return findProperty(store, appearance, &IdAndName::first, id); }, id);
}

Ptr<Property> AppearancePropertiesObject::itemByName(const std::string& name) const {
  return call(
      "itemByName", [&] { return findProperty(store, appearance, &IdAndName::second, name); }, name);
}

Ptr<Property> AppearancePropertiesObject::item(int index) const {
  return call(
      "item",
      [&] { return index < 0 ? Ptr<Property>() : propertyAt(store, appearance, static_cast<std::size_t>(index)); },
      index);
}

size_t AppearancePropertiesObject::count() const {
  return call("count", [this]() -> size_t { return appearance->roughness ? 2 : 1; });
}

Ptr<Color> SurfaceColourObject::value() const {
  return call("value", [this]() -> Ptr<Color> {
    if (appearance->hasTexture) {
      return nullptr;
    }
    const bool isRounded = store.hostProfile().coloursRounded;
    return makeObject<ColorObject>(isRounded ? roundedDown(appearance->colour) : appearance->colour);
  });
}

bool SurfaceColourObject::value(const Ptr<Color>& value) {
  return call(
      "value=",
      [&] {
        const auto* colour = objectBehind<ColorObject>(value);
        DesignAppearances* owner = store.ownerOf(*appearance);
        return colour != nullptr && owner != nullptr && owner->setColour(*appearance, colour->data());
      },
      value);
}

bool SurfaceColourObject::hasConnectedTexture() const {
  return call("hasConnectedTexture", [this] { return appearance->hasTexture; });
}

double SurfaceRoughnessObject::value() const {
  return call("value", [this] { return appearance->roughness.value_or(0); });
}

bool SurfaceRoughnessObject::value(double value) {
  return call(
      "value=",
      [&] {
        DesignAppearances* owner = store.ownerOf(*appearance);
        return owner != nullptr && owner->setRoughness(*appearance, value);
      },
      value);
}

std::string SurfaceRoughnessObject::units() const {
  return call("units", [] { return std::string(); });
}

}  // namespace headless

namespace adsk {
namespace core {

Ptr<Color> Color::create(short red, short green, short blue, short opacity) {
  return headless::CallGate::pass(
      classType(), nullptr, true, "create",
      [&]() -> Ptr<Color> {
        const std::array<short, 4> channels{red, green, blue, opacity};
        std::array<std::uint8_t, 4> values{};
        for (std::size_t i = 0; i < channels.size(); ++i) {
          if (!headless::setChannel(values[i], channels[i])) {
            return nullptr;
          }
        }
        return headless::makeObject<headless::ColorObject>(
            headless::model::Colour{values[0], values[1], values[2], values[3]});
      },
      red, green, blue, opacity);
}

}  // namespace core
}  // namespace adsk
