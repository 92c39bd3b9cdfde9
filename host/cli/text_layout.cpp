#include "host/cli/text_layout.h"

#include <algorithm>

#include "host/libraries/suggestions.h"

namespace headless::cli {

namespace {

constexpr const char* ellipsis = "…";

bool startsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// Bytes of the first `columns` characters.
std::size_t bytesOf(std::string_view text, std::size_t columns) {
  std::size_t position = 0;
  for (; position < text.size(); ++position) {
    if (startsCharacter(text[position]) && columns-- == 0) {
      break;
    }
  }
  return position;
}

void wrapLine(std::string_view line, std::size_t columns, std::vector<std::string>& lines) {
  while (widthOf(line) > columns) {
    const std::size_t limit = bytesOf(line, columns);
    const std::size_t blank = line.rfind(' ', limit);
    const bool hasBlank = blank != std::string_view::npos && blank > 0;
    lines.emplace_back(line.substr(0, hasBlank ? blank : limit));
    line.remove_prefix(hasBlank ? blank + 1 : limit);
  }
  lines.emplace_back(line);
}

}  // namespace

std::size_t widthOf(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

std::string clipped(std::string_view text, std::size_t columns) {
  if (widthOf(text) <= columns) {
    return std::string(text);
  }
  return columns == 0 ? std::string() : std::string(text.substr(0, bytesOf(text, columns - 1))) + ellipsis;
}

std::string clippedAtStart(std::string_view text, std::size_t columns) {
  const std::size_t width = widthOf(text);
  if (width <= columns) {
    return std::string(text);
  }
  return columns == 0 ? std::string() : ellipsis + std::string(text.substr(bytesOf(text, width - columns + 1)));
}

std::string padded(std::string text, std::size_t columns) {
  const std::size_t width = widthOf(text);
  if (width < columns) {
    text.append(columns - width, ' ');
  }
  return text;
}

std::vector<std::string> wrapped(std::string_view text, std::size_t columns) {
  std::vector<std::string> lines;
  for (;;) {
    const std::size_t lineBreak = text.find('\n');
    wrapLine(text.substr(0, lineBreak), columns, lines);
    if (lineBreak == std::string_view::npos) {
      return lines;
    }
    text.remove_prefix(lineBreak + 1);
  }
}

std::string counted(std::size_t count, const std::string& singular, const std::string& plural) {
  const std::string several = plural.empty() ? singular + "s" : plural;
  return std::to_string(count) + " " + (count == 1 ? singular : several);
}

std::string rangesOf(const std::vector<int>& numbers) {
  std::string text;
  for (std::size_t first = 0; first < numbers.size();) {
    std::size_t last = first;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) {
      ++last;
    }
    text.append(text.empty() ? "" : ",").append(std::to_string(numbers[first]));
    if (last > first) {
      text.append("-").append(std::to_string(numbers[last]));
    }
    first = last + 1;
  }
  return text;
}

std::string listed(const std::vector<std::string>& texts, std::size_t atMost) {
  std::string list;
  for (std::size_t i = 0; i < std::min(atMost, texts.size()); ++i) {
    list.append(i == 0 ? "" : ", ").append(texts[i]);
  }
  return texts.size() <= atMost ? list : list + " and " + std::to_string(texts.size() - atMost) + " more";
}

std::string choiceOf(const std::vector<std::string>& texts) {
  std::string question;
  for (const std::string& text : texts) {
    question.append(question.empty() ? "; did you mean \"" : " or \"").append(text).append("\"");
  }
  return question.empty() ? question : question + "?";
}

std::string didYouMean(const std::string& wanted, const std::vector<std::string>& names) {
  return choiceOf(libraries::nearestNames(wanted, names));
}

std::string swatch(const model::Colour& colour) {
  return "\x1b[48;2;" + std::to_string(colour.red) + ";" + std::to_string(colour.green) + ";" +
         std::to_string(colour.blue) + "m  \x1b[0m";
}

}  // namespace headless::cli
