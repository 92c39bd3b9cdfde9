#include "host/libraries/library_file.h"

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace headless::libraries {

namespace {

using Json = nlohmann::json;

constexpr const char* formatName = "headless material library";
constexpr int formatVersion = 1;

/// A value of the file together with its place, so that every complaint can say where it belongs.
class Entry {
 public:
  Entry(const Json& json, const std::string& fileName, std::string place)
      : value(json), file(fileName), where(std::move(place)) {}

  [[noreturn]] void fail(std::string problem, std::string advice) const {
    throw Error(file, where, std::move(problem), std::move(advice));
  }

  /// The member of that name; what it is like when absent is up to the caller.
  bool has(const char* key) const { return value.contains(key); }
  Entry operator[](const char* key) const { return {value.at(key), file, where.empty() ? key : where + "." + key}; }

  void requireObject(std::initializer_list<const char*> knownKeys) const {
    if (!value.is_object()) {
      fail("should be an object, is " + kind(), "write it in braces, {\"name\": ...}");
    }
    for (const auto& member : value.items()) {
      const auto isKey = [&](const char* known) { return member.key() == known; };
      if (std::none_of(knownKeys.begin(), knownKeys.end(), isKey)) {
        fail("has an unknown entry \"" + member.key() + "\"", "known are " + listed(knownKeys));
      }
    }
  }

  std::string text() const {
    if (!value.is_string()) {
      fail("should be a text, is " + kind(), "put it in quotation marks");
    }
    return value.get<std::string>();
  }

  /// The member's text, which may be neither absent nor empty.
  std::string requiredText(const char* key, const char* advice) const {
    if (!has(key)) {
      fail("has no \"" + std::string(key) + "\"", advice);
    }
    std::string found = (*this)[key].text();
    if (found.empty()) {
      (*this)[key].fail("is empty", advice);
    }
    return found;
  }

  /// The member's text, empty when absent.
  std::string optionalText(const char* key) const { return has(key) ? (*this)[key].text() : std::string(); }

  double number() const {
    if (!value.is_number()) {
      fail("should be a number, is " + kind(), "write a plain number, for instance 7850");
    }
    return value.get<double>();
  }

  bool isNumber() const { return value.is_number(); }
  bool isText() const { return value.is_string(); }
  std::string kind() const { return value.is_array() ? "a list" : value.is_null() ? "null" : "a " + typeName(); }

  /// The entries of the member, a list; none when absent.
  std::vector<Entry> list(const char* key) const {
    std::vector<Entry> entries;
    if (!has(key)) {
      return entries;
    }
    const Entry member = (*this)[key];
    if (!member.value.is_array()) {
      member.fail("should be a list, is " + member.kind(), "write it in brackets, [ ... ]");
    }
    entries.reserve(member.value.size());
    for (const auto& element : member.value) {
      entries.emplace_back(element, file, member.where + "[" + std::to_string(entries.size()) + "]");
    }
    return entries;
  }

 private:
  std::string typeName() const { return value.is_string() ? "text" : value.type_name(); }

  static std::string listed(std::initializer_list<const char*> names) {
    std::string text;
    for (const char* name : names) {
      text += (text.empty() ? "\"" : ", \"") + std::string(name) + "\"";
    }
    return text;
  }

  const Json& value;
  const std::string& file;
  std::string where;
};

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

/// "line 7, column 12" of the byte with that number, counted from one.
std::string placeOf(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, byte > 0 ? byte - 1 : 0);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t lineStart = before.rfind('\n') == std::string_view::npos ? 0 : before.rfind('\n') + 1;
  return "line " + std::to_string(line) + ", column " + std::to_string(before.size() - lineStart + 1);
}

Json parseJson(std::string_view text, const std::string& fileName) {
  const std::string advice = "a library of the headless host is a JSON text; see the comment in library_file.h";
  if (text.substr(0, 2) == "PK") {
    throw Error(fileName, "", "is a library of the CAD program, whose format is closed (a ZIP archive)",
                "the headless host reads its own plain text format only; write the names and colours needed into one");
  }
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
    throw Error(fileName, "", "is empty", advice);
  }
  try {
    return Json::parse(text.begin(), text.end());
  } catch (const Json::parse_error& error) {
    throw Error(fileName, placeOf(text, error.byte), "is not valid JSON from here on", advice);
  } catch (const Json::out_of_range&) {
    throw Error(fileName, "", "has a number that is too large", "write numbers as plain decimals");
  }
}

}  // namespace

Error::Error(std::string fileName, std::string place, std::string wrong, std::string help)
    : std::runtime_error(fileName + ": " + (place.empty() ? "" : place + ": ") + wrong + "; " + help),
      file(std::move(fileName)),
      where(std::move(place)),
      problem(std::move(wrong)),
      advice(std::move(help)) {}

model::Library readLibrary(const std::filesystem::path& file) {
  const std::string fileName = file.u8string();
  std::error_code unknown;
  if (!std::filesystem::exists(file, unknown)) {
    throw Error(fileName, "", "does not exist", "check the path");
  }
  if (!std::filesystem::is_regular_file(file, unknown)) {
    throw Error(fileName, "", "is not a file", "name a library file, not a folder");
  }
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (!stream.is_open() || stream.bad()) {
    throw Error(fileName, "", "cannot be read", "check that you may read it");
  }
  return parseLibrary(text, fileName);
}

model::Library parseLibrary(std::string_view text, const std::string& fileName) {
  const Json json = parseJson(text, fileName);
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
