#include <windows.h>

#include <shellapi.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "host/cli/platform.h"
#include "host/files/scratch_folder.h"

namespace headless::cli {

namespace {

constexpr std::size_t outputBlock = std::size_t{1} << 16U;

// The terminal's state before this program, which outlives it there.
DWORD earlierMode = 0;
UINT earlierCodePage = 0;

HANDLE handleOf(Stream stream) {
  switch (stream) {
    case Stream::Input:
      return GetStdHandle(STD_INPUT_HANDLE);
    case Stream::Output:
      return GetStdHandle(STD_OUTPUT_HANDLE);
    case Stream::Error:
      return GetStdHandle(STD_ERROR_HANDLE);
  }
  return INVALID_HANDLE_VALUE;
}

void restoreTerminal() {
  std::fflush(stdout);
  SetConsoleMode(handleOf(Stream::Output), earlierMode);
  SetConsoleOutputCP(earlierCodePage);
}

/// The system calls it in a thread of its own, and ends the program after it.
BOOL WINAPI removeScratchFolders(DWORD) {
  files::removeScratchFoldersForGood();
  return FALSE;
}

}  // namespace

// Not the C runtime's answer, which takes any device for a terminal.
bool isTerminal(Stream stream) {
  DWORD mode = 0;
  return GetConsoleMode(handleOf(stream), &mode) != 0;
}

std::filesystem::path programFile() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size()) {
      name.resize(length);
      return name;
    }
    name.resize(2 * name.size());
  }
}

// What `main` is given went through the system's code page, which does not know every character.
std::vector<std::string> argumentsOf(int, char**) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> list(CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  std::vector<std::string> arguments;
  for (int i = 1; list != nullptr && i < count; ++i) {
    arguments.push_back(std::filesystem::path(list.get()[i]).u8string());
  }
  return arguments;
}

void setUpTerminal() {
  const HANDLE output = handleOf(Stream::Output);
  DWORD mode = 0;
  if (GetConsoleMode(output, &mode) == 0) {
    return;
  }
  earlierMode = mode;
  earlierCodePage = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  // Without a buffer the C runtime hands over single bytes, and characters of several fall apart.
  std::setvbuf(stdout, nullptr, _IOFBF, outputBlock);
  std::atexit(restoreTerminal);
}

void prepareForEnd() {
  SetConsoleCtrlHandler(removeScratchFolders, TRUE);
}

}  // namespace headless::cli
