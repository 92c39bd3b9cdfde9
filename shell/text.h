// Conversions between the three kinds of text the add-in meets (wide literals, UTF-8 for the host, the ANSI code page
// for file paths) and two small text helpers. Pure functions without state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tintora {

/// Library, appearance or material names in the host's order, as the host returns them.
using NameSequence = std::vector<std::string>;

/// UTF-8 form of wide text. Each unit is taken as a code point of its own, so that where wchar_t holds UTF-16 a
/// surrogate pair becomes two three-byte sequences. Raises std::range_error for a unit above U+10FFFF.
std::string toUtf8(std::wstring_view text);

/// Text of the ANSI code page as wide text.
std::wstring toWide(const std::string& ansiText);

/// Wide text in the ANSI code page, a blank in place of each character that the code page cannot show.
std::string toAnsi(const std::wstring& text);

/// The pieces of `text` that end at a delimiter, empty ones included. What follows the last delimiter is dropped: a
/// caller that needs it ends its text with the delimiter. An empty delimiter gives no piece.
std::vector<std::string> splitString(const std::string& text, const std::string& delimiter);

/// The whole part of a number, rounded down, without thousands separators; empty text for a negative number.
std::string formatWholeNumber(double number);

/// Whether `part` occurs in `text`, byte for byte.
bool contains(const std::string& text, const std::string& part);

}  // namespace tintora
