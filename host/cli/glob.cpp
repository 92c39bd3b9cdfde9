#include "host/cli/glob.h"

#include <cstddef>
#include <optional>

namespace headless::cli {

namespace {

/// The first character of a text that is not empty. Characters compare like their numbers.
std::string_view firstOf(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
    ++length;
  }
  return text.substr(0, length);
}

/// How much of the pattern stands for one character, and whether it stands for the one in question.
struct Step {
  std::size_t length;
  bool accepts;
};

/// Takes a character from the pattern, with the meaning taken from it if there is a "\" before it.
std::string_view takeCharacter(std::string_view& pattern) {
  if (pattern.front() == '\\' && pattern.size() > 1) {
    pattern.remove_prefix(1);
  }
  const std::string_view character = firstOf(pattern);
  pattern.remove_prefix(character.size());
  return character;
}

/// A pattern that begins with a bracket; empty when it is not closed.
std::optional<Step> stepOfSet(std::string_view pattern, std::string_view character) {
  std::string_view rest = pattern.substr(1);
  const bool isNegated = !rest.empty() && (rest.front() == '!' || rest.front() == '^');
  rest.remove_prefix(isNegated ? 1 : 0);
  bool isListed = false;
  // A closing bracket in the first place is one of the characters.
  for (bool isFirst = true; !rest.empty() && (isFirst || rest.front() != ']'); isFirst = false) {
    const std::string_view from = takeCharacter(rest);
    std::string_view to = from;
    if (rest.size() > 1 && rest[0] == '-' && rest[1] != ']') {
      rest.remove_prefix(1);
      to = takeCharacter(rest);
    }
    isListed = isListed || (from <= character && character <= to);
  }
  if (rest.empty()) {
    return std::nullopt;
  }
  return Step{pattern.size() - rest.size() + 1, isListed != isNegated};
}

Step stepOf(std::string_view pattern, std::string_view character) {
  if (pattern.front() == '?') {
    return {1, true};
  }
  if (pattern.front() == '[') {
    if (const auto set = stepOfSet(pattern, character)) {
      return *set;
    }
  }
  std::string_view rest = pattern;
  const bool isSame = takeCharacter(rest) == character;
  return {pattern.size() - rest.size(), isSame};
}

}  // namespace

bool matchesGlob(std::string_view pattern, std::string_view text) {
  // Where the last "*" was met; what it stands for grows until the rest fits.
  bool hasStar = false;
  std::string_view patternBehindStar;
  std::string_view textBehindStar;
  for (;;) {
    if (!pattern.empty() && pattern.front() == '*') {
      pattern.remove_prefix(1);
      hasStar = true;
      patternBehindStar = pattern;
      textBehindStar = text;
      continue;
    }
    if (pattern.empty() && text.empty()) {
      return true;
    }
    if (!pattern.empty() && !text.empty()) {
      const std::string_view character = firstOf(text);
      const Step step = stepOf(pattern, character);
      if (step.accepts) {
        pattern.remove_prefix(step.length);
        text.remove_prefix(character.size());
        continue;
      }
    }
    if (!hasStar || textBehindStar.empty()) {
      return false;
    }
    textBehindStar.remove_prefix(firstOf(textBehindStar).size());
    pattern = patternBehindStar;
    text = textBehindStar;
  }
}

}  // namespace headless::cli
