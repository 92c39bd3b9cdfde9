// The built program tintora-host, run as its users run it.
#pragma once

#include <string>
#include <vector>

namespace tests {

/// What a run left behind.
struct Outcome {
  /// Negative when the program crashed.
  int exitCode = -1;
  std::string out;
  std::string err;
};

/// The program as it is built here, and as it is built where there is no geometry kernel.
enum class Program { Usual, Plain };

/// Runs the program to its end, without input and without a terminal; line breaks are plain "\n".
Outcome runProgram(const std::vector<std::string>& arguments, Program program = Program::Usual);

/// Runs it in a terminal in which `typed` is typed; `out` is all that the terminal shows. Not on Windows, where no
/// terminal can be made for a program.
Outcome runInTerminal(const std::vector<std::string>& arguments, const std::string& typed);

}  // namespace tests
