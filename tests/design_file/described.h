// Designs as texts, to be compared.
#pragma once

#include <string>

#include "host/model/design.h"

namespace tests {

/// Everything that a design file keeps, one thing a line: names, counters, placements, looks of all trees that were
/// made, materials with all that is in them, and which of these are one object. Equal texts are equal designs.
std::string described(const headless::model::Design& design);

}  // namespace tests
