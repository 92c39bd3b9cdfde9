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

/// Runs it with a standard output that takes nothing, as on a full disk. Not on Windows.
Outcome runWithoutOutput(const std::vector<std::string>& arguments);

/// Runs it in a terminal in which `typed` is typed; `out` is all that the terminal shows. Not on Windows, where no
/// terminal can be made for a program.
Outcome runInTerminal(const std::vector<std::string>& arguments, const std::string& typed);

/// The same; as soon as the terminal shows `shown`, the program is sent the signal, and then `typed` is typed. A
/// program that a signal ended has that signal's number, negative, for its exit code.
Outcome signalInTerminal(const std::vector<std::string>& arguments, const std::string& shown, int signal,
                         const std::string& typed = "");

/// Runs it with a standard output from which nobody reads. Not on Windows.
Outcome runIntoClosedPipe(const std::vector<std::string>& arguments);

}  // namespace tests
