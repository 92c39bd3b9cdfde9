// The Windows calls of windows.h on a POSIX system.
#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "host/win32/desktop.h"
#include "host/win32/windows.h"

namespace {

struct Desktop {
  HCURSOR current = nullptr;
  int displayCount = 0;
  std::vector<std::string> opened;
};

Desktop& desktopState() {
  static Desktop desktop;
  return desktop;
}

HCURSOR cursorNamed(LPCSTR name) {
  return reinterpret_cast<HCURSOR>(const_cast<char*>(name));
}

constexpr char32_t lastCodePoint = 0x10FFFF;
constexpr char32_t invalid = 0xFFFFFFFF;

bool isSurrogate(char32_t point) {
  return point >= 0xD800 && point <= 0xDFFF;
}

// Reads one code point of UTF-8 and moves on; an invalid byte is read alone, as `invalid`.
char32_t nextCodePoint(const std::string& text, std::size_t& position) {
  const auto first = static_cast<unsigned char>(text[position++]);
  if (first < 0x80) {
    return first;
  }
  const std::size_t following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  if (first < 0xC2 || first > 0xF4 || position + following > text.size()) {
    return invalid;
  }
  char32_t point = first & (0x3FU >> following);
  for (std::size_t ahead = position; ahead < position + following; ++ahead) {
    const auto byte = static_cast<unsigned char>(text[ahead]);
    if ((byte & 0xC0U) != 0x80U) {
      return invalid;
    }
    point = (point << 6U) | (byte & 0x3FU);
  }
  // Longer than needed, or no character at all.
  constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
  if (point < smallest[following] || point > lastCodePoint || isSurrogate(point)) {
    return invalid;
  }
  position += following;
  return point;
}

void appendUtf8(std::string& text, char32_t point) {
  const auto byte = [&](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
  if (point < 0x80) {
    byte(point);
  } else if (point < 0x800) {
    byte(0xC0 | (point >> 6U));
    byte(0x80 | (point & 0x3FU));
  } else if (point < 0x10000) {
    byte(0xE0 | (point >> 12U));
    byte(0x80 | ((point >> 6U) & 0x3FU));
    byte(0x80 | (point & 0x3FU));
  } else {
    byte(0xF0 | (point >> 18U));
    byte(0x80 | ((point >> 12U) & 0x3FU));
    byte(0x80 | ((point >> 6U) & 0x3FU));
    byte(0x80 | (point & 0x3FU));
  }
}

// Both conversions answer alike: the size needed for a size of 0, 0 when the result does not fit.
template <class Text, class Character>
int copyOut(const Text& result, Character* target, int size) {
  const auto needed = static_cast<int>(result.size());
  if (size == 0) {
    return needed;
  }
  if (needed > size) {
    return 0;
  }
  std::copy(result.begin(), result.end(), target);
  return needed;
}

}  // namespace

extern "C" {

DWORD GetModuleFileNameW(HMODULE module, LPWSTR name, DWORD size) {
  Dl_info found{};
  if (size == 0 || dladdr(reinterpret_cast<const void*>(module), &found) == 0 || found.dli_fname == nullptr) {
    return 0;
  }
  const std::wstring path = std::filesystem::absolute(found.dli_fname).wstring();
  const std::size_t written = std::min<std::size_t>(path.size(), size - 1);
  std::copy_n(path.begin(), written, name);
  name[written] = L'\0';
  return path.size() < size ? static_cast<DWORD>(written) : size;
}

int WideCharToMultiByte(UINT, DWORD, LPCWSTR wide, int wideLength, LPSTR narrow, int size, LPCSTR defaultChar,
                        LPBOOL usedDefaultChar) {
  const std::wstring text =
      wideLength < 0 ? std::wstring(wide) + L'\0' : std::wstring(wide, static_cast<std::size_t>(wideLength));
  std::string result;
  bool usedDefault = false;
  for (const wchar_t unit : text) {
    const auto point = static_cast<char32_t>(unit);
    if (point > lastCodePoint || isSurrogate(point)) {
      result += defaultChar != nullptr ? *defaultChar : '?';
      usedDefault = true;
    } else {
      appendUtf8(result, point);
    }
  }
  if (usedDefaultChar != nullptr) {
    *usedDefaultChar = usedDefault ? TRUE : FALSE;
  }
  return copyOut(result, narrow, size);
}

int MultiByteToWideChar(UINT, DWORD, LPCSTR narrow, int narrowLength, LPWSTR wide, int size) {
  const std::string text =
      narrowLength < 0 ? std::string(narrow) + '\0' : std::string(narrow, static_cast<std::size_t>(narrowLength));
  std::wstring result;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t point = nextCodePoint(text, position);
    result += point == invalid ? L'\uFFFD' : static_cast<wchar_t>(point);
  }
  return copyOut(result, wide, size);
}

HCURSOR LoadCursorA(HINSTANCE, LPCSTR name) {
  return cursorNamed(name);
}

HCURSOR SetCursor(HCURSOR cursor) {
  Desktop& desktop = desktopState();
  const HCURSOR previous = desktop.current;
  desktop.current = cursor;
  return previous;
}

int ShowCursor(BOOL show) {
  return desktopState().displayCount += show != FALSE ? 1 : -1;
}

HINSTANCE ShellExecuteA(HWND, LPCSTR operation, LPCSTR file, LPCSTR, LPCSTR, INT show) {
  constexpr std::size_t fileNotFound = 2;
  constexpr std::size_t noSuchOperation = 31;
  constexpr std::size_t opened = 33;
  const auto answer = [](std::size_t code) { return reinterpret_cast<HINSTANCE>(code); };
  if (!std::filesystem::exists(file)) {
    return answer(fileNotFound);
  }
  if (operation != nullptr && std::string(operation) != "open") {
    return answer(noSuchOperation);
  }
  if (show == SW_SHOWNORMAL) {
    desktopState().opened.emplace_back(file);
  }
  return answer(opened);
}

}  // extern "C"

namespace headless::desktop {

Cursor cursor() {
  const auto& state = desktopState();
  if (state.current == cursorNamed(IDC_ARROW)) {
    return {CursorShape::Arrow, state.displayCount};
  }
  return {state.current == cursorNamed(IDC_WAIT) ? CursorShape::Wait : CursorShape::Other, state.displayCount};
}

std::vector<std::string> openedFiles() {
  return desktopState().opened;
}

void reset() {
  desktopState() = {};
  desktopState().current = cursorNamed(IDC_ARROW);
}

}  // namespace headless::desktop
