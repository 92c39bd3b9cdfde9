#include "tests/cli/assemblies.h"

#include <cstdlib>

namespace tests {

headless::model::Body& addRigBody(headless::model::Component& component, const std::string& name, double) {
  headless::model::Body& body = component.addBody(name);
  for (int face = 0; face < 6; ++face) {
    body.addFace();
  }
  return body;
}

std::filesystem::path findDemoAssembly() {
  const char* const file = std::getenv("TINTORA_DEMO_DESIGN");
  return file == nullptr ? std::filesystem::path() : std::filesystem::u8path(file);
}

std::string explainMissingDemoAssembly() {
  return "set TINTORA_DEMO_DESIGN to a design file that tintora-host, built with the geometry kernel, converted "
         "as1-tu-203.stp to";
}

}  // namespace tests
