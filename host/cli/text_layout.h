// Texts in columns, as a terminal shows them: one column for each character of UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/materials.h"

namespace headless::cli {

/// Columns that the text takes.
std::size_t widthOf(std::string_view text);

/// The text, cut to that many columns; the last one is "…" when something is missing.
std::string clipped(std::string_view text, std::size_t columns);

/// The same with the beginning cut off, for paths, whose end says more.
std::string clippedAtStart(std::string_view text, std::size_t columns);

/// The text, filled with blanks up to that many columns.
std::string padded(std::string text, std::size_t columns);

/// The text in lines of at most that many columns, broken at blanks where there are some, and at its own line breaks.
std::vector<std::string> wrapped(std::string_view text, std::size_t columns);

/// "4 bodies", "1 body". `plural` is given for words that do more than take an "s".
std::string counted(std::size_t count, const std::string& singular, const std::string& plural = {});

/// Rising numbers as ranges: "1-3,7".
std::string rangesOf(const std::vector<int>& numbers);

/// The texts, separated by commas; beyond `atMost` only counted: "A, B and 7 more".
std::string listed(const std::vector<std::string>& texts, std::size_t atMost);

/// "; did you mean "A" or "B"?"; empty when there is nothing to choose from.
std::string choiceOf(const std::vector<std::string>& texts);

/// The choice of the names nearest to `wanted`; empty when none is near.
std::string didYouMean(const std::string& wanted, const std::vector<std::string>& names);

/// Two columns in that colour for a terminal.
std::string swatch(const model::Colour& colour);

}  // namespace headless::cli
