// STEP files that no writer at hand would write: edited from one that it did write.
#pragma once

#include <filesystem>
#include <regex>
#include <string>
#include <vector>

namespace headless::step {

/// The statements of a file, each on one line. Raises std::out_of_range when an edit finds nothing to edit, so that a
/// test cannot pass because the file looks different now.
class EditedFile {
 public:
  explicit EditedFile(const std::filesystem::path& written);

  /// The first group of the first match, or of match number `occurrence`.
  std::string find(const std::string& pattern, std::size_t occurrence = 0) const;

  /// Replaces every match.
  void replace(const std::string& pattern, const std::string& by);

  /// Replaces the first match.
  void replaceFirst(const std::string& pattern, const std::string& by);

  /// Adds an entity and returns its number, like "#123".
  std::string add(const std::string& entity);

  void save(const std::filesystem::path& file) const;

 private:
  void edit(const std::string& pattern, const std::string& by, std::regex_constants::match_flag_type flags);

  std::string content;
  int nextNumber = 900000;
};

}  // namespace headless::step
