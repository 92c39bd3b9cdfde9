#include "host/cli/design_files.h"

#include "host/cli/failure.h"
#include "host/cli/geometry.h"
#include "host/design_file/design_file.h"

namespace headless::cli {

namespace fs = std::filesystem;

std::vector<std::string> designEndings() {
  std::vector<std::string> endings;
  if (hasGeometry()) {
    endings = {".step", ".stp", ".p21"};
  }
  endings.emplace_back(design_file::ending);
  return endings;
}

std::unique_ptr<model::Design> readDesign(const fs::path& file, const model::MaterialLookup& lookup,
                                          const files::Progress& progress) {
  return design_file::hasEnding(file) ? design_file::read(file, lookup, progress) : readStep(file, lookup, progress);
}

void writeDesign(const model::Design& design, const fs::path& file, const files::Progress& progress) {
  if (design_file::hasEnding(file)) {
    design_file::write(design, file, progress);
  } else {
    writeStep(design, file, progress);
  }
}

void requireGeometryFor(const fs::path& input, const fs::path& output) {
  if (design_file::hasEnding(input) && !design_file::hasEnding(output)) {
    throw UsageError("\"" + output.u8string() + "\" cannot be made of \"" + input.u8string() +
                     "\": design files hold no geometry. Save as a design file (" + std::string(design_file::ending) +
                     "), or begin with the STEP file");
  }
}

}  // namespace headless::cli
