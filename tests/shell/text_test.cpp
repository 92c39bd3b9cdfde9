#include "shell/text.h"
#include "tests/support/tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <locale>
#include <stdexcept>

namespace tests {
namespace {

using namespace tintora;
using ::testing::ElementsAreArray;

wchar_t unit(unsigned int value) {
  return static_cast<wchar_t>(value);
}

struct Utf8Case {
  const char* name;
  std::wstring wide;
  std::string utf8;
};

class Utf8 : public ::testing::Test, public WithRow<Utf8Case> {};

TABLE(Units, Utf8, byName,
      {{"Nothing", L"", ""},
       {"Ascii", L"Tintora 2!", "Tintora 2!"},
       {"LastOfOneByte", {unit(0x7F)}, "\x7F"},
       {"FirstOfTwoBytes", {unit(0x80)}, "\xC2\x80"},
       {"Umlaut", {L'G', L'r', unit(0xFC), L'n'}, "Gr\xC3\xBCn"},
       {"LastOfTwoBytes", {unit(0x7FF)}, "\xDF\xBF"},
       {"FirstOfThreeBytes", {unit(0x800)}, "\xE0\xA0\x80"},
       {"LastOfThreeBytes", {unit(0xFFFF)}, "\xEF\xBF\xBF"},
       {"SurrogatePairAsTwoUnits", {unit(0xD83D), unit(0xDE00)}, "\xED\xA0\xBD\xED\xB8\x80"},
       {"NulInside", {L'a', L'\0', L'b'}, {'a', '\0', 'b'}}});

TABLE_TEST(Utf8, EncodesEachUnitAsACodePoint) {
  EXPECT_EQ(toUtf8(row().wide), row().utf8);
}

#ifndef _WIN32
// Units of wide text go further than 16 bits here.
TEST(Utf8, TakesFourBytesAboveTheFirstPlane) {
  EXPECT_EQ(toUtf8(std::wstring(1, unit(0x10000))), "\xF0\x90\x80\x80");
  EXPECT_EQ(toUtf8(std::wstring(1, unit(0x10FFFF))), "\xF4\x8F\xBF\xBF");
}

TEST(Utf8, RaisesAboveTheLastCodePoint) {
  EXPECT_THROW(toUtf8(std::wstring(1, unit(0x110000))), std::range_error);
}
#endif

TEST(AnsiText, BecomesWideAndBack) {
  for (const std::wstring& text : {std::wstring(), std::wstring(L"C:\\Add-ins\\Tintora.dll"),
                                   std::wstring{L'G', L'r', unit(0xFC), L'n'}, std::wstring(1000, L'x')}) {
    EXPECT_EQ(toWide(toAnsi(text)), text);
  }
}

TEST(AnsiText, KeepsAsciiByteForByte) {
  EXPECT_EQ(toWide("Tintora.dll"), L"Tintora.dll");
  EXPECT_EQ(toAnsi(L"Tintora.dll"), "Tintora.dll");
}

TEST(AnsiText, ShowsABlankForACharacterThatTheCodePageLacks) {
  EXPECT_EQ(toAnsi({L'a', unit(0xD800), L'z'}), "a z");
}

struct SplitCase {
  const char* name;
  std::string text;
  std::string delimiter;
  std::vector<std::string> pieces;
};

class Split : public ::testing::Test, public WithRow<SplitCase> {};

TABLE(Texts, Split, byName,
      {{"Empty", "", ";", {}},
       {"NoDelimiter", "abc", ";", {}},
       {"EndsWithDelimiter", "a;b;", ";", {"a", "b"}},
       {"LastPieceIsDropped", "a;b", ";", {"a"}},
       {"EmptyPieces", ";;a;;", ";", {"", "", "a", ""}},
       {"OnlyTheDelimiter", ";", ";", {""}},
       {"LongDelimiter", "a, b, c", ", ", {"a", "b"}},
       {"FromLeftToRight", "a---b--", "--", {"a", "-b"}},
       {"DelimiterLongerThanText", "a", "--", {}},
       {"NoDelimiterGiven", "abc", "", {}}});

TABLE_TEST(Split, GivesThePiecesThatEndAtADelimiter) {
  EXPECT_THAT(splitString(row().text, row().delimiter), ElementsAreArray(row().pieces));
}

struct NumberCase {
  const char* name;
  double number;
  const char* text;
};

class WholeNumber : public ::testing::Test, public WithRow<NumberCase> {};

TABLE(Numbers, WholeNumber, byName,
      {{"Fraction", 785.9, "785"},
       {"Zero", 0, "0"},
       {"ZeroWithASign", -0.0, "-0"},
       {"Whole", 7850, "7850"},
       {"Negative", -1, ""},
       {"BarelyNegative", -1e-9, ""},
       {"BarelyBelowOne", 0.99999999, "0"},
       {"BarelyBelowAThousand", 999.9999999, "999"},
       {"Large", 1234567890123.75, "1234567890123"},
       {"LargerThanAnyInteger", 1e20, "100000000000000000000"}});

TABLE_TEST(WholeNumber, IsRoundedDown) {
  EXPECT_EQ(formatWholeNumber(row().number), row().text);
}

class CommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(WholeNumber, IsTheSameInAnyLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
  const std::string text = formatWholeNumber(1234567.9);
  std::locale::global(before);
  EXPECT_EQ(text, "1234567");
}

TEST(Contains, FindsThePartAnywhereByteForByte) {
  EXPECT_TRUE(contains("my_RAL_COLORS_2", "RAL_COLORS"));
  EXPECT_TRUE(contains("anything", ""));
  EXPECT_FALSE(contains("ral_colors", "RAL_COLORS"));
  EXPECT_FALSE(contains("RAL", "RAL_COLORS"));
}

}  // namespace
}  // namespace tests
