#include "host/ui/markup.h"

#include <cctype>
#include <utility>

namespace headless {

namespace {

bool opensTag(const std::string& text, std::size_t position) {
  if (position + 1 >= text.size()) {
    return false;
  }
  const auto next = static_cast<unsigned char>(text[position + 1]);
  return next == '/' || std::isalpha(next) != 0;
}

/// The name of a tag, with the "/" of a closing one: "<br />" is "br", "</b>" is "/b".
std::string tagName(const std::string& text, std::size_t position) {
  std::string name;
  for (std::size_t i = position + 1; i < text.size(); ++i) {
    const bool isSlashInFront = text[i] == '/' && name.empty();
    if (!isSlashInFront && std::isalpha(static_cast<unsigned char>(text[i])) == 0) {
      break;
    }
    name += text[i];
  }
  return name;
}

/// Puts pieces together, characters of one style into one piece.
class RunCollector {
 public:
  void add(char character) {
    if (runs.empty() || runs.back().isBold != isBold || runs.back().isSuperscript != isSuperscript) {
      runs.push_back({"", isBold, isSuperscript});
    }
    runs.back().text += character;
  }

  void obey(const std::string& tag) {
    if (tag == "b" || tag == "/b") {
      isBold = tag == "b";
    } else if (tag == "sup" || tag == "/sup") {
      isSuperscript = tag == "sup";
    } else if (tag == "br") {
      add('\n');
    }
  }

  std::vector<TextRun> runs;

 private:
  bool isBold = false;
  bool isSuperscript = false;
};

}  // namespace

std::vector<TextRun> textRuns(const std::string& formatted) {
  RunCollector collector;
  for (std::size_t i = 0; i < formatted.size(); ++i) {
    const std::size_t end = formatted[i] == '<' && opensTag(formatted, i) ? formatted.find('>', i) : std::string::npos;
    if (end == std::string::npos) {
      collector.add(formatted[i]);
      continue;
    }
    collector.obey(tagName(formatted, i));
    i = end;
  }
  return std::move(collector.runs);
}

std::string withoutMarkup(const std::string& formatted) {
  std::string shown;
  for (const TextRun& run : textRuns(formatted)) {
    shown += run.text;
  }
  return shown;
}

}  // namespace headless
