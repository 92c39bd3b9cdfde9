#include "host/cli/help_formatter.h"

#include <sstream>

#include "host/cli/text_layout.h"

namespace headless::cli {

namespace {

constexpr std::size_t lineColumns = 90;

}  // namespace

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  std::ostringstream line;
  CLI::detail::format_help(line, command->get_name(), inColumn(command->get_description()), get_column_width());
  return line.str();
}

// Of the type only its word: what it may be is in the description.
std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
  if (option->get_positional() || option->get_type_size() == 0) {
    return "";
  }
  const std::string type = option->get_type_name();
  const bool takesSeveral = option->get_expected_max() > 1;
  return " " + type.substr(0, type.find(':')) + (takesSeveral ? "..." : "");
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  const bool isMissed = option->get_required() && !option->get_positional();
  return inColumn(option->get_description() + (isMissed ? " (required)" : ""));
}

std::string HelpFormatter::inColumn(const std::string& description) const {
  std::string text;
  for (const std::string& line : wrapped(description, lineColumns - get_column_width())) {
    text.append(text.empty() ? "" : "\n").append(line);
  }
  return text;
}

}  // namespace headless::cli
