#include "host/ui/markup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tests {
namespace {

struct MarkupCase {
  std::string formatted;
  std::string shown;
};

void PrintTo(const MarkupCase& markup, std::ostream* stream) {
  *stream << markup.formatted;
}

class Markup : public testing::TestWithParam<MarkupCase> {};

TEST_P(Markup, IsShownAs) {
  EXPECT_EQ(headless::withoutMarkup(GetParam().formatted), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Markup,
    testing::Values(MarkupCase{"", ""}, MarkupCase{"plain", "plain"}, MarkupCase{"<b>bold</b>", "bold"},
                    MarkupCase{"<b>never closed", "never closed"}, MarkupCase{"kg.m<sup>-3</sup>", "kg.m-3"},
                    MarkupCase{"one<br />two<br>three<br/>four", "one\ntwo\nthree\nfour"},
                    MarkupCase{"<a href=\"page\">link</a>", "link"}, MarkupCase{"<div align=\"center\">a</div>", "a"},
                    MarkupCase{"a < b", "a < b"}, MarkupCase{"a <", "a <"}, MarkupCase{"a <b", "a <b"},
                    MarkupCase{"1<2>3", "1<2>3"}, MarkupCase{"a > b", "a > b"},
                    MarkupCase{"<b><i>both</i></b>", "both"}, MarkupCase{"gr\xC3\xBCn", "gr\xC3\xBCn"}));

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
