// JSON files whose every complaint says where it belongs.
#pragma once

#include <cstddef>
#include <filesystem>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/files/format_error.h"

namespace headless::files {

using Json = nlohmann::json;

/// The bytes of a file. Raises FormatError; `folderAdvice` says what to name instead of something that is no file.
std::string readText(const std::filesystem::path& file, const std::string& folderAdvice);

/// The text as JSON. Raises FormatError with the line and column; `advice` says what such a text looks like.
Json parseJson(std::string_view text, const std::string& fileName, const std::string& advice);

/// A value of the file together with its place. Refers to the value and the file's name, which must outlive it.
/// Whatever asks for a value of some kind raises FormatError when it is of another.
class JsonEntry {
 public:
  JsonEntry(const Json& json, const std::string& fileName, std::string place);

  [[noreturn]] void fail(std::string problem, std::string advice) const;

  bool isObject() const { return value.is_object(); }
  bool isNumber() const { return value.is_number(); }
  bool isText() const { return value.is_string(); }
  bool isNull() const { return value.is_null(); }
  /// "a text", "a list", "null".
  std::string kind() const;

  /// Whether there is a member of that name; what it is like when absent is up to the caller.
  bool has(const char* key) const { return value.contains(key); }
  /// The member, which must be there.
  JsonEntry operator[](const char* key) const;
  /// The member. Raises FormatError when it is absent.
  JsonEntry required(const char* key, const char* advice) const;

  void requireObject(std::initializer_list<const char*> knownKeys) const;

  std::string text() const;
  /// The member's text, which may be neither absent nor empty.
  std::string requiredText(const char* key, const char* advice) const;
  /// The member's text, empty when absent.
  std::string optionalText(const char* key) const;

  bool truth() const;
  double number() const;
  /// A whole number from `least` to `most`.
  std::size_t wholeNumber(std::size_t least, std::size_t most) const;

  /// The entries of the list.
  std::vector<JsonEntry> elements() const;
  /// The entries of the member, a list; none when absent.
  std::vector<JsonEntry> list(const char* key) const;

 private:
  const Json& value;
  const std::string& file;
  std::string where;
};

}  // namespace headless::files
