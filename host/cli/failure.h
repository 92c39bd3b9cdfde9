// How the program fails: errors of whoever called it are told apart from everything else by their exit code.
#pragma once

#include <stdexcept>

namespace headless::cli {

/// The exit codes.
inline constexpr int exitSuccess = 0;
inline constexpr int exitFailure = 1;
inline constexpr int exitUsage = 2;

/// What was asked for makes no sense, whatever the files hold; the program ends with exitUsage.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What was asked for could not be done; the program ends with exitFailure. The message says what, where and what
/// helps.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace headless::cli
