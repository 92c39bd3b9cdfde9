// Names that somebody may have meant, for messages about a name that is not there.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace headless::libraries {

/// The names nearest to `wanted`, best first, at most `atMost`; empty when none is near. Case of ASCII letters is
/// ignored, a swap of two neighbouring characters counts as one slip, and a name that has `wanted` (or nearly so)
/// somewhere inside it is near, too. Equal names are given once.
std::vector<std::string> nearestNames(std::string_view wanted, const std::vector<std::string>& names,
                                      std::size_t atMost = 3);

}  // namespace headless::libraries
