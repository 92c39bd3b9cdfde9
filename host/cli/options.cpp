#include "host/cli/options.h"

#include <algorithm>
#include <cstdlib>

#include "host/cli/geometry.h"
#include "host/cli/platform.h"
#include "host/runtime/profile.h"

namespace headless::cli {

namespace {

constexpr const char* pathHelp = R"(Objects are picked by their paths:
  component  "A:1+B:2"            an occurrence, by the names from the top down to it
  body       "A:1+B:2/Body1"      a body, by its occurrence; "Body1" in the root
  face       "A:1+B:2/Body1/Face3"
"tintora-host tree FILE --json --all" lists all of them. In GLOB, "*" stands for any text
("/" and "+" included), "?" for one character, "[ab]" for one of those; "\" takes the
meaning from the next character. Quote it, so that the shell leaves it alone. A GLOB that
matches nothing is an error.)";

constexpr const char* pickGroup = "What to pick";
constexpr const char* saveGroup = "What to save";
constexpr const char* hostGroup = "Add-in and host";

// As an option for a list, CLI11 would take "[ab]" for a list that is written out, and "{}" for an empty one.
CLI::Option* addPatterns(CLI::App& command, std::vector<std::string>& patterns) {
  constexpr int manyPatterns = 1'000'000;
  const auto take = [&patterns](const CLI::results_t& given) {
    patterns = given;
    return true;
  };
  return command.add_option("--select", take, "The objects to pick, one or more patterns")
      ->expected(1, manyPatterns)
      ->type_name("GLOB")
      ->group(pickGroup);
}

}  // namespace

CLI::Option* addPathOption(CLI::App& command, const std::string& name, std::filesystem::path& path,
                           const std::string& description) {
  return command
      .add_option_function<std::string>(
          name, [&path](const std::string& text) { path = std::filesystem::u8path(text); }, description)
      ->check([](const std::string& text) { return text.empty() ? "The name is empty; give one" : ""; });
}

void addInputFile(CLI::App& command, std::filesystem::path& file) {
  addPathOption(command, "FILE", file,
                hasGeometry() ? "The assembly, a STEP file (AP203, AP214 or AP242) or a design file (.design.json); it "
                                "is only read"
                              : "The assembly, a design file (.design.json); it is only read")
      ->required();
}

void addStepFile(CLI::App& command, std::filesystem::path& file) {
  addPathOption(command, "FILE", file, "The assembly, a STEP file (AP203, AP214 or AP242); it is only read")
      ->required();
}

void addHostOptions(CLI::App& command, SittingOptions& options) {
  addPathOption(command, "--addin", options.addInFolder,
                "Folder of the add-in, with Tintora.dll and resources/Libs; the folder addin beside this program "
                "unless given")
      ->type_name("FOLDER")
      ->group(hostGroup);
  command.add_flag("-q,--quiet", options.isQuiet, "Show no progress")->group(hostGroup);
}

void addAddInOptions(CLI::App& command, SittingOptions& options) {
  addHostOptions(command, options);
  command
      .add_option("--profile", options.profile,
                  "How the host behaves where hosts differ: lenient, documented (unless given) or hostile")
      ->check(CLI::IsMember(profileNames()))
      ->type_name("NAME")
      ->group(hostGroup);
  command
      .add_flag("--keep-settings", options.keepsSettings,
                "Run the add-in in its folder, with the dialog as it was last used, and remember it again, one run at "
                "a time; without this every run starts afresh in a temporary copy")
      ->group(hostGroup);
  addPathOption(command, "--trace", options.traceFile, "Record every call of the host in this file")
      ->type_name("FILE")
      ->group(hostGroup);
  command.add_flag("--count-calls", options.countsCalls, "Print how often each call of the host was made")
      ->group(hostGroup);
}

Picks PickOptions::picks() const {
  const auto word = std::find(kindWords.begin(), kindWords.end(), kindWord);
  return {static_cast<PickKind>(word - kindWords.begin()), patterns};
}

void addPickOptions(CLI::App& command, PickOptions& options, Picking picking) {
  const bool isRequired = picking == Picking::Required;
  auto* filter = command.add_option("--filter", options.kindWord, "What is picked: component, body or face")
                     ->check(CLI::IsMember(kindWords))
                     ->type_name("KIND")
                     ->group(pickGroup)
                     ->required(isRequired);
  auto* select = addPatterns(command, options.patterns)->required(isRequired);
  if (!isRequired) {
    filter->needs(select);
    select->needs(filter);
  }
  command.footer(pathHelp);
}

void addOutputOptions(CLI::App& command, OutputFiles& outputs) {
  addPathOption(command, "--save", outputs.design,
                hasGeometry() ? "Where to save the assembly, as STEP (AP214) or, by its ending .design.json, as a "
                                "design file"
                              : "Where to save the assembly as a design file (.design.json)")
      ->required()
      ->type_name("OUT")
      ->group(saveGroup);
  if (hasGeometry()) {
    addPathOption(command, "--glb", outputs.glb, "Where to save it for viewers as well")
        ->type_name("OUT.glb")
        ->group(saveGroup);
  }
}

bool ColourOption::isOn() const {
  if (when != "auto") {
    return when == "always";
  }
  const char* noColour = std::getenv("NO_COLOR");
  return isTerminal(Stream::Output) && (noColour == nullptr || *noColour == '\0');
}

void addColourOption(CLI::App& command, ColourOption& option) {
  command.add_option("--colour", option.when, "Blocks of colour: auto (in a terminal), always or never")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->type_name("WHEN");
}

}  // namespace headless::cli
