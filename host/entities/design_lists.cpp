#include "host/entities/design_lists.h"

namespace headless {

using adsk::core::Ptr;
using adsk::fusion::BRepBody;
using adsk::fusion::BRepFace;
using adsk::fusion::OccurrenceList;

Ptr<OccurrenceList> OccurrencesObject::asList() const {
  return call("asList", [this]() -> Ptr<OccurrenceList> { return makeObject<OccurrenceListObject>(store, nodes); });
}

BodiesObject::BodiesObject(EntityStore& entityStore, const model::Component& owner, model::Occurrence* seenThrough)
    : BoundObject(entityStore.boundTo()), store(entityStore), component(owner), context(seenThrough) {}

Ptr<BRepBody> BodiesObject::item(size_t index) const {
  return call(
      "item",
      [&]() -> Ptr<BRepBody> {
        return index < component.bodies.size() ? store.body(*component.bodies[index], context) : nullptr;
      },
      index);
}

size_t BodiesObject::count() const {
  return call("count", [this] { return component.bodies.size(); });
}

Ptr<BRepBody> BodiesObject::itemByName(const std::string& name) const {
  return call(
      "itemByName",
      [&]() -> Ptr<BRepBody> {
        for (const auto& body : component.bodies) {
          if (body->name == name) {
            return store.body(*body, context);
          }
        }
        return nullptr;
      },
      name);
}

FacesObject::FacesObject(EntityStore& entityStore, const model::Body& owner, model::Occurrence* seenThrough)
    : BoundObject(entityStore.boundTo()), store(entityStore), body(owner), context(seenThrough) {}

Ptr<BRepFace> FacesObject::item(size_t index) const {
  return call(
      "item",
      [&]() -> Ptr<BRepFace> { return index < body.faces.size() ? store.face(*body.faces[index], context) : nullptr; },
      index);
}

size_t FacesObject::count() const {
  return call("count", [this] { return body.faces.size(); });
}

}  // namespace headless
