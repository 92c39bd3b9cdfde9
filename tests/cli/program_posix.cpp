#include "tests/cli/program.h"

#include <fcntl.h>
#include <pty.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace tests {

namespace {

constexpr const char* usualProgram = TINTORA_HOST_PROGRAM;
constexpr const char* plainProgram = TINTORA_PLAIN_HOST_PROGRAM;

std::vector<char*> argumentsFor(const char* program, const std::vector<std::string>& arguments) {
  std::vector<char*> list{const_cast<char*>(program)};
  for (const std::string& argument : arguments) {
    list.push_back(const_cast<char*>(argument.c_str()));
  }
  list.push_back(nullptr);
  return list;
}

int waitFor(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string readAll(int descriptor) {
  std::string text;
  std::array<char, 4096> block{};
  // The end of a terminal is an error, that of a file is not.
  for (ssize_t count = 0; (count = read(descriptor, block.data(), block.size())) > 0;) {
    text.append(block.data(), static_cast<std::size_t>(count));
  }
  return text;
}

/// A file without a name that collects a stream of the program.
class Collector {
 public:
  Collector() : file(std::tmpfile(), &std::fclose) {
    if (file == nullptr) {
      throw std::runtime_error("no temporary file can be made");
    }
  }
  int descriptor() const { return fileno(file.get()); }
  std::string text() const {
    lseek(descriptor(), 0, SEEK_SET);
    return readAll(descriptor());
  }

 private:
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file;
};

/// Without `out` of the outcome.
Outcome runWithOutput(const char* file, const std::vector<std::string>& arguments, int out) {
  const Collector err;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, err.descriptor(), STDERR_FILENO);
  pid_t child = 0;
  const int failed = posix_spawn(&child, file, &actions, nullptr, argumentsFor(file, arguments).data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) {
    throw std::runtime_error(std::string("cannot start ") + file);
  }
  Outcome outcome;
  outcome.exitCode = waitFor(child);
  outcome.err = err.text();
  return outcome;
}

/// A run of the program in a terminal of its own.
class TerminalRun {
 public:
  explicit TerminalRun(const std::vector<std::string>& arguments) {
    const std::vector<char*> list = argumentsFor(usualProgram, arguments);
    child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child < 0) {
      throw std::runtime_error("no terminal can be made");
    }
    if (child == 0) {
      execv(usualProgram, list.data());
      _exit(127);
    }
  }
  TerminalRun(const TerminalRun&) = delete;
  TerminalRun& operator=(const TerminalRun&) = delete;
  ~TerminalRun() { close(terminal); }

  void type(const std::string& typed) const {
    if (write(terminal, typed.data(), typed.size()) != static_cast<ssize_t>(typed.size())) {
      throw std::runtime_error("cannot type into the terminal");
    }
  }

  void waitUntilShown(const std::string& text) {
    while (shown.find(text) == std::string::npos) {
      char next = 0;
      if (read(terminal, &next, 1) != 1) {
        throw std::runtime_error("not shown: " + text + "\nbut: " + shown);
      }
      shown += next;
    }
  }

  void send(int signal) const { kill(child, signal); }

  /// Waits for the end of the program.
  Outcome finish() {
    Outcome outcome;
    outcome.out = shown + readAll(terminal);
    outcome.exitCode = waitFor(child);
    outcome.out.erase(std::remove(outcome.out.begin(), outcome.out.end(), '\r'), outcome.out.end());
    return outcome;
  }

 private:
  int terminal = -1;
  pid_t child = -1;
  std::string shown;
};

}  // namespace

Outcome runProgram(const std::vector<std::string>& arguments, Program program) {
  const Collector out;
  Outcome outcome = runWithOutput(program == Program::Usual ? usualProgram : plainProgram, arguments, out.descriptor());
  outcome.out = out.text();
  return outcome;
}

Outcome runWithoutOutput(const std::vector<std::string>& arguments) {
  // Opened for reading only.
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::fopen("/dev/null", "r"), &std::fclose);
  return runWithOutput(usualProgram, arguments, fileno(out.get()));
}

Outcome runIntoClosedPipe(const std::vector<std::string>& arguments) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe can be made");
  }
  close(ends[0]);
  Outcome outcome = runWithOutput(usualProgram, arguments, ends[1]);
  close(ends[1]);
  return outcome;
}

Outcome runInTerminal(const std::vector<std::string>& arguments, const std::string& typed) {
  TerminalRun run(arguments);
  run.type(typed);
  return run.finish();
}

Outcome signalInTerminal(const std::vector<std::string>& arguments, const std::string& shown, int signal,
                         const std::string& typed) {
  TerminalRun run(arguments);
  run.waitUntilShown(shown);
  run.send(signal);
  run.type(typed);
  return run.finish();
}

}  // namespace tests
