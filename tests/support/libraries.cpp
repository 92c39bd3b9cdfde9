#include "tests/support/libraries.h"

#include <nlohmann/json.hpp>

#include "host/model/materials.h"

namespace tests {

using Json = nlohmann::json;

namespace {

// Any colour will do, as long as no two names near each other share one.
std::string colourNumber(std::size_t number) {
  const auto part = [&](std::size_t factor) { return static_cast<std::uint8_t>((number * factor + 20) % 256); };
  return headless::model::hexText({part(37), part(91), part(149), 255});
}

Json emptyLibrary(const std::string& name) {
  return {{"format", "headless material library"}, {"version", 1}, {"name", name}};
}

Json densityProperty(const Json& value) {
  return {{"id", headless::model::densityPropertyId},
          {"name", "Density"},
          {"value", value},
          {"unit", headless::model::densityUnit}};
}

}  // namespace

std::string appearanceLibrary(const std::string& name, const std::vector<std::string>& appearances) {
  Json library = emptyLibrary(name);
  library["appearances"] = Json::array();
  for (const std::string& appearance : appearances) {
    library["appearances"].push_back({{"name", appearance}, {"colour", colourNumber(library["appearances"].size())}});
  }
  return library.dump(2);
}

std::string materialLibrary(const std::string& name, const std::vector<TestMaterial>& materials) {
  Json library = emptyLibrary(name);
  library["appearances"] = Json::array();
  library["materials"] = Json::array();
  for (const TestMaterial& material : materials) {
    const std::string look = material.name + " look";
    library["appearances"].push_back({{"name", look}, {"colour", colourNumber(library["appearances"].size() + 100)}});
    Json entry = {{"name", material.name}, {"appearance", look}};
    // Written as a plain property, since a density that makes no sense is refused as "density".
    if (!material.densityText.empty()) {
      entry["properties"] = Json::array({densityProperty(material.densityText)});
    } else if (material.hasDensity) {
      entry["properties"] = Json::array({densityProperty(material.density)});
    }
    library["materials"].push_back(entry);
  }
  return library.dump(2);
}

}  // namespace tests
