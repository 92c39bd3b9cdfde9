#include "host/cli/glob.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace headless::cli {
namespace {

struct Case {
  const char* pattern;
  const char* text;
  bool isMatch;
};

std::ostream& operator<<(std::ostream& stream, const Case& each) {
  return stream << each.pattern << " and " << each.text;
}

class Glob : public ::testing::TestWithParam<Case> {};

TEST_P(Glob, MatchesTheWholeText) {
  EXPECT_EQ(matchesGlob(GetParam().pattern, GetParam().text), GetParam().isMatch);
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, Glob,
    ::testing::Values(Case{"", "", true}, Case{"", "a", false}, Case{"abc", "abc", true}, Case{"abc", "abcd", false},
                      Case{"abcd", "abc", false}, Case{"*", "", true}, Case{"*", "a/b+c", true},
                      Case{"a*c", "abbc", true}, Case{"a*c", "abbcd", false}, Case{"*ab*ab", "abcabab", true},
                      Case{"*ab*ab*", "xabx", false}, Case{"a**b", "ab", true}, Case{"?", "", false},
                      Case{"a?c", "abc", true}, Case{"a?c", "ac", false}, Case{"M?ller", "Müller", true},
                      Case{"M??ller", "Müller", false}, Case{"[ab]c", "bc", true}, Case{"[ab]c", "cc", false},
                      Case{"[a-c]", "b", true}, Case{"[a-c]", "d", false}, Case{"[a-]", "-", true},
                      Case{"[äö]", "ö", true}, Case{"[!ab]", "c", true}, Case{"[^ab]", "a", false},
                      Case{"[]a]", "]", true}, Case{"[!]a]", "]", false}, Case{"[\\]x]", "]", true},
                      Case{"[ab", "[ab", true}, Case{"[", "[", true}, Case{"[ab", "a", false}, Case{"\\*", "*", true},
                      Case{"\\*", "a", false}, Case{"\\[a]", "[a]", true}, Case{"a\\", "a\\", true},
                      Case{"[a]*[b]", "axxb", true}));

TEST(GlobTime, ManyStarsTakeNoLongTime) {
  const std::string text(5000, 'a');
  EXPECT_FALSE(matchesGlob("*a*a*a*a*a*a*a*a*a*a*a*a*b", text));
}

}  // namespace
}  // namespace headless::cli
