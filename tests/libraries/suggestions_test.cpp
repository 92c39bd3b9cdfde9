// The nearest names for one that was misspelt.
#include "host/libraries/suggestions.h"

#include <gtest/gtest.h>

namespace headless::libraries {
namespace {

using Names = std::vector<std::string>;

TEST(NearestNames, FindsWhatWasMeant) {
  const Names names = {"RAL 3000 Flame red",
                       "RAL 3001 Signal red",
                       "RAL 3002 Carmine red",
                       "RAL 5002 Ultramarine blue",
                       "Brass",
                       "Bronze",
                       "l-bracket",
                       "bolt",
                       "nut",
                       "Steel AISI 304"};
  struct Case {
    const char* wanted;
    Names expected;
  };
  const Case cases[] = {
      {"RAL 3000 Flame rde", {"RAL 3000 Flame red"}},
      {"ral 3000 flame red", {"RAL 3000 Flame red"}},
      {"RAL 3000", {"RAL 3000 Flame red", "RAL 3001 Signal red", "RAL 3002 Carmine red"}},
      {"flmae red", {"RAL 3000 Flame red"}},
      {"ultramarine", {"RAL 5002 Ultramarine blue"}},
      {"Bras", {"Brass"}},
      {"Barss", {"Brass"}},
      {"lbracket", {"l-bracket"}},
      {"blot", {"bolt"}},
      {"NUT", {"nut"}},
      {"nt", {"nut"}},
      {"AISI 304L", {"Steel AISI 304"}},
      {"zzzzzz", {}},
      {"completely different words", {}},
      {"", {}},
  };
  for (const auto& [wanted, expected] : cases) {
    const Names found = nearestNames(wanted, names);
    ASSERT_GE(found.size(), expected.empty() ? 0u : 1u) << wanted;
    EXPECT_EQ(
        Names(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(std::min(found.size(), expected.size()))),
        expected)
        << wanted;
    EXPECT_EQ(found.empty(), expected.empty()) << wanted;
    EXPECT_LE(found.size(), 3u) << wanted;
  }
}

TEST(NearestNames, ASwapIsOneSlipAndBetterThanTwo) {
  EXPECT_EQ(nearestNames("stele pin", {"stall pin", "steel pin"}), (Names{"steel pin", "stall pin"}));
}

TEST(NearestNames, KeepsTheOrderOfNamesThatAreEquallyNear) {
  EXPECT_EQ(nearestNames("part4", {"part3", "part1", "part2", "part5"}), (Names{"part3", "part1", "part2"}));
  EXPECT_EQ(nearestNames("part4", {"part3", "part1", "part2"}, 1), Names{"part3"});
}

TEST(NearestNames, GivesEqualNamesOnce) {
  EXPECT_EQ(nearestNames("bot", {"bolt", "bolt"}), Names{"bolt"});
}

}  // namespace
}  // namespace headless::libraries
