#include "host/files/json_entry.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace headless::files {

namespace {

std::string listed(std::initializer_list<const char*> names) {
  std::string text;
  for (const char* name : names) {
    text += (text.empty() ? "\"" : ", \"") + std::string(name) + "\"";
  }
  return text;
}

/// "line 7, column 12" of the byte with that number, counted from one.
std::string placeOf(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, byte > 0 ? byte - 1 : 0);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t lineStart = before.rfind('\n') == std::string_view::npos ? 0 : before.rfind('\n') + 1;
  return "line " + std::to_string(line) + ", column " + std::to_string(before.size() - lineStart + 1);
}

}  // namespace

std::string readText(const std::filesystem::path& file, const std::string& folderAdvice) {
  const std::string fileName = file.u8string();
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    if (error) {
      throw FormatError(fileName, "", "cannot be looked for (" + error.message() + ")",
                        "check the path and that you may enter its folder");
    }
    throw FormatError(fileName, "", "does not exist", "check the path");
  }
  if (!std::filesystem::is_regular_file(file, error)) {
    throw FormatError(fileName, "", "is not a file", folderAdvice);
  }
  std::ifstream stream(file, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (!stream.is_open() || stream.bad()) {
    throw FormatError(fileName, "", "cannot be read", "check that you may read it");
  }
  return text;
}

Json parseJson(std::string_view text, const std::string& fileName, const std::string& advice) {
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
    throw FormatError(fileName, "", "is empty", advice);
  }
  try {
    return Json::parse(text.begin(), text.end());
  } catch (const Json::parse_error& error) {
    throw FormatError(fileName, placeOf(text, error.byte), "is not valid JSON from here on", advice);
  } catch (const Json::out_of_range&) {
    throw FormatError(fileName, "", "has a number that is too large", "write numbers as plain decimals");
  }
}

JsonEntry::JsonEntry(const Json& json, const std::string& fileName, std::string place)
    : value(json), file(fileName), where(std::move(place)) {}

void JsonEntry::fail(std::string problem, std::string advice) const {
  throw FormatError(file, where, std::move(problem), std::move(advice));
}

std::string JsonEntry::kind() const {
  if (value.is_array() || value.is_null()) {
    return value.is_array() ? "a list" : "null";
  }
  return std::string("a ") + (value.is_string() ? "text" : value.type_name());
}

JsonEntry JsonEntry::operator[](const char* key) const {
  return {value.at(key), file, where.empty() ? key : where + "." + key};
}

JsonEntry JsonEntry::required(const char* key, const char* advice) const {
  if (!has(key)) {
    fail("has no \"" + std::string(key) + "\"", advice);
  }
  return (*this)[key];
}

void JsonEntry::requireObject(std::initializer_list<const char*> knownKeys) const {
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

std::string JsonEntry::text() const {
  if (!value.is_string()) {
    fail("should be a text, is " + kind(), "put it in quotation marks");
  }
  return value.get<std::string>();
}

std::string JsonEntry::requiredText(const char* key, const char* advice) const {
  const JsonEntry member = required(key, advice);
  std::string found = member.text();
  if (found.empty()) {
    member.fail("is empty", advice);
  }
  return found;
}

std::string JsonEntry::optionalText(const char* key) const {
  return has(key) ? (*this)[key].text() : std::string();
}

bool JsonEntry::truth() const {
  if (!value.is_boolean()) {
    fail("should be true or false, is " + kind(), "write true or false, without quotation marks");
  }
  return value.get<bool>();
}

double JsonEntry::number() const {
  if (!value.is_number()) {
    fail("should be a number, is " + kind(), "write a plain number, for instance 7850");
  }
  return value.get<double>();
}

std::size_t JsonEntry::wholeNumber(std::size_t least, std::size_t most) const {
  const bool isWhole = value.is_number_unsigned();
  if (!isWhole || value.get<std::size_t>() < least || value.get<std::size_t>() > most) {
    const std::string found = value.is_number() ? value.dump() : kind();
    fail("is " + found, "write a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return value.get<std::size_t>();
}

std::vector<JsonEntry> JsonEntry::elements() const {
  if (!value.is_array()) {
    fail("should be a list, is " + kind(), "write it in brackets, [ ... ]");
  }
  std::vector<JsonEntry> entries;
  entries.reserve(value.size());
  for (const auto& element : value) {
    entries.emplace_back(element, file, where + "[" + std::to_string(entries.size()) + "]");
  }
  return entries;
}

std::vector<JsonEntry> JsonEntry::list(const char* key) const {
  return has(key) ? (*this)[key].elements() : std::vector<JsonEntry>();
}

}  // namespace headless::files
