#include "tests/support/designs.h"

#include <stdexcept>

namespace tests {

using namespace headless::model;

namespace {

Body& addBody(Component& component, const std::string& name, int faces) {
  Body& body = component.addBody(name);
  for (int i = 0; i < faces; ++i) {
    body.addFace();
  }
  return body;
}

}  // namespace

std::unique_ptr<Design> machine() {
  auto design = std::make_unique<Design>("Machine");
  addBody(design->root(), "Base", 2);
  Component& plate = design->addComponent("Plate");
  addBody(plate, "Plate1", 3);
  Component& bolt = design->addComponent("Bolt");
  addBody(bolt, "Shank", 2);
  addBody(bolt, "Head", 1);
  Component& frame = design->addComponent("Frame");
  frame.addInstance(plate);
  frame.addInstance(bolt);
  design->root().addInstance(frame);
  design->root().addInstance(frame);
  design->root().addInstance(bolt);
  return design;
}

std::unique_ptr<Design> flatDesign(std::size_t count) {
  auto design = std::make_unique<Design>("Flat");
  Component& part = design->addComponent("Part");
  addBody(part, "Body1", 1);
  for (std::size_t i = 0; i < count; ++i) {
    design->root().addInstance(part);
  }
  return design;
}

std::unique_ptr<Design> chainDesign(std::size_t count) {
  auto design = std::make_unique<Design>("Chain");
  Component* parent = &design->root();
  for (std::size_t i = 0; i < count; ++i) {
    Component& link = design->addComponent("Link" + std::to_string(i + 1));
    addBody(link, "Body1", 1);
    parent->addInstance(link);
    parent = &link;
  }
  return design;
}

Component& componentNamed(Design& design, const std::string& name) {
  for (const auto& component : design.components) {
    if (component->name == name) {
      return *component;
    }
  }
  throw std::out_of_range("the design has no component " + name);
}

Body& bodyNamed(Design& design, const std::string& component, const std::string& body) {
  for (const auto& each : componentNamed(design, component).bodies) {
    if (each->name == body) {
      return *each;
    }
  }
  throw std::out_of_range("the component " + component + " has no body " + body);
}

Occurrence& occurrenceAt(Design& design, const std::string& fullPath) {
  for (Occurrence* occurrence : design.root().allOccurrences()) {
    if (occurrence->fullPathName() == fullPath) {
      return *occurrence;
    }
  }
  throw std::out_of_range("the design has no occurrence " + fullPath);
}

}  // namespace tests
