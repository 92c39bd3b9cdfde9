#include "tests/cli/rig_bodies.h"

namespace tests {

headless::model::Body& addRigBody(headless::model::Component& component, const std::string& name, double) {
  headless::model::Body& body = component.addBody(name);
  for (int face = 0; face < 6; ++face) {
    body.addFace();
  }
  return body;
}

}  // namespace tests
