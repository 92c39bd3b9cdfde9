#include "host/ui/markup.h"

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

}  // namespace
}  // namespace tests
