// Appearances, physical materials and the libraries that hold them: plain data, shared by everything that shows them
// and never changed once made, except for a design's own appearances, which its history changes. No file, user
// interface or API is known here.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace headless::model {

/// An sRGB colour; opacity 255 is opaque.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t opacity = 255;

  friend bool operator==(const Colour& a, const Colour& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue && a.opacity == b.opacity;
  }
  friend bool operator!=(const Colour& a, const Colour& b) { return !(a == b); }
};

/// "#RRGGBB", or "#RRGGBBAA" when not opaque.
std::string hexText(const Colour& colour);

/// The colour of such a text (case of the digits is free). Raises std::invalid_argument that names the text.
Colour colourFromHex(std::string_view text);

/// The kinds of surfaces, each of which keeps its colour under a property of its own.
enum class Surface { Opaque, Metal, Transparent };

/// A look: a name and the colour that stands for it. Names need not be unique; ids are.
struct Appearance {
  std::string id;
  std::string name;
  Colour colour;
  Surface surface = Surface::Opaque;
  /// 0 for a mirror, 1 for matt; nothing when the surface is described in another way.
  std::optional<double> roughness = 0.5;
  /// A picture is shown in place of the colour.
  bool hasTexture = false;
};

/// One entry of a material's property collection: a number with its unit, or a text.
struct MaterialProperty {
  std::string id;
  std::string name;
  std::variant<double, std::string> value;
  std::string unit;
};

/// The property id under which a material's density is found.
inline constexpr const char* densityPropertyId = "structural_Density";

/// The unit in which densities are kept.
inline constexpr const char* densityUnit = "kg/m^3";

/// A physical material. Its appearance is what an object of it shows when nothing is applied; it is never empty.
struct Material {
  std::string id;
  std::string name;
  std::vector<MaterialProperty> properties;
  std::shared_ptr<const Appearance> appearance;
};

/// The density in kg/m3, or nullptr when the material has none that is a number in that unit. Valid while the material
/// lives.
const double* densityOf(const Material& material);

/// A name as an id: ASCII letters in lower case and digits stay, as do bytes beyond ASCII; any run of others becomes
/// one
/// "-". Two names may give one id; who needs unique ids sees to that.
std::string idFromName(std::string_view name);

/// The property that holds a density in kg/m3.
MaterialProperty densityProperty(double density);

/// A material with that density in kg/m3 as its only property. The id is made from the name. Raises
/// std::invalid_argument when the appearance is empty.
std::shared_ptr<const Material> makeMaterial(std::string name, double density,
                                             std::shared_ptr<const Appearance> appearance);

/// A look that is known by its colour only, named like "Opaque(255,0,0)" or "Translucent(255,0,0,128)".
std::shared_ptr<const Appearance> makeColourAppearance(const Colour& colour);

/// Finds a material by name, empty when there is none. An empty function finds nothing.
using MaterialLookup = std::function<std::shared_ptr<const Material>(const std::string& name)>;

/// What a body is made of when nobody said anything else: "Steel", 7850 kg/m3, satin grey. One object per process.
const std::shared_ptr<const Material>& defaultMaterial();

/// A material library as loaded from a file or delivered with the host.
struct Library {
  std::string id;
  std::string name;
  bool isNative = false;
  std::vector<std::shared_ptr<const Appearance>> appearances;
  std::vector<std::shared_ptr<const Material>> materials;
};

}  // namespace headless::model
