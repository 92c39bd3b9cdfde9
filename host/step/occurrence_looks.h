// Looks that a file gives to occurrences: to an instance wherever it shows up, or to one that is reached on a path.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "host/model/design.h"

namespace headless::step {

/// Collects such looks and puts them on the tree below the design's root.
class OccurrenceLooks {
 public:
  /// From the outermost instance to the painted one; a path of one means the instance wherever its component is used.
  using Path = std::vector<const model::Instance*>;

  /// A later look for the same path replaces the earlier one.
  void add(Path path, std::shared_ptr<const model::Appearance> appearance);

  /// Each occurrence gets the look with the longest path that leads to it. Expands the root's tree when there are
  /// looks.
  void applyTo(const model::Design& design) const;

 private:
  struct Look {
    Path path;
    std::shared_ptr<const model::Appearance> appearance;
  };

  std::unordered_map<const model::Instance*, std::vector<Look>> looks;
};

}  // namespace headless::step
