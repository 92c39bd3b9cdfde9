#include "tests/step/step_files.h"

#include <cstdlib>

#ifndef TINTORA_STEP_DATA_DIR
#define TINTORA_STEP_DATA_DIR ""
#endif

namespace headless::step {

namespace fs = std::filesystem;

namespace {

constexpr const char* packagedFile = "as1-tu-203.stp";
constexpr const char* packageFolder = "/usr/share/doc/gmsh-doc/doc/gmsh/demos/api";

std::string dataFolder() {
  const char* folder = std::getenv("TINTORA_STEP_DATA");
  return folder != nullptr && *folder != '\0' ? folder : TINTORA_STEP_DATA_DIR;
}

/// The packaged file, unpacked once per process when it is packed. Tests run side by side, so it is put in place whole.
fs::path findPackagedFile() {
  const fs::path plain = fs::path(packageFolder) / packagedFile;
  if (fs::exists(plain)) {
    return plain;
  }
  const fs::path packed = plain.string() + ".gz";
  if (!fs::exists(packed)) {
    return {};
  }
  const fs::path unpacked = fs::path(::testing::TempDir()) / ("unpacked-" + std::string(packagedFile));
  const std::string target = "'" + unpacked.string() + "'";
  static const int status = std::system(
      ("gzip -dc '" + packed.string() + "' > " + target + ".$$ && mv -f " + target + ".$$ " + target).c_str());
  return status == 0 ? unpacked : fs::path();
}

}  // namespace

fs::path findStepFile(const std::string& name) {
  const std::string folder = dataFolder();
  const fs::path file = folder.empty() ? fs::path() : fs::path(folder) / name;
  if (!file.empty() && fs::exists(file)) {
    return file;
  }
  return name == packagedFile ? findPackagedFile() : fs::path();
}

bool areStepFilesRequired() {
  return std::getenv("CI") != nullptr;
}

std::string explainMissing(const std::string& name) {
  std::string text = name + " was not found; set TINTORA_STEP_DATA to the folder that holds the STEP files";
  return name == packagedFile ? text + ", or install the package gmsh-doc" : text;
}

}  // namespace headless::step
