// The fixture of the library builder's tests: a fresh host that runs the really loaded script, with a person in front
// of it. When the test ends, nothing may have been raised that was not taken with takeErrors().
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/runtime/session.h"
#include "tests/support/usual_profile.h"

namespace tests {

/// A row of the project's table of RAL colours, as an appearance shows it: "RAL 1000 Green beige" and "#CDBA88".
struct RalRow {
  std::string name;
  std::string colour;
};
inline bool operator==(const RalRow& a, const RalRow& b) {
  return a.name == b.name && a.colour == b.colour;
}
void PrintTo(const RalRow& row, std::ostream* stream);

/// The table, read anew from its file.
const std::vector<RalRow>& ralTable();

class LibraryBuilderTest : public ::testing::Test {
 protected:
  LibraryBuilderTest() { start(); }
  ~LibraryBuilderTest() override;

  /// Starts a fresh host.
  void start(headless::Profile profile = usualProfile());

  headless::Session& session() { return *session_; }
  headless::Host& host() { return session().host(); }

  /// Runs the script; what its `run` answered.
  bool build();
  /// The same with a person who presses Cancel, if there is such a button, once that many steps are done.
  bool buildAndCancelAfter(int steps);

  /// The appearances of the design that is open, by name and colour; none without a design.
  std::vector<RalRow> appearances();
  /// The first so many rows of the table.
  static std::vector<RalRow> firstRows(std::size_t count);

  /// The texts of the messages and questions so far.
  std::vector<std::string> messages();
  /// The newest message; fails the test when there is none.
  headless::MessageBox lastMessage();
  /// The errors so far, as "where: what"; they no longer fail the test.
  std::vector<std::string> takeErrors();

  /// What the session is about that runs now, for its journal.
  std::string about;

 private:
  void finish();

  std::unique_ptr<headless::Session> session_;
};

/// The module file of the script.
std::filesystem::path libraryBuilderModule();

}  // namespace tests
