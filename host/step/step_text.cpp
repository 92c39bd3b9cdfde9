#include "host/step/step_text.h"

namespace headless::step {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t lastOfBasicPlane = 0xFFFF;

// What the bytes of a UTF-8 character begin with.
constexpr unsigned char firstContinuation = 0x80;
constexpr unsigned char firstLead = 0xC0;
constexpr unsigned char firstLeadOfThree = 0xE0;
constexpr unsigned char firstLeadOfFour = 0xF0;

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
  if (byte >= firstLead) {
    beginCharacter(byte);
  } else if (byte >= firstContinuation) {
    continueCharacter(byte);
  } else {
    putAscii(static_cast<char>(byte));
  }
  return failed ? traits_type::eof() : character;
}

void AsciiStepBuffer::beginCharacter(unsigned char byte) {
  endCharacter();
  pendingBytes = byte >= firstLeadOfFour ? 3 : byte >= firstLeadOfThree ? 2 : 1;
  pending = byte & (0x3Fu >> pendingBytes);
}

void AsciiStepBuffer::continueCharacter(unsigned char byte) {
  if (pendingBytes == 0) {
    putEscaped(replacement);
    return;
  }
  pending = (pending << 6u) | (byte & 0x3Fu);
  if (--pendingBytes == 0) {
    putEscaped(pending);
  }
}

void AsciiStepBuffer::endCharacter() {
  if (pendingBytes > 0) {
    pendingBytes = 0;
    putEscaped(replacement);
  }
}

void AsciiStepBuffer::putAscii(char character) {
  const bool isLineBreak = character == '\n' || character == '\r';
  if (isLineBreak && isInText && (isEscapeOpen || pendingBytes > 0)) {
    return;  // means nothing inside a text, and may not stand in an escape
  }
  endCharacter();
  closeEscape();
  isInText = character == '\'' ? !isInText : isInText;
  put({&character, 1});
}

void AsciiStepBuffer::putEscaped(char32_t character) {
  if (character > lastOfBasicPlane) {
    closeEscape();
    put("\\X4\\" + hexDigits(character, 8) + "\\X0\\");
    return;
  }
  put((isEscapeOpen ? "" : "\\X2\\") + hexDigits(character, 4));
  isEscapeOpen = true;
}

void AsciiStepBuffer::closeEscape() {
  if (isEscapeOpen) {
    isEscapeOpen = false;
    put("\\X0\\");
  }
}

void AsciiStepBuffer::put(std::string_view text) {
  const auto length = static_cast<std::streamsize>(text.size());
  failed = failed || out.sputn(text.data(), length) != length;
}

}  // namespace headless::step
