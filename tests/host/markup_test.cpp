#include "host/ui/markup.h"
#include "tests/support/tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tests {
namespace {

struct MarkupCase {
  std::string formatted;
  std::string shown;
};

class Markup : public testing::Test, public WithRow<MarkupCase> {};

TABLE(Texts, Markup, byNumber,
      {{"", ""},
       {"plain", "plain"},
       {"<b>bold</b>", "bold"},
       {"<b>never closed", "never closed"},
       {"kg.m<sup>-3</sup>", "kg.m-3"},
       {"one<br />two<br>three<br/>four", "one\ntwo\nthree\nfour"},
       {"<a href=\"page\">link</a>", "link"},
       {"<div align=\"center\">a</div>", "a"},
       {"a < b", "a < b"},
       {"a <", "a <"},
       {"a <b", "a <b"},
       {"1<2>3", "1<2>3"},
       {"a > b", "a > b"},
       {"<b><i>both</i></b>", "both"},
       {"gr\xC3\xBCn", "gr\xC3\xBCn"}});

TABLE_TEST(Markup, IsShownAs) {
  EXPECT_EQ(headless::withoutMarkup(row().formatted), row().shown) << row().formatted;
}

using headless::textRuns;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

MATCHER_P3(Piece, text, isBold, isSuperscript, "") {
  return arg.text == text && arg.isBold == isBold && arg.isSuperscript == isSuperscript;
}

TEST(MarkupRuns, BoldAndSuperscriptArePiecesOfTheirOwn) {
  EXPECT_THAT(textRuns("Is <b>Steel</b>;  7850 kg.m<sup>-3</sup>!"),
              ElementsAre(Piece("Is ", false, false), Piece("Steel", true, false), Piece(";  7850 kg.m", false, false),
                          Piece("-3", false, true), Piece("!", false, false)));
}

TEST(MarkupRuns, AStyleThatIsNeverClosedLastsToTheEnd) {
  EXPECT_THAT(textRuns("Is <b>various"), ElementsAre(Piece("Is ", false, false), Piece("various", true, false)));
}

TEST(MarkupRuns, StylesAreNested) {
  EXPECT_THAT(textRuns("<b>m<sup>2</sup></b>"), ElementsAre(Piece("m", true, false), Piece("2", true, true)));
}

TEST(MarkupRuns, EmptyTextHasNoPieces) {
  EXPECT_THAT(textRuns(""), IsEmpty());
  EXPECT_THAT(textRuns("<b></b>"), IsEmpty());
}

TEST(MarkupRuns, LineBreaksAndOtherTagsDoNotSplitAPiece) {
  EXPECT_THAT(textRuns("one<br />two <i>three</i> 1 < 2"), ElementsAre(Piece("one\ntwo three 1 < 2", false, false)));
}

}  // namespace
}  // namespace tests
