#include "host/step/step_text.h"

#include <string_view>

namespace headless::step {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t lastOfBasicPlane = 0xFFFF;

std::string hexDigits(char32_t value, int count) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (int shift = 4 * (count - 1); shift >= 0; shift -= 4) {
    text += digits[(value >> static_cast<unsigned>(shift)) & 0xFu];
  }
  return text;
}

}  // namespace

std::string textOf(const Handle(TCollection_HAsciiString) & text) {
  return text.IsNull() ? std::string() : std::string(text->ToCString());
}

std::string textOf(const TCollection_ExtendedString& text) {
  std::string utf8(static_cast<std::size_t>(text.LengthOfCString()) + 1, '\0');
  Standard_PCharacter begin = utf8.data();
  utf8.resize(static_cast<std::size_t>(text.ToUTF8CString(begin)));
  return utf8;
}

Handle(TCollection_HAsciiString) stepText(const std::string& text) {
  return new TCollection_HAsciiString(text.c_str());
}

AsciiStepBuffer::int_type AsciiStepBuffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) {
    return traits_type::not_eof(character);
  }
  const auto byte = static_cast<unsigned char>(traits_type::to_char_type(character));
  if (byte >= 0x80 && byte < 0xC0) {
    pending = (pending << 6u) | (byte & 0x3Fu);
    if (--pendingBytes == 0) {
      putEscaped(pending);
    } else if (pendingBytes < 0) {
      pendingBytes = 0;
      putEscaped(replacement);
    }
  } else if (byte >= 0xC0) {
    endCharacter();
    pendingBytes = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : 1;
    pending = byte & (0x3Fu >> static_cast<unsigned>(pendingBytes));
  } else if (isInText && (byte == '\n' || byte == '\r') && (isEscapeOpen || pendingBytes > 0)) {
    // A line break inside a text means nothing, and in an escape it may not stand.
  } else {
    endCharacter();
    closeEscape();
    isInText = byte == '\'' ? !isInText : isInText;
    put(static_cast<char>(byte));
  }
  return failed ? traits_type::eof() : character;
}

void AsciiStepBuffer::put(char character) {
  failed = failed || traits_type::eq_int_type(out.sputc(character), traits_type::eof());
}

void AsciiStepBuffer::putEscaped(char32_t character) {
  std::string escape;
  if (character > lastOfBasicPlane) {
    closeEscape();
    escape = "\\X4\\" + hexDigits(character, 8) + "\\X0\\";
  } else {
    escape = (isEscapeOpen ? "" : "\\X2\\") + hexDigits(character, 4);
    isEscapeOpen = true;
  }
  for (const char c : escape) {
    put(c);
  }
}

void AsciiStepBuffer::endCharacter() {
  if (pendingBytes > 0) {
    pendingBytes = 0;
    putEscaped(replacement);
  }
}

void AsciiStepBuffer::closeEscape() {
  if (!isEscapeOpen) {
    return;
  }
  isEscapeOpen = false;
  for (const char c : std::string_view("\\X0\\")) {
    put(c);
  }
}

}  // namespace headless::step
