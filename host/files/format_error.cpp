#include "host/files/format_error.h"

#include <utility>

namespace headless::files {

FormatError::FormatError(std::string fileName, std::string place, std::string wrong, std::string help)
    : std::runtime_error(fileName + ": " + (place.empty() ? "" : place + ": ") + wrong + "; " + help),
      file(std::move(fileName)),
      where(std::move(place)),
      problem(std::move(wrong)),
      advice(std::move(help)) {}

}  // namespace headless::files
