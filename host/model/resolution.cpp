#include "host/model/resolution.h"

#include <vector>

namespace headless::model {

namespace {

using Path = std::vector<const Occurrence*>;

/// The node and everything above it, nearest first.
Path pathUpFrom(const Occurrence& node) {
  Path path;
  for (const Occurrence* above = &node; above != nullptr; above = above->parent) {
    path.push_back(above);
  }
  return path;
}

/// Calls visit(level, node) for every node that lies at the place of path[level], as seen from the own tree of a
/// component further up the path: nearest component first, and inside its tree from the top down. Components whose tree
/// was never made are passed over.
template <class Visit>
void visitNativeNodes(const Path& path, Visit&& visit) {
  for (std::size_t owner = 1; owner < path.size(); ++owner) {
    const Component& component = path[owner]->component();
    if (!component.isExpanded()) {
      continue;
    }
    const std::vector<Occurrence*>* siblings = &component.occurrences();
    for (std::size_t level = owner; level-- > 0;) {
      Occurrence* node = (*siblings)[path[level]->position];
      visit(level, node);
      siblings = &node->children;
    }
  }
}

bool hasNativeTrees(const Occurrence& node) {
  return node.component().design->hasNativeTrees;
}

/// The node on the way up from `context` whose look a body there shows; nullptr when none has one.
const Occurrence* nearestCarrier(const Occurrence* context) {
  if (context == nullptr) {
    return nullptr;
  }
  const Occurrence* carrier = context;
  std::size_t carrierLevel = 0;
  while (carrier != nullptr && !carrier->appearance) {
    carrier = carrier->parent;
    ++carrierLevel;
  }
  if (carrierLevel == 0 || !hasNativeTrees(*context)) {
    return carrier;
  }
  visitNativeNodes(pathUpFrom(*context), [&](std::size_t level, const Occurrence* node) {
    if (node->appearance && level < carrierLevel) {
      carrier = node;
      carrierLevel = level;
    }
  });
  return carrier;
}

Look lookBelowBody(const Body& body, const Occurrence* context) {
  if (const Occurrence* carrier = nearestCarrier(context)) {
    return {carrier->appearance, Source::Occurrence};
  }
  return {body.material ? body.material->appearance : nullptr, Source::Material};
}

}  // namespace

Occurrence* lookCarrier(Occurrence& occurrence) {
  if (occurrence.appearance) {
    return &occurrence;
  }
  if (!hasNativeTrees(occurrence)) {
    return nullptr;
  }
  Occurrence* carrier = nullptr;
  visitNativeNodes(pathUpFrom(occurrence), [&](std::size_t level, Occurrence* node) {
    if (level == 0 && node->appearance && carrier == nullptr) {
      carrier = node;
    }
  });
  return carrier;
}

Look lookOf(const Body& body, const Occurrence* context) {
  if (body.appearance) {
    return {body.appearance, Source::Body};
  }
  return lookBelowBody(body, context);
}

Look lookOf(const Face& face, const Occurrence* context) {
  if (face.appearance) {
    return {face.appearance, Source::Face};
  }
  return lookOf(*face.body, context);
}

std::shared_ptr<const Material> materialOf(const Component& component) {
  if (component.bodies.empty()) {
    return component.material;
  }
  const auto& first = component.bodies.front()->material;
  for (const auto& body : component.bodies) {
    if (body->material != first) {
      return nullptr;
    }
  }
  return first;
}

}  // namespace headless::model
