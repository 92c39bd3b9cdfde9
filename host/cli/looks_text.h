// What objects show and where that comes from, in words that the tree's text and its JSON share.
#pragma once

#include <string>
#include <vector>

#include "host/model/resolution.h"

namespace headless::cli {

/// "material", "body", "occurrence", "face" or "override".
std::string sourceWord(model::Source source);

/// Name and density: "Brass, 8500 kg/m3"; "various" for an empty material.
std::string materialText(const model::Material* material);

/// A density without superfluous digits: "8500", "0.25".
std::string densityText(double density);

/// How much there is in a design.
struct DesignCounts {
  std::size_t components = 0;
  std::size_t occurrences = 0;
  /// Bodies and faces as seen: those of a component count once for each of its occurrences.
  std::size_t bodies = 0;
  std::size_t faces = 0;
};

DesignCounts countsOf(const model::Design& design);

/// "9 components, 27 occurrences, 18 bodies, 250 faces".
std::string countsText(const DesignCounts& counts);

}  // namespace headless::cli
