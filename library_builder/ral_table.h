// The RAL Classic colours, compiled in from the project's table of them (host/libraries/tables/ral-classic.csv).
#pragma once

#include <vector>

namespace library_builder {

/// A colour as an appearance is to show it; each channel is 0 to 255.
struct RalColour {
  /// Such as "RAL 1000 Green beige"; plain ASCII.
  const char* name;
  short red;
  short green;
  short blue;
};

/// All of them, in the order of their numbers.
const std::vector<RalColour>& ralColours();

}  // namespace library_builder
