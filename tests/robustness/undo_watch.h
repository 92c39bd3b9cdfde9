// Watches that no undo step is lost or half done: whatever happens, the design looks the same each time it stands at
// the same number of steps.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/runtime/session.h"

namespace tests {

/// Looks and materials of everything in a design, in a fixed order.
using DesignState = std::vector<const void*>;

DesignState stateOf(const headless::model::Design& design);

/// Watches the document that is open when it is made.
class UndoWatch {
 public:
  explicit UndoWatch(headless::Session& watched);

  /// To be called after each action. Says what is wrong; empty when all is well.
  std::vector<std::string> afterAction();
  /// The same after an undo or redo, which moves between steps and makes none.
  std::vector<std::string> afterUndoOrRedo();
  /// Undoes everything and redoes it again. To be called when no dialog is open.
  std::vector<std::string> toTheStartAndBack();

 private:
  headless::model::History& history() const;
  void expectKnownState(std::size_t step, std::vector<std::string>& findings);

  headless::Session& session;
  /// The design after that many steps, where it was seen.
  std::vector<std::optional<DesignState>> states;
  std::size_t steps = 0;
};

}  // namespace tests
