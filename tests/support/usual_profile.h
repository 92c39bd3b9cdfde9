// The profile of hosts for which a test names none. It is the documented one unless the environment variable
// TINTORA_PROFILE names another: then the calls and answers are still the same on every system, though not always what
// the test expects.
#pragma once

#include <cstdlib>

#include "host/runtime/profile.h"

namespace tests {

/// Raises std::invalid_argument that lists the names when TINTORA_PROFILE is none of them.
inline headless::Profile usualProfile() {
  const char* const name = std::getenv("TINTORA_PROFILE");
  return name == nullptr ? headless::documentedProfile() : headless::profileNamed(name);
}

}  // namespace tests
