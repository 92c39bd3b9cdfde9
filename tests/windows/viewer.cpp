// Stands for the program that opens the user's guide: writes down which file it was given, in UTF-8, into the file that
// the environment variable TINTORA_OPEN_LOG names. A viewer that nobody would see writes nothing.
#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

/// Makes Wine start its desktop, which outlives the program that needed it first and holds that program's pipes.
void useDesktop() {
  GetDesktopWindow();
}

int wmain(int count, wchar_t** arguments) {
  useDesktop();
  STARTUPINFOW startup{};
  GetStartupInfoW(&startup);
  const bool isVisible = (startup.dwFlags & STARTF_USESHOWWINDOW) == 0 || startup.wShowWindow == SW_SHOWNORMAL;
  const char* const log = std::getenv("TINTORA_OPEN_LOG");
  if (count != 2 || log == nullptr) {
    return 1;
  }
  if (isVisible) {
    std::ofstream(log, std::ios::app) << std::filesystem::path(arguments[1]).u8string() << "\n";
  }
  return 0;
}
