// One sitting from start to stop that uses everything the add-in offers, played by a person who goes on whatever
// happens: what is not possible at the moment is passed over.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/runtime/session.h"

namespace tests {

/// What came of a sitting.
struct Outcome {
  /// Exceptions that left the add-in.
  std::vector<headless::BoundaryError> errors;
  /// What is wrong with undo, the host or the toolbar; each with the step at which it was noticed.
  std::vector<std::string> findings;
  /// Calls on objects that the host had deleted.
  std::vector<std::string> misuses;
  /// The steps that could not be carried out.
  std::vector<std::string> impossible;
  std::vector<std::string> messages;
  std::vector<std::string> undoSteps;
  /// Names of all looks and materials of the design at the end, in a fixed order.
  std::vector<std::string> looks;
  std::map<std::string, std::size_t> callsByName;
  bool faultStruck = false;
  /// The host calls, when `prepare` started the gate's journal.
  std::string journal;
};

/// Plays the sitting with that module in a session of its own. `prepare` is called once the host is there, before the
/// add-in is loaded. A fault that strikes while the add-in stops has it stopped a second time.
Outcome playScenario(const std::filesystem::path& module, const headless::Profile& profile,
                     const std::function<void(headless::Host&)>& prepare);

}  // namespace tests
