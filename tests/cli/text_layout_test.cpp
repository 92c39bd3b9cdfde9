#include "host/cli/text_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace headless::cli {
namespace {

using ::testing::ElementsAre;

TEST(TextLayout, WidthCountsCharactersAndNotBytes) {
  EXPECT_EQ(widthOf(""), 0U);
  EXPECT_EQ(widthOf("Müller"), 6U);
  EXPECT_EQ(widthOf("×…"), 2U);
}

TEST(TextLayout, ClippingKeepsWholeCharacters) {
  EXPECT_EQ(clipped("Müller", 6), "Müller");
  EXPECT_EQ(clipped("Müller", 3), "Mü…");
  EXPECT_EQ(clipped("Müller", 0), "");
  EXPECT_EQ(clippedAtStart("Müller", 6), "Müller");
  EXPECT_EQ(clippedAtStart("Füller", 6), "Füller");
  EXPECT_EQ(clippedAtStart("xFüller", 6), "…üller");
}

TEST(TextLayout, PaddingFillsUpAndNeverCuts) {
  EXPECT_EQ(padded("ü", 3), "ü  ");
  EXPECT_EQ(padded("abc", 2), "abc");
}

TEST(TextLayout, WrappingBreaksAtBlanksAndLongWordsAnywhere) {
  EXPECT_THAT(wrapped("one two three", 8), ElementsAre("one two", "three"));
  EXPECT_THAT(wrapped("one two", 7), ElementsAre("one two"));
  EXPECT_THAT(wrapped("abcdefgh", 3), ElementsAre("abc", "def", "gh"));
  EXPECT_THAT(wrapped("a\nb", 5), ElementsAre("a", "b"));
  EXPECT_THAT(wrapped("", 5), ElementsAre(""));
}

TEST(TextLayout, CountsAgreeWithTheirWords) {
  EXPECT_EQ(counted(1, "body", "bodies"), "1 body");
  EXPECT_EQ(counted(2, "body", "bodies"), "2 bodies");
  EXPECT_EQ(counted(0, "face"), "0 faces");
}

TEST(TextLayout, RangesJoinNeighbours) {
  EXPECT_EQ(rangesOf({}), "");
  EXPECT_EQ(rangesOf({4}), "4");
  EXPECT_EQ(rangesOf({1, 2, 3, 7, 9, 10}), "1-3,7,9-10");
}

TEST(TextLayout, ListsAreCutShort) {
  EXPECT_EQ(listed({"a", "b"}, 2), "a, b");
  EXPECT_EQ(listed({"a", "b", "c", "d"}, 2), "a, b and 2 more");
}

TEST(TextLayout, NearNamesAreAskedFor) {
  EXPECT_EQ(didYouMean("tre", {"tree", "dialog"}), "; did you mean \"tree\"?");
  EXPECT_EQ(didYouMean("xyzzy", {"tree", "dialog"}), "");
}

}  // namespace
}  // namespace headless::cli
