#include "host/cli/glob.h"
#include "tests/support/tables.h"

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

class Glob : public ::testing::Test, public tests::WithRow<Case> {};

TABLE(Patterns, Glob, tests::byNumber,
      {{"", "", true},
       {"", "a", false},
       {"abc", "abc", true},
       {"abc", "abcd", false},
       {"abcd", "abc", false},
       {"*", "", true},
       {"*", "a/b+c", true},
       {"a*c", "abbc", true},
       {"a*c", "abbcd", false},
       {"*ab*ab", "abcabab", true},
       {"*ab*ab*", "xabx", false},
       {"a**b", "ab", true},
       {"?", "", false},
       {"a?c", "abc", true},
       {"a?c", "ac", false},
       {"M?ller", "Müller", true},
       {"M??ller", "Müller", false},
       {"[ab]c", "bc", true},
       {"[ab]c", "cc", false},
       {"[a-c]", "b", true},
       {"[a-c]", "d", false},
       {"[a-]", "-", true},
       {"[äö]", "ö", true},
       {"[!ab]", "c", true},
       {"[^ab]", "a", false},
       {"[]a]", "]", true},
       {"[!]a]", "]", false},
       {"[\\]x]", "]", true},
       {"[ab", "[ab", true},
       {"[", "[", true},
       {"[ab", "a", false},
       {"\\*", "*", true},
       {"\\*", "a", false},
       {"\\[a]", "[a]", true},
       {"a\\", "a\\", true},
       {"[a]*[b]", "axxb", true}});

TABLE_TEST(Glob, MatchesTheWholeText) {
  EXPECT_EQ(matchesGlob(row().pattern, row().text), row().isMatch)
      << "\"" << row().pattern << "\" for \"" << row().text << "\"";
}

TEST(GlobTime, ManyStarsTakeNoLongTime) {
  const std::string text(5000, 'a');
  EXPECT_FALSE(matchesGlob("*a*a*a*a*a*a*a*a*a*a*a*a*b", text));
}

}  // namespace
}  // namespace headless::cli
