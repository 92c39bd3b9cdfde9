#include <unistd.h>

#include <csignal>
#include <system_error>
#include <thread>

#include "host/cli/platform.h"
#include "host/files/scratch_folder.h"

namespace headless::cli {

namespace {

/// The signals that end the program, without those that whoever started it wants to be ignored, as nohup does.
sigset_t endingSignals() {
  sigset_t signals{};
  sigemptyset(&signals);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    if (now.sa_handler != SIG_IGN) {
      sigaddset(&signals, signal);
    }
  }
  return signals;
}

void endAtSignal(sigset_t signals) {
  int signal = 0;
  if (sigwait(&signals, &signal) != 0) {
    return;
  }
  files::removeScratchFoldersForGood();
  std::signal(signal, SIG_DFL);
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
  std::raise(signal);
}

}  // namespace

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

// A thread waits for the signals, since a handler could neither walk folders nor allocate memory.
void prepareForEnd() {
  std::signal(SIGPIPE, SIG_IGN);
  const sigset_t signals = endingSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  try {
    std::thread(endAtSignal, signals).detach();
  } catch (const std::system_error&) {
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
  }
}

}  // namespace headless::cli
