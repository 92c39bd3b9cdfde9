// A design of occurrences in one another.
#pragma once

#include <memory>

#include "host/model/design.h"

namespace tests {

/// A:1+B:1+C:1+D:1, each component with a body "Body1" of one face.
inline std::unique_ptr<headless::model::Design> nestedDesign() {
  auto design = std::make_unique<headless::model::Design>("Nested");
  headless::model::Component* parent = &design->root();
  for (const char* name : {"A", "B", "C", "D"}) {
    headless::model::Component& child = design->addComponent(name);
    child.addBody("Body1").addFace();
    parent->addInstance(child);
    parent = &child;
  }
  return design;
}

}  // namespace tests
