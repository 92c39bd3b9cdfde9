// A person without any plan: rolls dice for each thing to do, and does it if it is possible at the moment. What went
// wrong is told by the shortest list of actions that still makes it go wrong.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "host/runtime/session.h"

namespace tests {

/// What an action means for the undo steps.
enum class Effect { MayAddSteps, MovesBetweenSteps, OpensDocument };

/// One thing to do. It does not depend on what was done before, so that others may be left out.
struct UserAction {
  std::string name;
  std::function<void(headless::Session&)> carryOut;
  Effect effect = Effect::MayAddSteps;
};

std::vector<UserAction> randomActions(unsigned seed, std::size_t count);

/// Looks for trouble after each action; says what it found.
using Check = std::function<std::vector<std::string>(headless::Session&)>;

/// Plays sittings with a module under a profile, each in a fresh session without settings.
class RandomUser {
 public:
  RandomUser(std::filesystem::path moduleFile, headless::Profile hostProfile, Check extraCheck = nullptr);

  /// Everything that went wrong at the first action at which anything did; empty when nothing did. Sees what leaves the
  /// add-in, calls on deleted objects, the host's consistency and whether undo holds.
  std::vector<std::string> troubleWith(const std::vector<UserAction>& actions) const;

  /// Text of the shortest list of actions that makes trouble, found by leaving out actions, and the trouble.
  std::string explain(const std::vector<UserAction>& actions) const;

 private:
  std::filesystem::path module;
  headless::Profile profile;
  Check check;
};

}  // namespace tests
