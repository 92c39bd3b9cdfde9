#include "host/model/history.h"

#include <stdexcept>
#include <utility>

namespace headless::model {

void History::begin() {
  if (open) {
    throw std::logic_error("a transaction is open already");
  }
  open = true;
}

void History::commit(const std::string& stepName) {
  if (!open) {
    throw std::logic_error("there is no transaction to commit");
  }
  open = false;
  if (!pending.empty()) {
    finish({stepName, std::exchange(pending, {})});
  }
}

void History::rollback() {
  if (!open) {
    throw std::logic_error("there is no transaction to roll back");
  }
  open = false;
  revertAll(std::exchange(pending, {}));
}

bool History::undo() {
  if (open || done.empty()) {
    return false;
  }
  revertAll(done.back().changes);
  undone.push_back(std::move(done.back()));
  done.pop_back();
  return true;
}

bool History::redo() {
  if (open || undone.empty()) {
    return false;
  }
  applyAll(undone.back().changes);
  done.push_back(std::move(undone.back()));
  undone.pop_back();
  return true;
}

std::vector<std::string> History::undoSteps() const {
  return namesOf(done);
}

std::vector<std::string> History::redoSteps() const {
  return namesOf(undone);
}

void History::record(Change change) {
  pending.push_back(std::move(change));
  pending.back().apply();
  ++changeCount;
  if (!open) {
    finish({"Edit", std::exchange(pending, {})});
  }
  if (onChange) {
    onChange();
  }
}

void History::finish(Step step) {
  done.push_back(std::move(step));
  undone.clear();
}

void History::applyAll(const std::vector<Change>& changes) {
  for (const auto& change : changes) {
    change.apply();
    ++changeCount;
  }
}

void History::revertAll(const std::vector<Change>& changes) {
  for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
    change->revert();
    ++changeCount;
  }
}

std::vector<std::string> History::namesOf(const std::vector<Step>& steps) {
  std::vector<std::string> names;
  names.reserve(steps.size());
  for (const auto& step : steps) {
    names.push_back(step.name);
  }
  return names;
}

}  // namespace headless::model
