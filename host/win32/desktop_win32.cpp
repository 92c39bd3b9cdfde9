// The desktop as Windows shows it. Opened files are those that the viewer registered for tests wrote down.
#include <windows.h>
// Needs windows.h before it.
#include <tlhelp32.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

#include "host/win32/desktop.h"

namespace headless::desktop {

namespace {

const char* logOfOpenedFiles() {
  return std::getenv("TINTORA_OPEN_LOG");
}

/// Raises std::runtime_error when the process does not end, as what it would write down is missed otherwise.
void waitForProcess(DWORD id) {
  // Far more than it takes, also on a busy machine.
  constexpr DWORD patience = 300'000;
  if (const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id)) {
    const DWORD ended = WaitForSingleObject(process, patience);
    CloseHandle(process);
    if (ended != WAIT_OBJECT_0) {
      throw std::runtime_error("the viewer, process " + std::to_string(id) + ", has not ended within " +
                               std::to_string(patience / 1000) + " s");
    }
  }
}

std::vector<DWORD> startedViewers() {
  constexpr const char* viewer = "tintora-viewer.exe";
  std::vector<DWORD> ids;
  const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 process{};
  process.dwSize = sizeof process;
  for (BOOL found = Process32First(processes, &process); found != FALSE; found = Process32Next(processes, &process)) {
    if (process.th32ParentProcessID == GetCurrentProcessId() && viewer == std::string(process.szExeFile)) {
      ids.push_back(process.th32ProcessID);
    }
  }
  CloseHandle(processes);
  return ids;
}

/// Programs that the shell starts run on their own; what the viewer writes down is there when it has ended.
void waitForViewers() {
  for (const DWORD id : startedViewers()) {
    waitForProcess(id);
  }
}

}  // namespace

Cursor cursor() {
  const HCURSOR shown = GetCursor();
  ShowCursor(TRUE);
  const int displayCount = ShowCursor(FALSE);
  if (shown == LoadCursorA(nullptr, IDC_ARROW)) {
    return {CursorShape::Arrow, displayCount};
  }
  return {shown == LoadCursorA(nullptr, IDC_WAIT) ? CursorShape::Wait : CursorShape::Other, displayCount};
}

std::vector<std::string> openedFiles() {
  std::vector<std::string> files;
  if (logOfOpenedFiles() != nullptr) {
    waitForViewers();
    std::ifstream log(logOfOpenedFiles());
    for (std::string line; std::getline(log, line);) {
      files.push_back(line);
    }
  }
  return files;
}

void reset() {
  SetCursor(LoadCursorA(nullptr, IDC_ARROW));
  while (cursor().displayCount > 0) {
    ShowCursor(FALSE);
  }
  while (cursor().displayCount < 0) {
    ShowCursor(TRUE);
  }
  if (logOfOpenedFiles() != nullptr) {
    waitForViewers();
    std::ofstream(logOfOpenedFiles()).close();
  }
}

}  // namespace headless::desktop
