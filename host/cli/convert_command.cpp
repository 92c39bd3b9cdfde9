// The sub-command convert: an assembly as a file of another kind, as it is.
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/options.h"

namespace headless::cli {

namespace {

struct ConvertOptions {
  std::filesystem::path file;
  OutputFiles outputs;
  SittingOptions sitting;
};

void runConvert(const ConvertOptions& options) {
  checkOutputs(options.file, options.outputs, {}, "OUT");
  // As every command reads it, so that materials that the add-in's libraries know are those of the libraries.
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  writeOutputs(sitting.session().design(), options.outputs, sitting.progress());
}

}  // namespace

void addConvertCommand(CLI::App& program) {
  const auto options = std::make_shared<ConvertOptions>();
  CLI::App& command = *program.add_subcommand(
      "convert", "Save an assembly as a file of another kind; design files hold everything but geometry");
  addInputFile(command, options->file);
  addPathOption(command, "OUT", options->outputs.design, "Where to save it; the ending says as what")->required();
  addHostOptions(command, options->sitting);
  command.callback([options] { runConvert(*options); });
}

}  // namespace headless::cli
