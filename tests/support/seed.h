// The seed of tests that roll dice. It is the same at every run unless the environment variable TINTORA_SEED gives
// another one, and it is printed, so that what failed can be repeated.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

namespace tests {

inline unsigned seedOfThisRun() {
  constexpr unsigned usualSeed = 20'240'607;
  const char* const given = std::getenv("TINTORA_SEED");
  const unsigned seed = given != nullptr ? static_cast<unsigned>(std::stoul(given)) : usualSeed;
  std::cout << "[   SEED   ] TINTORA_SEED=" << seed << std::endl;
  return seed;
}

}  // namespace tests
