// Text conversions; the ANSI ones are the system's.
#include "shell/text.h"

#include <windows.h>

#include <cmath>
#include <cstddef>
#include <iomanip>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace tintora {

namespace {

/// The last `count` six-bit groups of a code point as UTF-8 continuation bytes.
void appendContinuation(std::string& utf8, char32_t codePoint, int count) {
  for (int shift = 6 * (count - 1); shift >= 0; shift -= 6) {
    utf8 += static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
  }
}

void appendUtf8(std::string& utf8, char32_t codePoint) {
  if (codePoint < 0x80) {
    utf8 += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    utf8 += static_cast<char>(0xC0U | (codePoint >> 6));
    appendContinuation(utf8, codePoint, 1);
  } else if (codePoint < 0x10000) {
    utf8 += static_cast<char>(0xE0U | (codePoint >> 12));
    appendContinuation(utf8, codePoint, 2);
  } else if (codePoint <= 0x10FFFF) {
    utf8 += static_cast<char>(0xF0U | (codePoint >> 18));
    appendContinuation(utf8, codePoint, 3);
  } else {
    throw std::range_error("toUtf8: a character lies above U+10FFFF");
  }
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const wchar_t unit : text) {
    appendUtf8(utf8, static_cast<char32_t>(unit));
  }
  return utf8;
}

std::wstring toWide(const std::string& ansiText) {
  const int bytes = static_cast<int>(ansiText.size());
  const int units = MultiByteToWideChar(CP_ACP, 0, ansiText.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(CP_ACP, 0, ansiText.data(), bytes, wide.data(), units);
  return wide;
}

std::string toAnsi(const std::wstring& text) {
  const int units = static_cast<int>(text.size());
  // Without the flag the system would take letters that look alike for some of the characters that are to be replaced.
  DWORD flags = WC_NO_BEST_FIT_CHARS;
  const char* replacement = " ";
  int bytes = WideCharToMultiByte(CP_ACP, flags, text.data(), units, nullptr, 0, replacement, nullptr);
  if (bytes == 0) {
    // An ANSI code page that is UTF-8 shows every character and refuses flag and replacement.
    flags = 0;
    replacement = nullptr;
    bytes = WideCharToMultiByte(CP_ACP, flags, text.data(), units, nullptr, 0, replacement, nullptr);
  }
  std::string ansi(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_ACP, flags, text.data(), units, ansi.data(), bytes, replacement, nullptr);
  return ansi;
}

std::vector<std::string> splitString(const std::string& text, const std::string& delimiter) {
  if (delimiter.empty()) {
    return {};
  }
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (std::size_t end = text.find(delimiter); end != std::string::npos; end = text.find(delimiter, start)) {
    pieces.push_back(text.substr(start, end - start));
    start = end + delimiter.size();
  }
  return pieces;
}

std::string formatWholeNumber(double number) {
  if (number < 0) {
    return {};
  }
  std::ostringstream fixedPoint;
  // The host may have set a locale whose decimal separator is not the full stop that the text is cut at.
  fixedPoint.imbue(std::locale::classic());
  fixedPoint << std::fixed << std::setprecision(6) << std::floor(number);
  const std::string text = fixedPoint.str();
  return text.substr(0, text.find('.'));
}

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace tintora
