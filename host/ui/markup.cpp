#include "host/ui/markup.h"

#include <cctype>

namespace headless {

namespace {

bool opensTag(const std::string& text, std::size_t position) {
  if (position + 1 >= text.size()) {
    return false;
  }
  const auto next = static_cast<unsigned char>(text[position + 1]);
  return next == '/' || std::isalpha(next) != 0;
}

}  // namespace

std::string withoutMarkup(const std::string& formatted) {
  std::string shown;
  for (std::size_t i = 0; i < formatted.size(); ++i) {
    const std::size_t end = formatted[i] == '<' && opensTag(formatted, i) ? formatted.find('>', i) : std::string::npos;
    if (end == std::string::npos) {
      shown += formatted[i];
      continue;
    }
    if (formatted.compare(i, 3, "<br") == 0) {
      shown += '\n';
    }
    i = end;
  }
  return shown;
}

}  // namespace headless
