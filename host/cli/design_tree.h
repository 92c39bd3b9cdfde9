// The tree of a design as rows for a reader: siblings that are alike in everything shown share one row, and of the
// faces only those stand out that have an appearance of their own.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/model/design.h"

namespace headless::cli {

/// One object, or several siblings that are alike.
struct TreeNode {
  /// "nut:1", or "nut:1-3,7 ×4".
  std::string label;
  /// What it shows; an occurrence shows something only when a look was applied to it.
  std::shared_ptr<const model::Appearance> shows;
  /// Where that comes from: "own", "material", "body" or "occurrence"; empty when it shows nothing.
  std::string from;
  /// Name and density; empty where there is none.
  std::string material;
  std::vector<TreeNode> children;
};

/// What is put into the tree.
enum class TreeDetail { Grouped, Everything };

/// The root's node. With Everything, each occurrence, body and face has a node of its own.
TreeNode treeOf(const model::Design& design, TreeDetail detail);

}  // namespace headless::cli
