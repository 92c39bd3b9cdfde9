// What reading and writing of files raises.
#pragma once

#include <stdexcept>
#include <string>

namespace headless::files {

/// Reading or writing failed. The message names what was being done, the file, the reason and what would help.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace headless::files
