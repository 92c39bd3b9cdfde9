// What the tests of the command line on STEP files share: a small assembly.
#pragma once

#include <string>
#include <vector>

#include "tests/cli/program_fixture.h"
#include "tests/step/made_designs.h"

namespace tests {

class CliTest : public ProgramTest {
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
  /// Runs `apply` on the assembly with the remaining arguments, saving as "out.step".
  std::vector<std::string> applying(std::vector<std::string> arguments) const;

 private:
  std::string rigFile;
};

}  // namespace tests
