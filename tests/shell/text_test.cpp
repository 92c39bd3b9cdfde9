#include "shell/text.h"

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
  const char* description;
  std::wstring wide;
  std::string utf8;
};

class Utf8 : public ::testing::TestWithParam<Utf8Case> {};

TEST_P(Utf8, EncodesEachUnitAsACodePoint) {
  EXPECT_EQ(toUtf8(GetParam().wide), GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(
    Units, Utf8,
    ::testing::Values(Utf8Case{"Nothing", L"", ""}, Utf8Case{"Ascii", L"Tintora 2!", "Tintora 2!"},
                      Utf8Case{"LastOfOneByte", {unit(0x7F)}, "\x7F"},
                      Utf8Case{"FirstOfTwoBytes", {unit(0x80)}, "\xC2\x80"},
                      Utf8Case{"Umlaut", {L'G', L'r', unit(0xFC), L'n'}, "Gr\xC3\xBCn"},
                      Utf8Case{"LastOfTwoBytes", {unit(0x7FF)}, "\xDF\xBF"},
                      Utf8Case{"FirstOfThreeBytes", {unit(0x800)}, "\xE0\xA0\x80"},
                      Utf8Case{"LastOfThreeBytes", {unit(0xFFFF)}, "\xEF\xBF\xBF"},
                      Utf8Case{"SurrogatePairAsTwoUnits", {unit(0xD83D), unit(0xDE00)}, "\xED\xA0\xBD\xED\xB8\x80"},
                      Utf8Case{"NulInside", {L'a', L'\0', L'b'}, {'a', '\0', 'b'}}),
    [](const auto& info) { return std::string(info.param.description); });

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
  const char* description;
  std::string text;
  std::string delimiter;
  std::vector<std::string> pieces;
};

class Split : public ::testing::TestWithParam<SplitCase> {};

TEST_P(Split, GivesThePiecesThatEndAtADelimiter) {
  EXPECT_THAT(splitString(GetParam().text, GetParam().delimiter), ElementsAreArray(GetParam().pieces));
}

INSTANTIATE_TEST_SUITE_P(Texts, Split,
                         ::testing::Values(SplitCase{"Empty", "", ";", {}}, SplitCase{"NoDelimiter", "abc", ";", {}},
                                           SplitCase{"EndsWithDelimiter", "a;b;", ";", {"a", "b"}},
                                           SplitCase{"LastPieceIsDropped", "a;b", ";", {"a"}},
                                           SplitCase{"EmptyPieces", ";;a;;", ";", {"", "", "a", ""}},
                                           SplitCase{"OnlyTheDelimiter", ";", ";", {""}},
                                           SplitCase{"LongDelimiter", "a, b, c", ", ", {"a", "b"}},
                                           SplitCase{"FromLeftToRight", "a---b--", "--", {"a", "-b"}},
                                           SplitCase{"DelimiterLongerThanText", "a", "--", {}},
                                           SplitCase{"NoDelimiterGiven", "abc", "", {}}),
                         [](const auto& info) { return std::string(info.param.description); });

struct NumberCase {
  const char* description;
  double number;
  const char* text;
};

class WholeNumber : public ::testing::TestWithParam<NumberCase> {};

TEST_P(WholeNumber, IsRoundedDown) {
  EXPECT_EQ(formatWholeNumber(GetParam().number), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Numbers, WholeNumber,
                         ::testing::Values(NumberCase{"Fraction", 785.9, "785"}, NumberCase{"Zero", 0, "0"},
                                           NumberCase{"ZeroWithASign", -0.0, "-0"}, NumberCase{"Whole", 7850, "7850"},
                                           NumberCase{"Negative", -1, ""}, NumberCase{"BarelyNegative", -1e-9, ""},
                                           NumberCase{"BarelyBelowOne", 0.99999999, "0"},
                                           NumberCase{"BarelyBelowAThousand", 999.9999999, "999"},
                                           NumberCase{"Large", 1234567890123.75, "1234567890123"},
                                           NumberCase{"LargerThanAnyInteger", 1e20, "100000000000000000000"}),
                         [](const auto& info) { return std::string(info.param.description); });

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
