// What the tests of the command line share: a small assembly.
#pragma once

#include <string>
#include <vector>

#include "tests/cli/program_fixture.h"

namespace tests {

class CliTest : public ProgramTest {
 protected:
  /// Most tests need no geometry kernel: they are the same on every system, and the program without it starts five
  /// times sooner. Writes the assembly "Rig", as STEP where the program can read that, elsewhere as a design file:
  ///
  ///   Base            body in the root, #FF0000
  ///   Arm:1           component "Arm", body "Beam", no colour of its own
  ///     Pin:1         component "Pin", body "Shaft", #00FF00, of which Face2 and Face3 are #0000FF
  ///   Arm:2           the same component again
  ///
  /// Everything is of the default material, Steel.
  explicit CliTest(Program testedProgram = Program::Plain);

  /// The name of a file of the same kind as the assembly's: "rig" gives "rig.step" or "rig.design.json".
  std::string assemblyName(const std::string& stem) const { return stem + assemblyEnding; }
  /// The assembly.
  std::string rig() const { return at(assemblyName("rig")); }
  /// Where changed assemblies go.
  std::string saved() const { return at(assemblyName("out")); }
  /// Runs `apply` on the assembly with the remaining arguments, saving as saved().
  std::vector<std::string> applying(std::vector<std::string> arguments) const;

 private:
  std::string assemblyEnding;
};

}  // namespace tests
