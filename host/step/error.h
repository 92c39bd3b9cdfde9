// The one exception that leaves this folder.
#pragma once

#include <stdexcept>
#include <string>

namespace headless::step {

/// Reading or writing failed. The message names what was being done, the file, the reason and what would help.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace headless::step
