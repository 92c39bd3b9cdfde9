// Texts of STEP files are plain ASCII, whatever they say.
#include "host/step/step_text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>

namespace headless::step {
namespace {

std::string escaped(const std::string& content) {
  std::stringbuf target;
  AsciiStepBuffer buffer(target);
  std::ostream(&buffer) << content;
  return target.str();
}

struct EncodedText {
  const char* content;
  const char* file;
};

TEST(StepText, EscapesWhatIsBeyondAscii) {
  for (const EncodedText& c :
       {EncodedText{"#1=PRODUCT('bolt');\n", "#1=PRODUCT('bolt');\n"}, EncodedText{"'\xC3\xA9'", "'\\X2\\00E9\\X0\\'"},
        EncodedText{"'a\xC3\xA9\xC3\xB6z'", "'a\\X2\\00E900F6\\X0\\z'"},
        EncodedText{"'\xE2\x82\xAC'", "'\\X2\\20AC\\X0\\'"},
        EncodedText{"'\xF0\x9F\x94\xA9'", "'\\X4\\0001F529\\X0\\'"},
        EncodedText{"'\xC3\xA9\xF0\x9F\x94\xA9\xC3\xA9'", "'\\X2\\00E9\\X0\\\\X4\\0001F529\\X0\\\\X2\\00E9\\X0\\'"},
        EncodedText{"'it''s \xC3\xA9'", "'it''s \\X2\\00E9\\X0\\'"}}) {
    EXPECT_EQ(escaped(c.content), c.file) << c.content;
  }
}

TEST(StepText, MendsCharactersThatALineBreakTore) {
  EXPECT_EQ(escaped("'ab\xC3\n\xA9'"), "'ab\\X2\\00E9\\X0\\'");
  EXPECT_EQ(escaped("'\xC3\xA9\n\xC3\xA9'"), "'\\X2\\00E900E9\\X0\\'");
  EXPECT_EQ(escaped("'ab\ncd'\n"), "'ab\ncd'\n");
}

TEST(StepText, ReplacesWhatIsNoUtf8) {
  EXPECT_EQ(escaped("'\xE9t\xE9'"), "'\\X2\\FFFD\\X0\\t\\X2\\FFFD\\X0\\'");
  EXPECT_EQ(escaped("'\x80'"), "'\\X2\\FFFD\\X0\\'");
}

TEST(StepText, PassesOnThatTheTargetIsFull) {
  std::stringbuf full(std::ios::in);
  AsciiStepBuffer buffer(full);
  std::ostream stream(&buffer);
  stream << "x";
  EXPECT_FALSE(stream.good());
}

TEST(StepText, TellsNoTextFromEmpty) {
  EXPECT_EQ(textOf(Handle(TCollection_HAsciiString)()), "");
  EXPECT_EQ(textOf(stepText("\xC3\xA9")), "\xC3\xA9");
  EXPECT_EQ(textOf(TCollection_ExtendedString("\xF0\x9F\x94\xA9 \xC3\xA9", true)), "\xF0\x9F\x94\xA9 \xC3\xA9");
}

}  // namespace
}  // namespace headless::step
