// What the tests of the command line share: a folder of their own, a small assembly in it, and ways to run the program.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/program.h"
#include "tests/step/made_designs.h"

namespace tests {

class CliTest : public ::testing::Test {
 protected:
  /// Writes the assembly "Rig":
  ///
  ///   Base            body in the root, #FF0000
  ///   Arm:1           component "Arm", body "Beam", no colour of its own
  ///     Pin:1         component "Pin", body "Shaft", #00FF00, of which Face2 and Face3 are #0000FF
  ///   Arm:2           the same component again
  ///
  /// Everything is of the default material, Steel.
  CliTest();

  /// The assembly.
  const std::string& rig() const { return rigFile; }
  /// A path in the test's folder.
  std::string at(const std::string& name) const { return (folder / name).string(); }
  bool exists(const std::string& name) const { return std::filesystem::exists(folder / name); }
  std::string content(const std::string& name) const { return headless::step::contentOf(folder / name); }
  /// Names of everything in the test's folder, sorted.
  std::vector<std::string> filesInFolder() const;

  /// Runs a command that must succeed; gives its standard output.
  static std::string succeed(const std::vector<std::string>& arguments);
  /// Runs a command that must fail with that exit code and write nothing to its standard output; gives the message.
  static std::string fail(int exitCode, const std::vector<std::string>& arguments);
  /// Runs `apply` on the assembly with the remaining arguments, saving as "out.step".
  std::vector<std::string> applying(std::vector<std::string> arguments) const;

  /// The tree of a file as JSON text.
  std::string json(const std::string& file) const { return succeed({"tree", file, "--json", "--all"}); }

 private:
  headless::step::TemporaryFolder folder;
  std::string rigFile;
};

}  // namespace tests
