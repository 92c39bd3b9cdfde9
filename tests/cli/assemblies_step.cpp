#include "tests/cli/assemblies.h"

#include "tests/step/made_designs.h"
#include "tests/step/step_files.h"

namespace tests {

namespace {

constexpr const char* assemblyOfTheDemo = "as1-tu-203.stp";

}  // namespace

headless::model::Body& addRigBody(headless::model::Component& component, const std::string& name, double size) {
  return headless::step::addBox(component, name, size);
}

std::filesystem::path findDemoAssembly() {
  return headless::step::findStepFile(assemblyOfTheDemo);
}

std::string explainMissingDemoAssembly() {
  return headless::step::explainMissing(assemblyOfTheDemo);
}

}  // namespace tests
