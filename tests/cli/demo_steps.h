// What the demo shows.
#pragma once

#include <string>

namespace tests {

/// Expects the texts of all its steps, in their order.
void expectEveryStep(const std::string& shown);

}  // namespace tests
