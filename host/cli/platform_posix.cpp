#include <unistd.h>

#include <system_error>

#include "host/cli/platform.h"

namespace headless::cli {

bool isTerminal(Stream stream) {
  switch (stream) {
    case Stream::Input:
      return isatty(STDIN_FILENO) != 0;
    case Stream::Output:
      return isatty(STDOUT_FILENO) != 0;
    case Stream::Error:
      return isatty(STDERR_FILENO) != 0;
  }
  return false;
}

std::filesystem::path programFile() {
  std::error_code failed;
  return std::filesystem::read_symlink("/proc/self/exe", failed);
}

std::vector<std::string> argumentsOf(int argc, char** argv) {
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

// Terminals do all of that by themselves.
void setUpTerminal() {}

}  // namespace headless::cli
