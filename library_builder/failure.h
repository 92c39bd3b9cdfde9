// Why the library builder stops. It never leaves the module: `run` turns it into a message.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace library_builder {

/// What went wrong, as a sentence for the user, and what the user can do about it.
class Failure : public std::runtime_error {
 public:
  Failure(const std::string& what, std::string whatToDo) : std::runtime_error(what), advice_(std::move(whatToDo)) {}

  const std::string& advice() const { return advice_; }

 private:
  std::string advice_;
};

}  // namespace library_builder
