#include "host/model/design.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <unordered_set>
#include <utility>

namespace headless::model {

namespace {

/// True when `outer` is `inner` or has it somewhere below. Only asked when both are used already, which is rare.
bool contains(const Component& outer, const Component& inner) {
  std::unordered_set<const Component*> seen{&outer};
  std::vector<const Component*> waiting{&outer};
  while (!waiting.empty()) {
    const Component* component = waiting.back();
    waiting.pop_back();
    if (component == &inner) {
      return true;
    }
    for (const auto& instance : component->instances) {
      if (seen.insert(instance->component).second) {
        waiting.push_back(instance->component);
      }
    }
  }
  return false;
}

/// Whether placing `child` in `parent` closes a circle. The common cases, a child without instances and a parent that
/// is used nowhere yet, need no walk, so that long chains are built in linear time from either end.
bool wouldContainItself(const Component& parent, const Component& child) {
  if (&parent == &child) {
    return true;
  }
  if (child.instances.empty() || parent.uses == 0) {
    return false;
  }
  return contains(child, parent);
}

/// True when one of what was given to the component, its parts and the occurrences below it is that look.
bool uses(const Component& component, const Appearance& appearance) {
  const auto isIt = [&](const auto& looking) { return looking->appearance.get() == &appearance; };
  const auto isOfIt = [&](const auto& made) { return made->material != nullptr && isIt(made->material); };
  const auto usesIt = [&](const std::unique_ptr<Body>& body) {
    return isIt(body) || isOfIt(body) || std::any_of(body->faces.begin(), body->faces.end(), isIt);
  };
  if (isOfIt(&component) || std::any_of(component.bodies.begin(), component.bodies.end(), usesIt)) {
    return true;
  }
  return component.isExpanded() &&
         std::any_of(component.allOccurrences().begin(), component.allOccurrences().end(), isIt);
}

}  // namespace

Face& Body::addFace(std::shared_ptr<const Shape> faceShape) {
  auto face = std::make_unique<Face>();
  face->body = this;
  face->shape = std::move(faceShape);
  faces.push_back(std::move(face));
  return *faces.back();
}

std::string Instance::name() const {
  return component->name + ":" + std::to_string(counter);
}

bool Instance::isNamed(std::string_view wanted) const {
  const std::string_view front = component->name;
  if (wanted.size() <= front.size() + 1 || wanted[front.size()] != ':' || wanted.substr(0, front.size()) != front) {
    return false;
  }
  return wanted.substr(front.size() + 1) == std::to_string(counter);
}

std::string Occurrence::fullPathName() const {
  std::vector<std::string> names;
  for (const Occurrence* node = this; node != nullptr; node = node->parent) {
    names.push_back(node->name());
  }
  std::string path = std::move(names.back());
  for (auto name = names.rbegin() + 1; name != names.rend(); ++name) {
    path += '+';
    path += *name;
  }
  return path;
}

Body& Component::addBody(std::string bodyName) {
  auto body = std::make_unique<Body>();
  body->component = this;
  body->name = std::move(bodyName);
  body->material = defaultMaterial();
  bodies.push_back(std::move(body));
  return *bodies.back();
}

Instance& Component::addInstance(Component& child, const Placement& placement) {
  if (child.design != design) {
    throw std::invalid_argument("component '" + child.name + "' belongs to another design than '" + name + "'");
  }
  if (design->hasTrees) {
    throw std::logic_error("'" + child.name + "' cannot be placed in '" + name + "': the design was expanded already");
  }
  if (wouldContainItself(*this, child)) {
    throw std::invalid_argument("'" + child.name + "' cannot be placed in '" + name + "': it would contain itself");
  }
  auto instance = std::make_unique<Instance>();
  instance->component = &child;
  instance->counter = child.uses + 1;
  instance->placement = placement;
  instances.push_back(std::move(instance));
  ++child.uses;
  return *instances.back();
}

const std::vector<Occurrence*>& Component::occurrences() const {
  return expandedTree().topLevel;
}

const std::vector<Occurrence*>& Component::allOccurrences() const {
  return expandedTree().all;
}

const Component::Tree& Component::expandedTree() const {
  if (tree) {
    return *tree;
  }
  auto made = std::make_unique<Tree>();
  // A stack of nodes whose instances are still to be placed, instead of recursion: chains can be thousands deep.
  struct Level {
    Occurrence* node;
    const Component* component;
    std::size_t next;
  };
  std::vector<Level> levels{{nullptr, this, 0}};
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next == level.component->instances.size()) {
      levels.pop_back();
      continue;
    }
    if (made->nodes.size() == maximumOccurrences) {
      throw std::length_error("component '" + name + "' has more than " + std::to_string(maximumOccurrences) +
                              " occurrences; open a part of the assembly instead");
    }
    const std::size_t position = level.next++;
    const Instance* instance = level.component->instances[position].get();
    Occurrence& node = made->nodes.emplace_back();
    node.instance = instance;
    node.parent = level.node;
    node.position = position;
    (level.node != nullptr ? level.node->children : made->topLevel).push_back(&node);
    made->all.push_back(&node);
    levels.push_back({&node, instance->component, 0});
  }
  design->hasTrees = true;
  design->hasNativeTrees = design->hasNativeTrees || this != &design->root();
  tree = std::move(made);
  return *tree;
}

Design::Design(std::string designName) : name(std::move(designName)) {
  addComponent(name);
}

Design::~Design() = default;

Component& Design::addComponent(std::string componentName) {
  auto component = std::make_unique<Component>();
  component->design = this;
  component->name = uniqueName(std::move(componentName));
  components.push_back(std::move(component));
  return *components.back();
}

bool Design::uses(const Appearance& appearance) const {
  return std::any_of(components.begin(), components.end(),
                     [&](const auto& component) { return model::uses(*component, appearance); });
}

std::string Design::uniqueName(std::string wanted) {
  const auto [entry, isNew] = lastNumber.try_emplace(wanted, 0);
  if (isNew) {
    return wanted;
  }
  std::string name;
  do {
    name = wanted + " (" + std::to_string(++entry->second) + ")";
  } while (lastNumber.count(name) != 0);
  lastNumber.emplace(name, 0);
  return name;
}

}  // namespace headless::model
