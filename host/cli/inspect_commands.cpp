// The sub-commands that only look: tree and dialog.
#include <iostream>
#include <map>
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/dialog_ids.h"
#include "host/cli/dialog_text.h"
#include "host/cli/failure.h"
#include "host/cli/looks_text.h"
#include "host/cli/options.h"
#include "host/cli/picture_files.h"
#include "host/cli/tree_json.h"
#include "host/cli/tree_text.h"

namespace headless::cli {

namespace {

struct TreeOptions {
  std::filesystem::path file;
  SittingOptions sitting;
  ColourOption colour;
  bool isJson = false;
  bool isComplete = false;
};

void runTree(const TreeOptions& options) {
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  const model::Design& design = sitting.session().design();
  if (options.isJson) {
    std::cout << treeJson(design, options.isComplete);
    return;
  }
  const TreeNode root = treeOf(design, options.isComplete ? TreeDetail::Everything : TreeDetail::Grouped);
  std::cout << treeText(root, options.colour.isOn()) << "\n" << countsText(countsOf(design)) << "\n";
}

constexpr const char* stateGroup = "How the dialog is filled in";
constexpr const char* pictureGroup = "Pictures";

/// The groups and lists by the words of the command line.
const std::map<std::string, const char*> groupsByWord = {{"appearance", ids::appearanceGroup},
                                                         {"material", ids::materialGroup}};
const std::map<std::string, const char*> listsByWord = {{"appearance", ids::appearances}, {"material", ids::materials}};

struct DialogOptions {
  std::filesystem::path file;
  SittingOptions sitting;
  PickOptions pick;
  DialogState state;
  std::vector<std::string> closedWords;
  std::string openWord;
  std::filesystem::path picture;
  std::filesystem::path toolbarPicture;
};

void savePictures(Sitting& sitting, const DialogOptions& options) {
  if (!options.toolbarPicture.empty()) {
    saveToolbarPicture(sitting, options.toolbarPicture);
  }
  if (!options.picture.empty()) {
    const std::string openList = options.openWord.empty() ? "" : listsByWord.at(options.openWord);
    saveDialogPicture(sitting, openList, options.picture);
  }
}

std::string outOfReach(const std::string& group) {
  return "--close " + group + " goes with none of --" + group + "-filter, --" + group + " and --open-list " + group +
         ": what is in a closed group is out of reach";
}

/// Raises UsageError when something is to be done in a group that is to be closed.
void requireOpenGroups(const DialogOptions& options) {
  const DialogState& state = options.state;
  for (const std::string& word : options.closedWords) {
    const bool isAppearance = word == "appearance";
    const std::string& filter = isAppearance ? state.appearanceFilter : state.materialFilter;
    const std::string& item = isAppearance ? state.appearance : state.material;
    if (!filter.empty() || !item.empty() || options.openWord == word) {
      throw UsageError(outOfReach(word));
    }
  }
}

void runDialog(const DialogOptions& options) {
  requireOpenGroups(options);
  checkDestinations(options.file, {{"--trace", options.sitting.traceFile},
                                   {"--picture", options.picture, {".svg"}},
                                   {"--toolbar-picture", options.toolbarPicture, {".svg"}}});
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  sitting.startAddIn();
  sitting.openDialog();
  DialogState state = options.state;
  for (const std::string& word : options.closedWords) {
    state.closedGroups.emplace_back(groupsByWord.at(word));
  }
  bringDialogInto(sitting, state);
  if (!options.pick.patterns.empty()) {
    pickInDialog(sitting, options.pick.picks());
  }
  std::cout << dialogText(sitting.session().dialog());
  savePictures(sitting, options);
  sitting.closeDialog();
  sitting.stopAddIn();
  sitting.finish();
}

void addStateOptions(CLI::App& command, DialogOptions& options) {
  const auto add = [&](const char* option, auto& value, const char* description, const char* type) {
    return command.add_option(option, value, description)->type_name(type)->group(stateGroup);
  };
  auto* byMaterial = command
                         .add_flag("--set-appearance-by-material", options.state.setsAppearanceByMaterial,
                                   "Tick \"Set Appearance by Material\"")
                         ->group(stateGroup);
  add("--close", options.closedWords, "Close a group: appearance or material", "GROUP")
      ->check(CLI::IsMember({"appearance", "material"}));
  // The box puts the list and its filter out of reach.
  add("--appearance-filter", options.state.appearanceFilter, "Type this into the filter of the appearances", "TEXT")
      ->excludes(byMaterial);
  add("--appearance", options.state.appearance, "Choose this appearance", "NAME")->excludes(byMaterial);
  add("--material-filter", options.state.materialFilter, "Type this into the filter of the materials", "TEXT");
  add("--material", options.state.material, "Choose this material", "NAME");
}

void addPictureOptions(CLI::App& command, DialogOptions& options) {
  const auto add = [&](const char* option, std::filesystem::path& file, const char* description) {
    return addPathOption(command, option, file, description)->type_name("OUT.svg")->group(pictureGroup);
  };
  auto* picture = add("--picture", options.picture, "Where to save a picture of the dialog");
  command.add_option("--open-list", options.openWord, "The list that it shows open: appearance or material")
      ->check(CLI::IsMember({"appearance", "material"}))
      ->needs(picture)
      ->type_name("LIST")
      ->group(pictureGroup);
  add("--toolbar-picture", options.toolbarPicture, "Where to save a picture of the toolbar");
}

}  // namespace

void addTreeCommand(CLI::App& program) {
  const auto options = std::make_shared<TreeOptions>();
  CLI::App& command = *program.add_subcommand(
      "tree",
      "Show the structure of an assembly, what each object shows, where that comes from, and what it is made of");
  addInputFile(command, options->file);
  command.add_flag("--json", options->isJson, "Print JSON for programs, with the path of every object");
  command.add_flag("--all", options->isComplete,
                   "Show every occurrence, body and face; without it, siblings that are alike share a row, and only "
                   "faces with an appearance of their own are shown");
  addColourOption(command, options->colour);
  addHostOptions(command, options->sitting);
  command.footer(
      "From: \"own\" was applied to the object itself, \"material\", \"body\" and \"occurrence\" say what it "
      "inherits.");
  command.callback([options] { runTree(*options); });
}

void addDialogCommand(CLI::App& program) {
  const auto options = std::make_shared<DialogOptions>();
  CLI::App& command = *program.add_subcommand(
      "dialog", "Show the add-in's dialog, as its user sees it, with nothing or something picked");
  addInputFile(command, options->file);
  addPickOptions(command, options->pick, Picking::Optional);
  addStateOptions(command, *options);
  addPictureOptions(command, *options);
  addAddInOptions(command, options->sitting);
  command.callback([options] { runDialog(*options); });
}

}  // namespace headless::cli
