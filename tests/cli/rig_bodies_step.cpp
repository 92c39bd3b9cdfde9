#include "tests/cli/rig_bodies.h"
#include "tests/step/made_designs.h"

namespace tests {

headless::model::Body& addRigBody(headless::model::Component& component, const std::string& name, double size) {
  return headless::step::addBox(component, name, size);
}

}  // namespace tests
