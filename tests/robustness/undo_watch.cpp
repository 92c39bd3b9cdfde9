#include "tests/robustness/undo_watch.h"

namespace tests {

using headless::model::Design;
using Findings = std::vector<std::string>;

DesignState stateOf(const Design& design) {
  DesignState state;
  for (const auto& component : design.components) {
    state.push_back(component->material.get());
    for (const auto& body : component->bodies) {
      state.push_back(body->material.get());
      state.push_back(body->appearance.get());
      for (const auto& face : body->faces) {
        state.push_back(face->appearance.get());
      }
    }
    // Trees that nobody asked for carry no looks, and asking makes them.
    if (component->isExpanded()) {
      for (const headless::model::Occurrence* occurrence : component->allOccurrences()) {
        state.push_back(occurrence->appearance.get());
      }
    }
  }
  return state;
}

UndoWatch::UndoWatch(headless::Session& watched) : session(watched) {
  steps = history().undoSteps().size();
  states.resize(steps + 1);
  states.back() = stateOf(session.design());
}

headless::model::History& UndoWatch::history() const {
  return session.host().document()->history;
}

void UndoWatch::expectKnownState(std::size_t step, Findings& findings) {
  const DesignState state = stateOf(session.design());
  if (!states[step]) {
    states[step] = state;
  } else if (*states[step] != state) {
    findings.push_back("the design is not what it was when it stood at undo step " + std::to_string(step));
    states[step] = state;
  }
}

Findings UndoWatch::afterAction() {
  Findings findings;
  if (history().hasPendingChanges()) {
    return findings;
  }
  const std::size_t now = history().undoSteps().size();
  if (now < steps) {
    findings.push_back(std::to_string(steps - now) + " undo step(s) went missing");
  }
  if (now != steps) {
    states.resize(now + 1);
    states.back().reset();
  }
  steps = now;
  expectKnownState(now, findings);
  return findings;
}

Findings UndoWatch::afterUndoOrRedo() {
  Findings findings;
  steps = history().undoSteps().size();
  if (steps >= states.size()) {
    states.resize(steps + 1);
  }
  expectKnownState(steps, findings);
  return findings;
}

Findings UndoWatch::toTheStartAndBack() {
  Findings findings = afterAction();
  if (history().isOpen()) {
    findings.emplace_back("a transaction is open although no dialog is");
    return findings;
  }
  const std::size_t all = steps;
  const auto add = [&](const Findings& more) { findings.insert(findings.end(), more.begin(), more.end()); };
  while (steps > 0) {
    session.undo();
    add(afterUndoOrRedo());
  }
  while (steps < all) {
    session.redo();
    add(afterUndoOrRedo());
  }
  return findings;
}

}  // namespace tests
