#include "host/runtime/pickable.h"

#include <algorithm>

#include "host/entities/design_objects.h"

namespace headless {

using adsk::core::Base;
using adsk::core::Ptr;

namespace {

std::string bodyPath(const model::Body& body, const model::Occurrence* context) {
  return context == nullptr ? body.name : context->fullPathName() + "/" + body.name;
}

std::string facePath(const model::Face& face, const model::Occurrence* context) {
  const auto& faces = face.body->faces;
  const auto position =
      std::find_if(faces.begin(), faces.end(), [&](const auto& each) { return each.get() == &face; }) - faces.begin();
  return bodyPath(*face.body, context) + "/Face" + std::to_string(position + 1);
}

void addBody(model::Body& body, model::Occurrence* context, PickKind kind, std::vector<Pickable>& found) {
  const std::string path = bodyPath(body, context);
  if (kind == PickKind::Body) {
    found.push_back({path, context, &body, nullptr});
    return;
  }
  for (std::size_t i = 0; i < body.faces.size(); ++i) {
    found.push_back({path + "/Face" + std::to_string(i + 1), context, &body, body.faces[i].get()});
  }
}

}  // namespace

std::vector<Pickable> pickablesOf(const model::Design& design, PickKind kind) {
  std::vector<Pickable> found;
  if (kind != PickKind::Component) {
    for (const auto& body : design.root().bodies) {
      addBody(*body, nullptr, kind, found);
    }
  }
  for (model::Occurrence* occurrence : design.root().allOccurrences()) {
    if (kind == PickKind::Component) {
      found.push_back({occurrence->fullPathName(), occurrence, nullptr, nullptr});
      continue;
    }
    for (const auto& body : occurrence->component().bodies) {
      addBody(*body, occurrence, kind, found);
    }
  }
  return found;
}

Ptr<Base> handleOf(const Pickable& pickable, EntityStore& entities) {
  if (pickable.face != nullptr) {
    return entities.face(*pickable.face, pickable.occurrence);
  }
  if (pickable.body != nullptr) {
    return entities.body(*pickable.body, pickable.occurrence);
  }
  return entities.occurrence(*pickable.occurrence);
}

std::string pathOf(const Ptr<Base>& entity) {
  if (!isThere(entity)) {
    return {};
  }
  if (const auto* occurrence = objectBehind<OccurrenceObject>(entity)) {
    return occurrence->data().fullPathName();
  }
  if (const auto* body = objectBehind<BodyObject>(entity)) {
    return bodyPath(body->data(), body->context());
  }
  if (const auto* face = objectBehind<FaceObject>(entity)) {
    return facePath(face->data(), face->context());
  }
  const auto* component = objectBehind<ComponentObject>(entity);
  return component != nullptr ? component->data().name : std::string();
}

}  // namespace headless
