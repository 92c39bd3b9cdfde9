#include "tests/cli/cli_fixture.h"

#include "host/cli/design_files.h"
#include "host/cli/geometry.h"
#include "tests/cli/assemblies.h"

namespace tests {

namespace model = headless::model;

namespace {

std::shared_ptr<const model::Appearance> colour(const char* hex) {
  return model::makeColourAppearance(model::colourFromHex(hex));
}

model::Placement moved(double x, double z) {
  return {1, 0, 0, x, 0, 1, 0, 0, 0, 0, 1, z};
}

}  // namespace

CliTest::CliTest(Program testedProgram)
    : ProgramTest(testedProgram),
      assemblyEnding(testedProgram == Program::Usual && headless::cli::hasGeometry() ? ".step" : ".design.json") {
  model::Design design("Rig");
  model::Component& pin = design.addComponent("Pin");
  model::Body& shaft = addRigBody(pin, "Shaft", 5.0);
  shaft.appearance = colour("#00FF00");
  shaft.faces[1]->appearance = colour("#0000FF");
  shaft.faces[2]->appearance = shaft.faces[1]->appearance;
  model::Component& arm = design.addComponent("Arm");
  addRigBody(arm, "Beam", 10.0);
  arm.addInstance(pin, moved(0, 10));
  addRigBody(design.root(), "Base", 30.0).appearance = colour("#FF0000");
  design.root().addInstance(arm, moved(0, 30));
  design.root().addInstance(arm, moved(15, 30));
  headless::cli::writeDesign(design, std::filesystem::u8path(rig()), {});
}

std::vector<std::string> CliTest::applying(std::vector<std::string> arguments) const {
  arguments.insert(arguments.begin(), {"apply", rig(), "--save", saved()});
  return arguments;
}

}  // namespace tests
