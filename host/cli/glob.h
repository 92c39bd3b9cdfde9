// Patterns of texts, alike on every system.
#pragma once

#include <string_view>

namespace headless::cli {

/// True when the pattern matches the whole text. "*" stands for any text, also none, "?" for one character, "[ab]" and
/// "[a-c]" for one of these, "[!ab]" for any other; "\" takes the meaning from the next character. A bracket that is
/// not closed stands for itself. Characters are those of UTF-8.
bool matchesGlob(std::string_view pattern, std::string_view text);

}  // namespace headless::cli
