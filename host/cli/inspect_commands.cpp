// The sub-commands that only look: tree, dialog and render.
#include <iostream>
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/dialog_text.h"
#include "host/cli/looks_text.h"
#include "host/cli/options.h"
#include "host/cli/picture.h"
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

struct DialogOptions {
  std::filesystem::path file;
  SittingOptions sitting;
  PickOptions pick;
};

void runDialog(const DialogOptions& options) {
  checkTrace(options.file, options.sitting);
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  sitting.startAddIn();
  sitting.openDialog();
  if (!options.pick.patterns.empty()) {
    pickInDialog(sitting, options.pick.picks());
  }
  std::cout << dialogText(sitting.session().dialog());
  sitting.closeDialog();
  sitting.stopAddIn();
}

struct RenderOptions {
  std::filesystem::path file;
  std::filesystem::path png;
  SittingOptions sitting;
  int width = 1200;
  int height = 900;
};

void runRender(const RenderOptions& options) {
  requireOtherFile(options.file, options.png);
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  // Finer than for viewers, whose smooth shading hides the corners of round faces.
  const step::MeshQuality quality{0.0005, 0.1};
  {
    ProgressLine line(sitting.progress(), "Drawing", options.png.string());
    const auto triangles = step::trianglesOf(sitting.session().design(), quality, line.reporter());
    writePng(drawn(triangles, options.width, options.height), options.png);
  }
  std::cout << "Saved " << options.png.string() << "\n";
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
  addAddInOptions(command, options->sitting);
  command.callback([options] { runDialog(*options); });
}

void addRenderCommand(CLI::App& program) {
  const auto options = std::make_shared<RenderOptions>();
  CLI::App& command = *program.add_subcommand("render", "Draw a picture of an assembly, as it shows up in a viewer");
  addInputFile(command, options->file);
  const auto addSize = [&](const char* option, int& size, const char* description) {
    command.add_option(option, size, description)->check(CLI::Range(16, 8192))->type_name("PIXELS");
  };
  command.add_option("--png", options->png, "Where to save the picture")->required()->type_name("OUT.png");
  addSize("--width", options->width, "Its width, 1200 unless given");
  addSize("--height", options->height, "Its height, 900 unless given");
  addHostOptions(command, options->sitting);
  command.callback([options] { runRender(*options); });
}

}  // namespace headless::cli
