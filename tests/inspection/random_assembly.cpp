#include "tests/inspection/random_assembly.h"

#include <algorithm>

#include "host/model/resolution.h"

namespace tests {

using namespace headless::model;

namespace {

std::shared_ptr<const Appearance> freshLook(Dice& dice) {
  const std::string name = "look " + std::to_string(dice.below(1'000'000));
  return std::make_shared<const Appearance>(Appearance{name, name, {1, 2, 3, 255}});
}

void addRandomBodies(Component& component, Dice& dice) {
  const std::size_t bodies = dice.below(4);
  for (std::size_t i = 0; i < bodies; ++i) {
    Body& body = component.addBody("Body" + std::to_string(i + 1));
    for (std::size_t faces = dice.below(4); faces > 0; --faces) {
      body.addFace();
    }
  }
}

/// Number of nodes that an instance of each component adds to the tree around it.
std::size_t nodesOf(const Component& component) {
  std::size_t nodes = 1;
  for (const auto& instance : component.instances) {
    nodes += nodesOf(*instance->component);
  }
  return nodes;
}

void paintOccurrences(const std::vector<Occurrence*>& occurrences, Dice& dice) {
  for (Occurrence* occurrence : occurrences) {
    if (dice.once(4)) {
      occurrence->appearance = freshLook(dice);
    }
  }
}

void paintBodies(const Component& component, Dice& dice) {
  for (const auto& body : component.bodies) {
    if (dice.once(3)) {
      body->appearance = freshLook(dice);
    }
    for (const auto& face : body->faces) {
      if (dice.once(4)) {
        face->appearance = freshLook(dice);
      }
    }
  }
}

class PlainWalk {
 public:
  PlainInventory inventory;

  void visit(const Selected& selected) {
    const headless::Pickable& pickable = selected.pickable;
    if (selected.component != nullptr) {
      for (Occurrence* occurrence : selected.component->allOccurrences()) {
        visitTree(*occurrence);
      }
    } else if (pickable.face != nullptr) {
      visitFace(*pickable.face, pickable.occurrence);
    } else if (pickable.body != nullptr) {
      visitBody(*pickable.body, pickable.occurrence);
      visitFaces(*pickable.body, pickable.occurrence);
    } else {
      visitSelectedOccurrence(*pickable.occurrence);
    }
  }

 private:
  void visitSelectedOccurrence(Occurrence& occurrence) {
    visitOwnLook(occurrence);
    if (!occurrence.children.empty()) {
      visitTree(occurrence);
    }
    visitBodies(occurrence);
  }

  void visitTree(Occurrence& occurrence) {
    for (Occurrence* child : occurrence.children) {
      visitTree(*child);
    }
    visitOwnLook(occurrence);
    visitBodies(occurrence);
  }

  void visitOwnLook(Occurrence& occurrence) {
    if (const Occurrence* carrier = lookCarrier(occurrence)) {
      inventory.occurrences.emplace(EntityKey(&occurrence, nullptr), carrier->appearance->name);
    }
  }

  void visitBodies(Occurrence& occurrence) {
    for (const auto& body : occurrence.component().bodies) {
      visitBody(*body, &occurrence);
    }
  }

  void visitBody(const Body& body, const Occurrence* context) {
    if (body.appearance) {
      inventory.bodies.emplace(EntityKey(&body, context), body.appearance->name);
    }
    visitFaces(body, context);
  }

  void visitFaces(const Body& body, const Occurrence* context) {
    for (const auto& face : body.faces) {
      visitFace(*face, context);
    }
  }

  void visitFace(const Face& face, const Occurrence* context) {
    if (face.appearance) {
      inventory.faces.emplace(EntityKey(&face, context), face.appearance->name);
    }
  }
};

}  // namespace

std::unique_ptr<Design> randomAssembly(Dice& dice) {
  constexpr std::size_t enough = 300;
  auto design = std::make_unique<Design>("Random");
  std::vector<Component*> made;
  const std::size_t count = 2 + dice.below(11);
  for (std::size_t i = 0; i < count; ++i) {
    Component& component = design->addComponent("Part" + std::to_string(i + 1));
    addRandomBodies(component, dice);
    // Only what was made before is placed, so that nothing contains itself.
    for (std::size_t uses = made.empty() ? 0 : dice.below(5); uses > 0; --uses) {
      Component& child = *dice.oneOf(made);
      if (nodesOf(component) + nodesOf(child) < enough) {
        component.addInstance(child);
      }
    }
    made.push_back(&component);
  }
  addRandomBodies(design->root(), dice);
  for (std::size_t uses = 2 + dice.below(5); uses > 0; --uses) {
    design->root().addInstance(*dice.oneOf(made));
  }
  return design;
}

void paintAtRandom(Design& design, Dice& dice, bool nativeTrees) {
  for (const auto& component : design.components) {
    paintBodies(*component, dice);
    if (component.get() == &design.root() || (nativeTrees && dice.once(3))) {
      paintOccurrences(component->allOccurrences(), dice);
    }
  }
}

PlainInventory plainInventory(const std::vector<Selected>& selection) {
  PlainWalk walk;
  std::for_each(selection.begin(), selection.end(), [&](const Selected& each) { walk.visit(each); });
  return std::move(walk.inventory);
}

}  // namespace tests
