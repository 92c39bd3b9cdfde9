// Texts of STEP files: the kernel's strings as UTF-8, and UTF-8 as the plain ASCII that every STEP reader understands.
#pragma once

#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <streambuf>
#include <string>
#include <string_view>

namespace headless::step {

/// UTF-8; empty for no string.
std::string textOf(const Handle(TCollection_HAsciiString) & text);
std::string textOf(const TCollection_ExtendedString& text);

Handle(TCollection_HAsciiString) stepText(const std::string& text);

/// Passes a STEP file on to another buffer, with every character beyond ASCII written as the standard's escape
/// (\X2\00E9\X0\ for an e with acute accent). The kernel itself writes bare UTF-8 and breaks long texts anywhere, even
/// inside a character. What is no UTF-8 becomes U+FFFD.
class AsciiStepBuffer : public std::streambuf {
 public:
  explicit AsciiStepBuffer(std::streambuf& target) : out(target) {}

 protected:
  int_type overflow(int_type character) override;

 private:
  void beginCharacter(unsigned char byte);
  void continueCharacter(unsigned char byte);
  void endCharacter();
  void putAscii(char character);
  void putEscaped(char32_t character);
  void closeEscape();
  void put(std::string_view text);

  std::streambuf& out;
  bool failed = false;
  bool isInText = false;
  bool isEscapeOpen = false;
  char32_t pending = 0;
  unsigned pendingBytes = 0;
};

}  // namespace headless::step
