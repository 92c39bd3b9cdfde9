// Objects of the open design by patterns of their paths.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/runtime/session.h"

namespace headless::cli {

/// The kinds by the words of the command line, in the order of PickKind.
inline const std::vector<std::string> kindWords = {"component", "body", "face"};

/// The word of a kind with a number: "2 bodies".
std::string countedKind(std::size_t count, PickKind kind);

/// All objects of that kind whose path (see pickable.h) is a pattern's text or matches it, each once, in the order of
/// the tree. In a pattern "*" stands for any text, "/" and "+" included; see glob.h for the rest. Raises Failure when a
/// pattern matches nothing; it names `file`, which the design is from, and what is near.
std::vector<Pickable> matching(const model::Design& design, const std::filesystem::path& file, PickKind kind,
                               const std::vector<std::string>& patterns);

}  // namespace headless::cli
