#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

#include "host/design_file/design_file.h"
#include "host/design_file/format.h"
#include "host/files/json_entry.h"

namespace headless::design_file {

namespace {

using Entry = files::JsonEntry;

constexpr const char* nameAdvice = "give it a \"name\"";

bool isSame(const model::Appearance& a, const model::Appearance& b) {
  return a.id == b.id && a.name == b.name && a.colour == b.colour && a.surface == b.surface &&
         a.roughness == b.roughness && a.hasTexture == b.hasTexture;
}

bool isSame(const model::MaterialProperty& a, const model::MaterialProperty& b) {
  return a.id == b.id && a.name == b.name && a.value == b.value && a.unit == b.unit;
}

bool isSame(const model::Material& a, const model::Material& b) {
  return a.id == b.id && a.name == b.name && isSame(*a.appearance, *b.appearance) &&
         std::equal(a.properties.begin(), a.properties.end(), b.properties.begin(), b.properties.end(),
                    [](const auto& left, const auto& right) { return isSame(left, right); });
}

/// The thing of a list that an entry means by its number.
template <class Things>
auto& thingAt(const Entry& entry, Things& things, const char* listName) {
  if (things.empty()) {
    entry.fail("means one of \"" + std::string(listName) + "\", which is empty", "add it to that list");
  }
  return things[entry.wholeNumber(0, things.size() - 1)];
}

model::Surface readSurface(const Entry& entry) {
  const std::string word = entry.text();
  const auto* known = std::find(surfaceWords.begin(), surfaceWords.end(), word);
  if (known == surfaceWords.end()) {
    entry.fail("\"" + word + "\" is not a kind of surface", "write \"opaque\", \"metal\" or \"transparent\"");
  }
  return static_cast<model::Surface>(known - surfaceWords.begin());
}

std::optional<double> readRoughness(const Entry& entry) {
  if (entry.isNull()) {
    return std::nullopt;
  }
  const double roughness = entry.number();
  if (!(roughness >= 0 && roughness <= 1)) {
    entry.fail("is no roughness", "write a number from 0, a mirror, to 1, matt, or null");
  }
  return roughness;
}

std::shared_ptr<model::Appearance> readAppearance(const Entry& entry) {
  entry.requireObject({"name", "id", "colour", "surface", "roughness", "texture"});
  model::Appearance appearance;
  appearance.name = entry.required("name", nameAdvice).text();
  appearance.id = entry.has("id") ? entry["id"].text() : model::idFromName(appearance.name);
  const std::string colour = entry.requiredText("colour", "give it a \"colour\" such as \"#A72920\"");
  try {
    appearance.colour = model::colourFromHex(colour);
  } catch (const std::invalid_argument&) {
    entry["colour"].fail("\"" + colour + "\" is not a colour", "write #RRGGBB or #RRGGBBAA");
  }
  if (entry.has("surface")) {
    appearance.surface = readSurface(entry["surface"]);
  }
  if (entry.has("roughness")) {
    appearance.roughness = readRoughness(entry["roughness"]);
  }
  appearance.hasTexture = entry.has("texture") && entry["texture"].truth();
  return std::make_shared<model::Appearance>(std::move(appearance));
}

model::MaterialProperty readProperty(const Entry& entry) {
  entry.requireObject({"id", "name", "value", "unit"});
  model::MaterialProperty property;
  property.id = entry.required("id", "give it the \"id\" under which it is looked up").text();
  property.name = entry.has("name") ? entry["name"].text() : property.id;
  property.unit = entry.optionalText("unit");
  const Entry value = entry.required("value", "give it a \"value\", a number or a text");
  if (value.isNumber()) {
    property.value = value.number();
  } else {
    property.value = value.text();
  }
  return property;
}

/// Builds the design from the top of a file.
class Reader {
 public:
  Reader(const Entry& topEntry, const model::MaterialLookup& materialLookup) : top(topEntry), lookup(materialLookup) {}

  std::unique_ptr<model::Design> read() {
    readAppearances();
    readMaterials();
    const std::vector<Entry> entries = top.list("components");
    if (entries.empty()) {
      top.fail("has no components", "list them under \"components\", the root first");
    }
    addComponents(entries);
    design->appearances = std::move(copied);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      readContents(entries[i], *design->components[i]);
    }
    for (const Entry& entry : top.list("looks")) {
      readLook(entry);
    }
    return std::move(design);
  }

 private:
  void readAppearances() {
    std::vector<std::shared_ptr<model::Appearance>> all;
    for (const Entry& entry : top.list("appearances")) {
      all.push_back(readAppearance(entry));
    }
    for (const Entry& entry : top.list("designAppearances")) {
      const auto& appearance = thingAt(entry, all, "appearances");
      if (isCopied(*appearance)) {
        entry.fail("\"" + appearance->name + "\" is listed twice", "keep one of the two");
      }
      copied.push_back(appearance);
    }
    appearances.assign(all.begin(), all.end());
  }

  /// Whether it is one that was copied into the design, and so is the design's alone.
  bool isCopied(const model::Appearance& appearance) const {
    return std::any_of(copied.begin(), copied.end(), [&](const auto& own) { return own.get() == &appearance; });
  }

  void readMaterials() {
    for (const Entry& entry : top.list("materials")) {
      materials.push_back(readMaterial(entry));
    }
  }

  std::shared_ptr<const model::Appearance>& appearanceOf(const Entry& entry) {
    return thingAt(entry, appearances, "appearances");
  }

  static bool isDefault(const Entry& entry) {
    if (!entry.isText()) {
      return false;
    }
    if (entry.text() != defaultWord) {
      entry.fail("\"" + entry.text() + "\" is not known", "write a number of the list or \"default\"");
    }
    return true;
  }

  std::shared_ptr<const model::Appearance> appearanceIn(const Entry& entry) {
    return isDefault(entry) ? model::defaultMaterial()->appearance : appearanceOf(entry);
  }

  std::shared_ptr<const model::Material> materialIn(const Entry& entry) {
    return isDefault(entry) ? model::defaultMaterial() : thingAt(entry, materials, "materials");
  }

  std::shared_ptr<const model::Material> readMaterial(const Entry& entry) {
    entry.requireObject({"name", "id", "appearance", "properties"});
    model::Material material;
    material.name = entry.required("name", nameAdvice).text();
    material.id = entry.has("id") ? entry["id"].text() : model::idFromName(material.name);
    for (const Entry& property : entry.list("properties")) {
      material.properties.push_back(readProperty(property));
    }
    material.appearance =
        entry.has("appearance") ? appearanceIn(entry["appearance"]) : model::defaultMaterial()->appearance;
    auto known = lookup ? lookup(material.name) : nullptr;
    if (known == nullptr || !isSame(*known, material) || isCopied(*material.appearance)) {
      return std::make_shared<const model::Material>(std::move(material));
    }
    // Its appearance becomes that of the library as well, wherever else the file uses it.
    std::replace(appearances.begin(), appearances.end(), material.appearance, known->appearance);
    return known;
  }

  void addComponents(const std::vector<Entry>& entries) {
    for (const Entry& entry : entries) {
      entry.requireObject({"name", "material", "bodies", "instances"});
      const Entry nameEntry = entry.required("name", nameAdvice);
      const std::string name = nameEntry.text();
      if (!design) {
        design = std::make_unique<model::Design>(name);
      } else if (design->addComponent(name).name != name) {
        nameEntry.fail("\"" + name + "\" is used twice", "give each component a name of its own");
      }
    }
    design->name = top.has("name") ? top["name"].text() : design->root().name;
    counters.resize(entries.size());
  }

  void readContents(const Entry& entry, model::Component& component) {
    if (entry.has("material")) {
      component.material = materialIn(entry["material"]);
    }
    for (const Entry& body : entry.list("bodies")) {
      readBody(body, component);
    }
    for (const Entry& instance : entry.list("instances")) {
      readInstance(instance, component);
    }
  }

  void readBody(const Entry& entry, model::Component& component) {
    entry.requireObject({"name", "material", "appearance", "faces"});
    model::Body& body = component.addBody(entry.required("name", nameAdvice).text());
    if (entry.has("material")) {
      body.material = materialIn(entry["material"]);
    }
    if (entry.has("appearance")) {
      body.appearance = appearanceIn(entry["appearance"]);
    }
    for (const Entry& face : entry.list("faces")) {
      model::Face& added = body.addFace();
      if (!face.isNull()) {
        added.appearance = appearanceIn(face);
      }
    }
  }

  void readInstance(const Entry& entry, model::Component& parent) {
    entry.requireObject({"component", "counter", "placement"});
    const Entry childEntry = entry.required("component", "say which component it is, by its number");
    model::Component& child = *thingAt(childEntry, design->components, "components");
    const int previous = child.uses;
    model::Instance* instance = nullptr;
    try {
      instance = &parent.addInstance(
          child, entry.has("placement") ? readPlacement(entry["placement"]) : model::identityPlacement);
    } catch (const std::invalid_argument& error) {
      childEntry.fail(error.what(), "leave the instance out");
    }
    if (entry.has("counter")) {
      instance->counter = static_cast<int>(entry["counter"].wholeNumber(1, std::numeric_limits<int>::max() - 1));
    }
    // The last counter given is the highest one, in whatever order they stand in the file.
    child.uses = std::max(previous, instance->counter);
    if (!counters[childEntry.wholeNumber(0, counters.size() - 1)].insert(instance->counter).second) {
      entry.fail("is a second \"" + instance->name() + "\"", "give each instance of a component a counter of its own");
    }
  }

  static model::Placement readPlacement(const Entry& entry) {
    const std::vector<Entry> numbers = entry.elements();
    model::Placement placement{};
    if (numbers.size() != placement.size()) {
      entry.fail("has " + std::to_string(numbers.size()) + " numbers",
                 "write 12, three rows of a rotation and a shift");
    }
    std::transform(numbers.begin(), numbers.end(), placement.begin(), [](const Entry& each) { return each.number(); });
    return placement;
  }

  void readLook(const Entry& entry) {
    entry.requireObject({"tree", "path", "appearance"});
    const model::Component& tree =
        entry.has("tree") ? *thingAt(entry["tree"], design->components, "components") : design->root();
    model::Occurrence& occurrence = occurrenceAt(tree, entry);
    if (occurrence.appearance) {
      entry.fail("is a second look of \"" + occurrence.fullPathName() + "\"", "keep one of the two");
    }
    occurrence.appearance = appearanceIn(entry.required("appearance", "say which appearance it is, by its number"));
  }

  static model::Occurrence& occurrenceAt(const model::Component& tree, const Entry& entry) {
    const Entry path = entry.required("path", "say which occurrence it is, such as [0, 2]");
    model::Occurrence* occurrence = nullptr;
    for (const Entry& step : path.elements()) {
      occurrence = thingAt(step, occurrence == nullptr ? topLevel(tree, entry) : occurrence->children, "instances");
    }
    if (occurrence == nullptr) {
      path.fail("is empty", "say which occurrence it is, such as [0, 2]");
    }
    return *occurrence;
  }

  static const std::vector<model::Occurrence*>& topLevel(const model::Component& tree, const Entry& entry) {
    try {
      return tree.occurrences();
    } catch (const std::length_error& error) {
      entry.fail(error.what(), "leave out the looks");
    }
  }

  const Entry& top;
  const model::MaterialLookup& lookup;
  std::unique_ptr<model::Design> design;
  std::vector<std::shared_ptr<const model::Appearance>> appearances;
  std::vector<std::shared_ptr<model::Appearance>> copied;
  std::vector<std::shared_ptr<const model::Material>> materials;
  /// Of each component, the counters that are taken.
  std::vector<std::set<int>> counters;
};

void requireFormat(const Entry& top) {
  const std::string advice = "a design file begins with {\"format\": \"" + std::string(formatName) +
                             "\", \"version\": " + std::to_string(formatVersion) + ", \"name\": ...";
  if (!top.isObject()) {
    top.fail("is " + top.kind() + ", not a design", advice);
  }
  if (top.requiredText("format", advice.c_str()) != formatName) {
    top["format"].fail("is not \"" + std::string(formatName) + "\"", advice);
  }
  if (top.required("version", advice.c_str()).number() != formatVersion) {
    top["version"].fail("is not known here", "this host reads version " + std::to_string(formatVersion));
  }
  top.requireObject(
      {"format", "version", "name", "appearances", "designAppearances", "materials", "components", "looks"});
}

}  // namespace

bool hasEnding(const std::filesystem::path& file) {
  std::string name = file.filename().u8string();
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return name.size() > ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

std::unique_ptr<model::Design> read(const std::filesystem::path& file, const model::MaterialLookup& lookup,
                                    const files::Progress& progress) {
  files::Phase phase(progress, "reading");
  auto design = parse(files::readText(file, "name a design file, not a folder"), file.u8string(), lookup);
  phase.finish();
  return design;
}

std::unique_ptr<model::Design> parse(std::string_view text, const std::string& fileName,
                                     const model::MaterialLookup& lookup) {
  const files::Json json =
      files::parseJson(text, fileName, "a design file is a JSON text; tintora-host convert makes one from an assembly");
  const Entry top(json, fileName, "");
  requireFormat(top);
  return Reader(top, lookup).read();
}

}  // namespace headless::design_file
