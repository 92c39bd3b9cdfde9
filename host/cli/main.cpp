// tintora-host: the add-in on an assembly, without the CAD program.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "host/cli/commands.h"
#include "host/cli/failure.h"
#include "host/cli/geometry.h"
#include "host/cli/help_formatter.h"
#include "host/cli/platform.h"
#include "host/cli/text_layout.h"

namespace {

using namespace headless::cli;

constexpr const char* manual = R"(Examples:
  tintora-host tree pump.step
  tintora-host dialog pump.step --filter body --select 'housing:1/*'
  tintora-host apply pump.step --filter body --select '*cover*' \
      --appearance 'RAL 3000 Flame red' --save red.step
  tintora-host apply pump.step --filter component --select 'bolt:*' \
      --material 'Stainless Steel AISI 304' --set-appearance-by-material \
      --save steel.step --glb steel.glb
  tintora-host clear red.step --filter body --select '*' --save plain.step
  tintora-host convert pump.step pump.design.json

Everything is done in the add-in's own dialog. The file that is read is never changed;
files that are written appear whole or not at all. Progress and errors go to the error
stream.

Exit codes: 0 done; 1 could not be done, the message says why; 2 the command line makes
no sense. More about a command: tintora-host COMMAND --help)";

constexpr const char* manualWithoutGeometry =
    R"(This build has no geometry kernel: it reads and writes design files only, such as
pump.design.json, which "convert" makes from pump.step in a build that has it.

)";

std::string unknownCommand(const CLI::App& program, const std::string& given) {
  std::vector<std::string> names;
  for (const CLI::App* command : program.get_subcommands({})) {
    names.push_back(command->get_name());
  }
  const std::string near = didYouMean(given, names);
  return "There is no command \"" + given + "\"" + (near.empty() ? "; there are " + listed(names, names.size()) : near);
}

/// What is wrong with arguments of which none was a command.
std::string missingCommand(const CLI::App& program, const std::string& first) {
  return first.rfind('-', 0) == 0 ? "\"" + first + "\" cannot come first: begin with a command, or with --help"
                                  : unknownCommand(program, first);
}

/// Raises Failure when the system did not take all that was printed.
void finishOutput() {
  std::cout.flush();
  if (!std::cout || std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    throw Failure(
        "Standard output cannot be written: the disk may be full, or what reads it has ended. Send it elsewhere. Files "
        "that were to be saved are saved.");
  }
}

int run(const std::vector<std::string>& arguments) {
  CLI::App program("Runs the add-in Tintora on assemblies, without the CAD program.", "tintora-host");
  // A path that begins with a slash is no option, on Windows either.
  program.allow_windows_style_options(false);
  program.set_version_flag("--version", "tintora-host " TINTORA_VERSION);
  program.formatter(std::make_shared<HelpFormatter>());
  program.require_subcommand(1);
  program.footer((hasGeometry() ? "" : manualWithoutGeometry) + std::string(manual));
  addTreeCommand(program);
  addDialogCommand(program);
  addRenderCommand(program);
  addApplyCommand(program);
  addClearCommand(program);
  addDemoCommand(program);
  addConvertCommand(program);
  try {
    program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      return program.exit(error);
    }
    if (!arguments.empty() && program.get_subcommands().empty()) {
      throw UsageError(missingCommand(program, arguments.front()));
    }
    throw UsageError(std::string(error.what()) + "\nRun with --help for more information.");
  }
  return exitSuccess;
}

int report(const std::exception& error, int exitCode) {
  std::fflush(stdout);
  std::fprintf(stderr, "tintora-host: %s\n", error.what());
  return exitCode;
}

}  // namespace

int main(int argc, char** argv) {
  setUpTerminal();
  prepareForEnd();
  try {
    const int exitCode = run(argumentsOf(argc, argv));
    finishOutput();
    return exitCode;
  } catch (const UsageError& error) {
    return report(error, exitUsage);
  } catch (const std::exception& error) {
    return report(error, exitFailure);
  }
}
