// The simple markup of formatted texts.
#pragma once

#include <string>
#include <vector>

namespace headless {

/// A piece of a formatted text, all of it in one style. A line break is "\n".
struct TextRun {
  std::string text;
  bool isBold = false;
  bool isSuperscript = false;
};

/// The text in pieces, none of them empty: "<b>" and "<sup>" change the style until they are closed or the text ends,
/// "<br />" is a line break, other tags are dropped; an opening bracket that no tag follows stays.
std::vector<TextRun> textRuns(const std::string& formatted);

/// The text as it is shown: tags are dropped, "<br />" is a line break; an opening bracket that no tag follows stays.
std::string withoutMarkup(const std::string& formatted);

}  // namespace headless
