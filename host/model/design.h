// The design that is open: components with their bodies and faces, and the tree of occurrences that places components
// in one another. Plain data. Everything is owned by the design and keeps its address as long as the design lives, so
// that addresses may serve as identity. What an object shows is worked out in resolution.h, never stored.
//
// Components are built first (bodies, faces, instances) and then expanded once into occurrences; the structure does not
// change afterwards, only looks and materials do.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/model/materials.h"

namespace headless::model {

struct Body;
struct Component;
struct Design;

/// Geometry of a face, body or placement. Defined by whoever reads and writes geometry; empty for made-up designs.
struct Shape;

/// Row-major 3 x 4 placement: the rotation's rows, each followed by its translation in millimetres.
using Placement = std::array<double, 12>;

/// A placement that moves nothing.
inline constexpr Placement identityPlacement{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};

/// A face of a body. An empty appearance means that nothing was applied to the face itself.
struct Face {
  Body* body = nullptr;
  std::shared_ptr<const Appearance> appearance;
  std::shared_ptr<const Shape> shape;
};

/// A solid or open shell of a component. An empty appearance means that nothing was applied to the body itself; the
/// material is never empty once the body is in a component (see Component::addBody).
struct Body {
  Component* component = nullptr;
  std::string name;
  std::shared_ptr<const Appearance> appearance;
  std::shared_ptr<const Material> material;
  std::vector<std::unique_ptr<Face>> faces;
  std::shared_ptr<const Shape> shape;

  /// Adds a face and returns it; owned by the body.
  Face& addFace(std::shared_ptr<const Shape> faceShape = nullptr);
};

/// One use of a component inside another: "Bolt:2" is the second use of component "Bolt" in the design.
struct Instance {
  Component* component = nullptr;
  int counter = 1;
  Placement placement = identityPlacement;

  /// Component name, colon, counter.
  std::string name() const;
  /// True when that is the instance's name; cheaper than comparing with name().
  bool isNamed(std::string_view wanted) const;
};

/// A node of the expanded assembly: one instance seen along one path from the component that the tree belongs to.
/// Only this node carries the occurrence's own look, so two paths to one instance can look different. Nodes are owned
/// by their tree.
struct Occurrence {
  const Instance* instance = nullptr;
  /// The node around this one; nullptr at the top level.
  Occurrence* parent = nullptr;
  /// Index among the parent's children, or among the top-level nodes; the same as the instance's in its component.
  std::size_t position = 0;
  std::shared_ptr<const Appearance> appearance;
  std::vector<Occurrence*> children;

  Component& component() const { return *instance->component; }
  std::string name() const { return instance->name(); }
  /// The names from the top level down to this one, joined by "+".
  std::string fullPathName() const;
};

/// A part or sub-assembly: bodies of its own and instances of other components.
struct Component {
  Design* design = nullptr;
  std::string name;
  /// What was assigned to the component as a whole. What the component reports is in resolution.h.
  std::shared_ptr<const Material> material;
  std::vector<std::unique_ptr<Body>> bodies;
  std::vector<std::unique_ptr<Instance>> instances;
  /// How often the design uses this component; the last counter given.
  int uses = 0;

  /// Adds a body of the default material and returns it; owned by the component.
  Body& addBody(std::string bodyName);

  /// Places `child` here once more; the counter goes on from the uses of `child` that the design already has. Raises
  /// std::invalid_argument when this would make the component contain itself or when `child` belongs to another design,
  /// and std::logic_error when a tree of the design was made already.
  Instance& addInstance(Component& child, const Placement& placement = identityPlacement);

  /// The tree below this component, made on first use; top-level nodes in the order of `instances`. Trees of different
  /// components share no nodes: what is seen from a sub-assembly is another occurrence than what is seen from the root.
  /// Raises std::length_error beyond maximumOccurrences.
  const std::vector<Occurrence*>& occurrences() const;

  /// Every node of that tree, parents before children, in order.
  const std::vector<Occurrence*>& allOccurrences() const;

  /// True once the tree was made; a tree that was never asked for carries no looks.
  bool isExpanded() const { return tree != nullptr; }

 private:
  struct Tree {
    std::deque<Occurrence> nodes;
    std::vector<Occurrence*> topLevel;
    std::vector<Occurrence*> all;
  };

  const Tree& expandedTree() const;

  mutable std::unique_ptr<Tree> tree;
};

/// More occurrences than this in one tree are refused: a small file can describe more of them than any memory holds.
inline constexpr std::size_t maximumOccurrences = 1'000'000;

/// An open design. The first component is the root; it has the design's name.
struct Design {
  std::string name;
  std::vector<std::unique_ptr<Component>> components;
  /// Appearances that were copied into the design, in order. Everything that shows one shares it; lists and entries are
  /// changed through the design's history.
  std::vector<std::shared_ptr<Appearance>> appearances;
  /// True once any component's tree was made: from then on the structure is fixed.
  bool hasTrees = false;
  /// True once a tree other than the root's was made.
  bool hasNativeTrees = false;

  explicit Design(std::string designName);
  Design(const Design&) = delete;
  Design& operator=(const Design&) = delete;
  ~Design();

  Component& root() const { return *components.front(); }

  /// Adds a component that is not placed anywhere yet; owned by the design. A name already taken gets " (1)", " (2)"
  /// and so on behind it, as names of components are unique in a design.
  Component& addComponent(std::string componentName);

  /// True when the look was given to something in the design, or belongs to a material of something in it.
  bool uses(const Appearance& appearance) const;

 private:
  std::string uniqueName(std::string wanted);

  /// Component names in use, each with the last number that was put behind it.
  std::unordered_map<std::string, int> lastNumber;
};

}  // namespace headless::model
