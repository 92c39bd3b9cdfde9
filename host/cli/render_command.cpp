// The sub-command render, which takes the geometry kernel.
#include <iostream>
#include <memory>

#include "host/cli/commands.h"
#include "host/cli/design_files.h"
#include "host/cli/options.h"
#include "host/cli/picture.h"

namespace headless::cli {

namespace {

struct RenderOptions {
  std::filesystem::path file;
  std::filesystem::path png;
  SittingOptions sitting;
  int width = 1200;
  int height = 900;
};

void runRender(const RenderOptions& options) {
  requireGeometryFor(options.file, options.png);
  checkDestinations(options.file, {{"--png", options.png, {".png"}}});
  Sitting sitting(options.sitting);
  sitting.open(options.file);
  // Finer than for viewers, whose smooth shading hides the corners of round faces.
  const step::MeshQuality quality{0.0005, 0.1};
  {
    ProgressLine line(sitting.progress(), "Drawing", options.png.u8string());
    const auto triangles = step::trianglesOf(sitting.session().design(), quality, line.reporter());
    writePng(drawn(triangles, options.width, options.height), options.png);
  }
  std::cout << "Saved " << options.png.u8string() << "\n";
}

}  // namespace

void addRenderCommand(CLI::App& program) {
  const auto options = std::make_shared<RenderOptions>();
  CLI::App& command = *program.add_subcommand("render", "Draw a picture of an assembly, as it shows up in a viewer");
  addStepFile(command, options->file);
  const auto addSize = [&](const char* option, int& size, const char* description) {
    command.add_option(option, size, description)->check(CLI::Range(16, 8192))->type_name("PIXELS");
  };
  addPathOption(command, "--png", options->png, "Where to save the picture")->required()->type_name("OUT.png");
  addSize("--width", options->width, "Its width, 1200 unless given");
  addSize("--height", options->height, "Its height, 900 unless given");
  addHostOptions(command, options->sitting);
  command.callback([options] { runRender(*options); });
}

}  // namespace headless::cli
