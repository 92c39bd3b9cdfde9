// What the tests of the command line share: a folder of their own, and ways to run the program.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {

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

  /// Runs a command that must succeed; gives its standard output.
  std::string succeed(const std::vector<std::string>& arguments) const;
  /// Runs a command that must fail with that exit code and write nothing to its standard output; gives the message.
  std::string fail(int exitCode, const std::vector<std::string>& arguments) const;

  /// The tree of a file as JSON text.
  std::string json(const std::string& file) const { return succeed({"tree", file, "--json", "--all"}); }

 private:
  std::filesystem::path pathOf(const std::string& name) const { return folder.path() / std::filesystem::u8path(name); }

  Program program;
  TemporaryFolder folder;
};

}  // namespace tests
