#include "host/cli/geometry.h"
#include "host/step/glb_writer.h"
#include "host/step/reader.h"
#include "host/step/writer.h"

namespace headless::cli {

bool hasGeometry() {
  return true;
}

std::unique_ptr<model::Design> readStep(const std::filesystem::path& file, const model::MaterialLookup& lookup,
                                        const files::Progress& progress) {
  return step::read(file, lookup, progress);
}

void writeStep(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress) {
  step::write(design, file, progress);
}

void writeGlb(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress) {
  step::writeGlb(design, file, progress);
}

}  // namespace headless::cli
