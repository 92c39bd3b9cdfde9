#include "host/libraries/suggestions.h"

#include <algorithm>
#include <tuple>
#include <unordered_set>

namespace headless::libraries {

namespace {

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') {
      c = static_cast<char>(c - 'A' + 'a');
    }
  }
  return lower;
}

struct Distance {
  /// Slips between the whole texts.
  std::size_t whole = 0;
  /// Slips between `wanted` and the part of the other text that is most like it.
  std::size_t inside = 0;
};

enum class Start { OfText, Anywhere };

/// Insertions, deletions, replacements and swaps of neighbours that turn `wanted` into each beginning of `text` (or
/// into the end of each beginning, with Start::Anywhere). The table is kept three rows at a time.
std::vector<std::size_t> slips(std::string_view wanted, std::string_view text, Start start) {
  std::vector<std::size_t> beforeLast(text.size() + 1);
  std::vector<std::size_t> last(text.size() + 1);
  std::vector<std::size_t> row(text.size() + 1);
  for (std::size_t j = 0; j <= text.size(); ++j) {
    row[j] = start == Start::Anywhere ? 0 : j;
  }
  for (std::size_t i = 1; i <= wanted.size(); ++i) {
    beforeLast.swap(last);
    last.swap(row);
    row[0] = i;
    for (std::size_t j = 1; j <= text.size(); ++j) {
      const bool same = wanted[i - 1] == text[j - 1];
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && wanted[i - 1] == text[j - 2] && wanted[i - 2] == text[j - 1];
      if (swapped) {
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
      }
    }
  }
  return row;
}

Distance distanceBetween(std::string_view wanted, std::string_view text) {
  const auto inside = slips(wanted, text, Start::Anywhere);
  return {slips(wanted, text, Start::OfText).back(), *std::min_element(inside.begin(), inside.end())};
}

}  // namespace

std::vector<std::string> nearestNames(std::string_view wanted, const std::vector<std::string>& names,
                                      std::size_t atMost) {
  // One slip in three characters: more, and everything looks alike.
  const std::size_t tolerated = std::max<std::size_t>(1, wanted.size() / 3);
  // In less than three characters anything can be found anywhere.
  const bool mayBeInside = wanted.size() >= 3;
  using Candidate = std::tuple<std::size_t, std::size_t, const std::string*>;
  std::vector<Candidate> candidates;
  std::unordered_set<std::string_view> seen;
  const std::string lowerWanted = lowerCase(wanted);
  for (const auto& name : names) {
    const Distance distance = distanceBetween(lowerWanted, lowerCase(name));
    // A part of a name is a weaker hint than the whole.
    const std::size_t slip = mayBeInside ? std::min(distance.whole, distance.inside + 1) : distance.whole;
    const bool isNear = slip <= tolerated || (mayBeInside && distance.inside == 0);
    if (!wanted.empty() && isNear && seen.insert(name).second) {
      candidates.emplace_back(slip, distance.whole, &name);
    }
  }
  std::stable_sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
    return std::tie(std::get<0>(a), std::get<1>(a)) < std::tie(std::get<0>(b), std::get<1>(b));
  });
  std::vector<std::string> nearest;
  for (std::size_t i = 0; i < std::min(atMost, candidates.size()); ++i) {
    nearest.push_back(*std::get<2>(candidates[i]));
  }
  return nearest;
}

}  // namespace headless::libraries
