// The tree of a design as text in columns.
#pragma once

#include <string>

#include "host/cli/design_tree.h"

namespace headless::cli {

/// A row for each node: object, colour, what it shows, where from, material. With `withColours`, a block in the colour
/// stands before it, for terminals. Ends with a line break.
std::string treeText(const TreeNode& root, bool withColours);

}  // namespace headless::cli
