#include "host/cli/svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace headless::cli {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::vector<std::string> wrappedTexts(const std::vector<TextRun>& runs, double pixels) {
  std::vector<std::string> texts;
  for (const auto& line : wrappedRuns(runs, pixels, 10)) {
    std::string text;
    for (const TextRun& run : line) {
      text += run.text;
    }
    texts.push_back(text);
  }
  return texts;
}

TEST(Svg, WhatMeansSomethingInXmlIsEscaped) {
  EXPECT_EQ(escapedXml("bodies & faces <b>\"x\"</b>"), "bodies &amp; faces &lt;b&gt;&quot;x&quot;&lt;/b&gt;");
  EXPECT_EQ(escapedXml("grün"), "grün");
}

TEST(Svg, CharactersThatXmlCannotHoldAreLeftOut) {
  EXPECT_EQ(escapedXml(std::string("a\x01\x1b") + "b\tc"), "ab\tc");
}

TEST(Svg, WiderTextsAreMeasuredWider) {
  EXPECT_GT(textWidth("MMM", 10), textWidth("iii", 10) * 2);
  EXPECT_GT(textWidth("MMM", 10, true), textWidth("MMM", 10));
  EXPECT_DOUBLE_EQ(textWidth("MMM", 20), textWidth("MMM", 10) * 2);
  EXPECT_DOUBLE_EQ(textWidth("ä", 10), textWidth("ö", 10));
  EXPECT_EQ(textWidth("", 10), 0);
}

TEST(Svg, ATextThatFitsIsNotCut) {
  EXPECT_EQ(clippedToWidth("RAL 3000", textWidth("RAL 3000", 12), 12), "RAL 3000");
}

TEST(Svg, ATextThatDoesNotFitIsCutToTheWidth) {
  const std::string cut = clippedToWidth("RAL 3000 Flame red", 60, 12);
  EXPECT_THAT(cut, ::testing::StartsWith("RAL 3"));
  EXPECT_THAT(cut, ::testing::EndsWith("…"));
  EXPECT_LE(textWidth(cut, 12), 60);
}

TEST(Svg, LinesAreBrokenAtBlanksAndAtLineBreaks) {
  const double pixels = textWidth("some words ", 10) + 1;
  EXPECT_THAT(wrappedTexts({TextRun{"some words more words\nend"}}, pixels),
              ElementsAre("some words ", "more words", "end"));
}

TEST(Svg, AWordInSeveralStylesIsNotBroken) {
  const double pixels = textWidth("one kg.m-3", 10);
  EXPECT_THAT(wrappedTexts({TextRun{"one two kg.m"}, TextRun{"-3", false, true}}, pixels),
              ElementsAre("one two ", "kg.m-3"));
}

TEST(Svg, AnEmptyTextIsOneEmptyLine) {
  EXPECT_THAT(wrappedRuns({}, 100, 10), ElementsAre(IsEmpty()));
}

TEST(Svg, PiecesOfALineKeepTheirStyles) {
  Svg svg;
  svg.text(1, 2, {TextRun{"a", true, false}, TextRun{"2", false, true}, TextRun{"b"}}, {10});
  EXPECT_THAT(svg.document(10, 10, "x"),
              HasSubstr("<tspan font-weight=\"bold\">a</tspan><tspan dy=\"-3.5\" font-size=\"7\">2</tspan>"
                        "<tspan dy=\"3.5\">b</tspan>"));
}

TEST(Svg, OnlyWhatIsDisabledIsMarked) {
  Svg svg;
  svg.openGroup("On & on");
  svg.closeGroup();
  EXPECT_THAT(svg.document(10, 10, "x"), Not(HasSubstr("aria-disabled")));
  EXPECT_THAT(svg.document(10, 10, "x"), HasSubstr("<title>On &amp; on</title>"));
  svg.openGroup("Off", true);
  svg.closeGroup();
  EXPECT_THAT(svg.document(10, 10, "x"), HasSubstr("aria-disabled=\"true\"><title>Off</title>"));
}

}  // namespace
}  // namespace headless::cli
