#include "host/libraries/library_file.h"

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "host/files/json_entry.h"

namespace headless::libraries {

namespace {

using Entry = files::JsonEntry;
using files::Json;

constexpr const char* formatName = "headless material library";
constexpr int formatVersion = 1;

constexpr const char* nameAdvice = "give it a \"name\", as users are to see it";

/// Ids of one list: those that are given must differ, those made from names are told apart by a number.
class Ids {
 public:
  explicit Ids(const std::vector<Entry>& entries) {
    for (const auto& entry : entries) {
      if (entry.has("id") && !taken.insert(entry["id"].text()).second) {
        entry["id"].fail("\"" + entry["id"].text() + "\" is used twice", "give each entry an id of its own");
      }
    }
  }

  std::string idFor(const Entry& entry, const std::string& name) {
    if (entry.has("id")) {
      return entry.requiredText("id", "leave it out, or say what it is");
    }
    const std::string wanted = model::idFromName(name);
    int& number = lastNumber[wanted];
    std::string id = number == 0 ? wanted : wanted + "-" + std::to_string(number);
    while (!taken.insert(id).second) {
      number = number == 0 ? 2 : number + 1;
      id = wanted + "-" + std::to_string(number);
    }
    return id;
  }

 private:
  std::unordered_set<std::string> taken;
  std::unordered_map<std::string, int> lastNumber;
};

std::vector<std::shared_ptr<const model::Appearance>> readAppearances(const std::vector<Entry>& entries) {
  for (const auto& entry : entries) {
    entry.requireObject({"name", "colour", "id"});
  }
  Ids ids(entries);
  std::vector<std::shared_ptr<const model::Appearance>> appearances;
  appearances.reserve(entries.size());
  for (const auto& entry : entries) {
    model::Appearance appearance;
    appearance.name = entry.requiredText("name", nameAdvice);
    appearance.id = ids.idFor(entry, appearance.name);
    const std::string colour = entry.requiredText("colour", "give it a \"colour\" such as \"#A02128\"");
    try {
      appearance.colour = model::colourFromHex(colour);
    } catch (const std::invalid_argument&) {
      entry["colour"].fail("\"" + colour + "\" is not a colour", "write #RRGGBB or #RRGGBBAA");
    }
    appearances.push_back(std::make_shared<const model::Appearance>(std::move(appearance)));
  }
  return appearances;
}

model::MaterialProperty readProperty(const Entry& entry) {
  entry.requireObject({"id", "name", "value", "unit"});
  model::MaterialProperty property;
  property.id = entry.requiredText("id", "give it the \"id\" under which it is looked up");
  property.name = entry.has("name") ? entry["name"].text() : property.id;
  property.unit = entry.optionalText("unit");
  if (!entry.has("value")) {
    entry.fail("has no \"value\"", "give it a \"value\", a number or a text");
  }
  const Entry value = entry["value"];
  if (!value.isNumber() && !value.isText()) {
    value.fail("should be a number or a text, is " + value.kind(), "write one of the two");
  }
  if (value.isNumber()) {
    property.value = value.number();
  } else {
    property.value = value.text();
  }
  return property;
}

std::vector<model::MaterialProperty> readProperties(const Entry& material) {
  std::vector<model::MaterialProperty> properties;
  std::unordered_set<std::string> ids;
  if (material.has("density")) {
    const double density = material["density"].number();
    if (!(density > 0.0)) {
      material["density"].fail("is not more than zero", "write it in kg/m3, or leave it out");
    }
    properties.push_back(model::densityProperty(density));
    ids.insert(model::densityPropertyId);
  }
  for (const auto& entry : material.list("properties")) {
    properties.push_back(readProperty(entry));
    const std::string& id = properties.back().id;
    if (!ids.insert(id).second) {
      entry.fail("gives \"" + id + "\" a second time", "keep one of the two (\"density\" is \"structural_Density\")");
    }
  }
  return properties;
}

std::vector<std::shared_ptr<const model::Material>> readMaterials(
    const std::vector<Entry>& entries, const std::vector<std::shared_ptr<const model::Appearance>>& appearances) {
  for (const auto& entry : entries) {
    entry.requireObject({"name", "density", "appearance", "properties", "id"});
  }
  std::unordered_map<std::string, std::shared_ptr<const model::Appearance>> appearanceByName;
  for (const auto& appearance : appearances) {
    appearanceByName.try_emplace(appearance->name, appearance);
  }
  Ids ids(entries);
  std::vector<std::shared_ptr<const model::Material>> materials;
  materials.reserve(entries.size());
  for (const auto& entry : entries) {
    model::Material material;
    material.name = entry.requiredText("name", nameAdvice);
    material.id = ids.idFor(entry, material.name);
    material.properties = readProperties(entry);
    material.appearance = model::defaultMaterial()->appearance;
    if (entry.has("appearance")) {
      const std::string wanted = entry["appearance"].text();
      const auto found = appearanceByName.find(wanted);
      if (found == appearanceByName.end()) {
        entry["appearance"].fail("there is no appearance named \"" + wanted + "\" in this file",
                                 "add it to \"appearances\", or name one that is there");
      }
      material.appearance = found->second;
    }
    materials.push_back(std::make_shared<const model::Material>(std::move(material)));
  }
  return materials;
}

void requireFormat(const Entry& top) {
  const std::string advice = "a library of the headless host begins with {\"format\": \"" + std::string(formatName) +
                             "\", \"version\": " + std::to_string(formatVersion) + ", \"name\": ...";
  if (top.requiredText("format", advice.c_str()) != formatName) {
    top["format"].fail("is not \"" + std::string(formatName) + "\"", advice);
  }
  if (!top.has("version")) {
    top.fail("has no \"version\"", advice);
  }
  if (top["version"].number() != formatVersion) {
    top["version"].fail("is not known here", "this host reads version " + std::to_string(formatVersion));
  }
}

Json parseLibraryText(std::string_view text, const std::string& fileName) {
  if (text.substr(0, 2) == "PK") {
    throw Error(fileName, "", "is a library of the CAD program, whose format is closed (a ZIP archive)",
                "the headless host reads its own plain text format only; write the names and colours needed into one");
  }
  return files::parseJson(text, fileName,
                          "a library of the headless host is a JSON text; see the comment in library_file.h");
}

}  // namespace

model::Library readLibrary(const std::filesystem::path& file) {
  return parseLibrary(files::readText(file, "name a library file, not a folder"), file.u8string());
}

model::Library parseLibrary(std::string_view text, const std::string& fileName) {
  const Json json = parseLibraryText(text, fileName);
  const Entry top(json, fileName, "");
  if (!json.is_object()) {
    top.fail("is " + top.kind() + ", not a library", "write {\"format\": \"" + std::string(formatName) + "\", ...}");
  }
  requireFormat(top);
  top.requireObject({"format", "version", "name", "id", "comment", "appearances", "materials"});
  model::Library library;
  library.name = top.requiredText("name", "give the library a \"name\", as users are to see it");
  library.id =
      top.has("id") ? top.requiredText("id", "leave it out, or say what it is") : model::idFromName(library.name);
  library.appearances = readAppearances(top.list("appearances"));
  library.materials = readMaterials(top.list("materials"), library.appearances);
  return library;
}

}  // namespace headless::libraries
