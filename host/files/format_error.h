// What is wrong with the contents of a file that people may write by hand.
#pragma once

#include <stdexcept>
#include <string>

namespace headless::files {

/// A file that is not what it should be; what() is all of it in one line.
struct FormatError : std::runtime_error {
  FormatError(std::string fileName, std::string place, std::string wrong, std::string help);

  /// The file, as it was named by the caller.
  std::string file;
  /// The place inside it, such as "materials[3].density" or "line 7, column 12"; empty when the whole file is meant.
  std::string where;
  std::string problem;
  /// What to do about it.
  std::string advice;
};

}  // namespace headless::files
