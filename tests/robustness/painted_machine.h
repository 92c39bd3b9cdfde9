// The machine with looks of its own on an occurrence, two bodies and a face.
#pragma once

#include <memory>
#include <string>

#include "tests/support/designs.h"

namespace tests {

inline std::unique_ptr<headless::model::Design> paintedMachine() {
  const auto lookNamed = [](const std::string& name) {
    return std::make_shared<const headless::model::Appearance>(headless::model::Appearance{name, name, {9, 9, 9, 255}});
  };
  auto design = machine();
  bodyNamed(*design, "Plate", "Plate1").appearance = lookNamed("Red");
  bodyNamed(*design, "Plate", "Plate1").faces[1]->appearance = lookNamed("Green");
  bodyNamed(*design, "Bolt", "Head").appearance = lookNamed("Yellow");
  occurrenceAt(*design, "Frame:1").appearance = lookNamed("Blue");
  return design;
}

}  // namespace tests
