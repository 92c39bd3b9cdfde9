#include "host/cli/commands.h"
#include "host/cli/failure.h"
#include "host/cli/geometry.h"

namespace headless::cli {

namespace {

[[noreturn]] void refuseToWrite(const std::filesystem::path& file) {
  throw Failure("Cannot write \"" + file.u8string() +
                "\": this build of tintora-host has no geometry kernel and writes design files (.design.json) only.");
}

}  // namespace

bool hasGeometry() {
  return false;
}

std::unique_ptr<model::Design> readStep(const std::filesystem::path& file, const model::MaterialLookup&,
                                        const files::Progress&) {
  const std::string name = file.filename().u8string();
  throw Failure("Cannot read \"" + file.u8string() +
                "\": this build of tintora-host has no geometry kernel and reads design files (.design.json) only. "
                "Convert the assembly with a build that has it: tintora-host convert " +
                name + " " + file.stem().u8string() + ".design.json");
}

void writeStep(const model::Design&, const std::filesystem::path& file, const files::Progress&) {
  refuseToWrite(file);
}

void writeGlb(const model::Design&, const std::filesystem::path& file, const files::Progress&) {
  refuseToWrite(file);
}

// There is nothing to draw.
void addRenderCommand(CLI::App&) {}

}  // namespace headless::cli
