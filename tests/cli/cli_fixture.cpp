#include "tests/cli/cli_fixture.h"

#include "host/step/writer.h"

namespace tests {

using namespace headless::step;

CliTest::CliTest() : rigFile(at("rig.step")) {
  headless::model::Design design("Rig");
  headless::model::Component& pin = design.addComponent("Pin");
  headless::model::Body& shaft = addBox(pin, "Shaft", 5.0);
  shaft.appearance = colour("#00FF00");
  shaft.faces[1]->appearance = colour("#0000FF");
  shaft.faces[2]->appearance = shaft.faces[1]->appearance;
  headless::model::Component& arm = design.addComponent("Arm");
  addBox(arm, "Beam", 10.0);
  arm.addInstance(pin, moved(0, 0, 10));
  addBox(design.root(), "Base", 30.0).appearance = colour("#FF0000");
  design.root().addInstance(arm, moved(0, 0, 30));
  design.root().addInstance(arm, moved(15, 0, 30));
  write(design, rigFile);
}

std::vector<std::string> CliTest::applying(std::vector<std::string> arguments) const {
  arguments.insert(arguments.begin(), {"apply", rig(), "--save", at("out.step")});
  return arguments;
}

}  // namespace tests
