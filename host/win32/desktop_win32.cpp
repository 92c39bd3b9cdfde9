// The desktop as Windows shows it. Opened files are those that the viewer registered for tests wrote down.
#include <windows.h>

#include <cstdlib>
#include <fstream>

#include "host/win32/desktop.h"

namespace headless::desktop {

namespace {

const char* logOfOpenedFiles() {
  return std::getenv("TINTORA_OPEN_LOG");
}

}  // namespace

Cursor cursor() {
  const bool isWaiting = GetCursor() == LoadCursorA(nullptr, IDC_WAIT);
  ShowCursor(TRUE);
  const int displayCount = ShowCursor(FALSE);
  return {isWaiting ? CursorShape::Wait : CursorShape::Arrow, displayCount};
}

std::vector<std::string> openedFiles() {
  std::vector<std::string> files;
  if (logOfOpenedFiles() != nullptr) {
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
    std::ofstream(logOfOpenedFiles()).close();
  }
}

}  // namespace headless::desktop
