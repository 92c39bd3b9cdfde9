// The one walk over the tree of occurrences: depth first, children in index order. It keeps its place in memory of its
// own, so that no nesting, however deep, exhausts the stack.
#pragma once

#include <cstddef>
#include <stack>

#include "shell/host_objects.h"

namespace tintora {

/// What a walk does after it has reached an occurrence.
enum class Walk {
  on,    ///< goes through the occurrence's children, then leaves it
  past,  ///< goes on beside it: neither its children nor its leaving
  stop   ///< ends the whole walk
};

/// Walks an occurrence and all below it. `reach(occurrence)` is called before the children and returns a `Walk`,
/// `leave(occurrence)` after them. `missing` tells what to do about children that the host does not return. True when
/// the walk was stopped.
template <class Reach, class Leave>
bool walkOccurrences(const Ptr<fusion::Occurrence>& top, Missing missing, Reach reach, Leave leave) {
  struct Level {
    Ptr<fusion::Occurrence> occurrence;
    HostItems<fusion::OccurrenceList, std::size_t> children;
  };
  std::stack<Level> path;
  const auto reachAndEnter = [&](const Ptr<fusion::Occurrence>& occurrence) {
    const Walk next = reach(occurrence);
    if (next == Walk::on) {
      path.push({occurrence, items(occurrence->childOccurrences(), missing)});
    }
    return next;
  };

  // The next child is asked for only when the one before it is done with, all below it included.
  const auto moveOn = [&path] {
    if (!path.empty()) {
      path.top().children.advance();
    }
  };

  Walk next = reachAndEnter(top);
  while (next != Walk::stop && !path.empty()) {
    if (path.top().children.atEnd()) {
      leave(path.top().occurrence);
      path.pop();
      moveOn();
      continue;
    }
    next = reachAndEnter(path.top().children.current());
    if (next == Walk::past) {
      moveOn();
    }
  }
  return next == Walk::stop;
}

}  // namespace tintora
