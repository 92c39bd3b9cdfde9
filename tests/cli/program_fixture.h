// What the tests of the command line share: a folder of their own, and ways to run the program. Where journals of host
// calls are kept (tests/support/journal.h), the calls of each run are a sitting.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/program.h"
#include "tests/support/journal.h"
#include "tests/support/temporary_folder.h"

namespace tests {

/// The folder of the add-in's copy that a run made, which only its calls tell; empty when they name no file there.
std::filesystem::path addInFolderIn(const std::string& calls);

class ProgramTest : public ::testing::Test {
 protected:
  explicit ProgramTest(Program testedProgram = Program::Usual) : program(testedProgram) {}

  /// A path in the test's folder.
  std::string at(const std::string& name) const { return pathOf(name).u8string(); }
  bool exists(const std::string& name) const { return std::filesystem::exists(pathOf(name)); }
  std::string content(const std::string& name) const;
  void fill(const std::string& name, const std::string& text) const;
  /// Makes a copy of the add-in's folder in the test's folder, without settings and guide; gives its path.
  std::string copyAddIn() const;
  /// Names of everything in the test's folder, sorted.
  std::vector<std::string> filesInFolder() const;

  /// Runs the program. A command that runs the add-in does so under the usual profile (tests/support/usual_profile.h)
  /// unless one is named.
  Outcome run(std::vector<std::string> arguments) const;
  /// Runs a command that must succeed; gives its standard output.
  std::string succeed(const std::vector<std::string>& arguments) const;
  /// Runs a command that must fail with that exit code and write nothing to its standard output; gives the message.
  std::string fail(int exitCode, const std::vector<std::string>& arguments) const;

  /// The tree of a file as JSON text.
  std::string json(const std::string& file) const { return succeed({"tree", file, "--json", "--all"}); }

  /// For tests that only one system has, so that there is nothing to compare their host calls with.
  void keepNoJournal() { isJournalKept = false; }

 private:
  Outcome runForJournal(std::vector<std::string> arguments) const;
  std::filesystem::path pathOf(const std::string& name) const { return folder.path() / std::filesystem::u8path(name); }

  Program program;
  TemporaryFolder folder;
  bool isJournalKept = keepsJournals();
};

}  // namespace tests
