// The look of --help: descriptions wrapped beside their options, and no more than a reader needs.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace headless::cli {

class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_subcommand(const CLI::App* command) const override;
  std::string make_option_opts(const CLI::Option* option) const override;
  std::string make_option_desc(const CLI::Option* option) const override;

 private:
  std::string inColumn(const std::string& description) const;
};

}  // namespace headless::cli
