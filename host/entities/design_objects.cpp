#include "host/entities/design_objects.h"

#include "host/entities/design_lists.h"

namespace headless {

using adsk::core::Appearance;
using adsk::core::Appearances;
using adsk::core::Material;
using adsk::core::Ptr;
using adsk::fusion::BRepBodies;
using adsk::fusion::BRepBody;
using adsk::fusion::BRepFaces;
using adsk::fusion::Component;
using adsk::fusion::Design;
using adsk::fusion::OccurrenceList;
using adsk::fusion::Occurrences;

DesignObject::DesignObject(EntityStore& entityStore, model::Design& design)
    : BoundObject(entityStore.boundTo()), store(entityStore), data(design) {}

Ptr<Component> DesignObject::rootComponent() const {
  return call("rootComponent", [this] { return store.component(data.root()); });
}

Ptr<Appearances> DesignObject::appearances() const {
  return call("appearances", [this] { return store.appearances().collection(); });
}

ComponentObject::ComponentObject(EntityStore& entityStore, model::Component& component)
    : BoundObject(entityStore.boundTo()), store(entityStore), data_(component) {}

std::string ComponentObject::name() const {
  return call("name", [this] { return data_.name; });
}

Ptr<Occurrences> ComponentObject::occurrences() const {
  return call("occurrences",
              [this]() -> Ptr<Occurrences> { return makeObject<OccurrencesObject>(store, data_.occurrences()); });
}

Ptr<OccurrenceList> ComponentObject::allOccurrences() const {
  return call("allOccurrences", [this]() -> Ptr<OccurrenceList> {
    return makeObject<OccurrenceListObject>(store, data_.allOccurrences());
  });
}

Ptr<BRepBodies> ComponentObject::bRepBodies() const {
  return call("bRepBodies", [this]() -> Ptr<BRepBodies> { return makeObject<BodiesObject>(store, data_, nullptr); });
}

Ptr<Material> ComponentObject::material() const {
  return call("material", [this] { return store.materials().material(model::materialOf(data_)); });
}

bool ComponentObject::material(const Ptr<Material>& value) {
  return call(
      "material=", [&] { return store.assign(data_, value); }, value);
}

Ptr<Design> ComponentObject::parentDesign() const {
  return call("parentDesign", [this] { return store.design(); });
}

OccurrenceObject::OccurrenceObject(EntityStore& entityStore, model::Occurrence& occurrence)
    : BoundObject(entityStore.boundTo()), store(entityStore), data_(occurrence) {}

std::string OccurrenceObject::name() const {
  return call("name", [this] { return data_.name(); });
}

std::string OccurrenceObject::fullPathName() const {
  return call("fullPathName", [this] { return data_.fullPathName(); });
}

Ptr<Component> OccurrenceObject::component() const {
  return call("component", [this] { return store.component(data_.component()); });
}

Ptr<OccurrenceList> OccurrenceObject::childOccurrences() const {
  return call("childOccurrences",
              [this]() -> Ptr<OccurrenceList> { return makeObject<OccurrenceListObject>(store, data_.children); });
}

Ptr<BRepBodies> OccurrenceObject::bRepBodies() const {
  return call("bRepBodies",
              [this]() -> Ptr<BRepBodies> { return makeObject<BodiesObject>(store, data_.component(), &data_); });
}

Ptr<Appearance> OccurrenceObject::appearance() const {
  return call("appearance", [this]() -> Ptr<Appearance> {
    const model::Occurrence* carrier = model::lookCarrier(data_);
    return carrier != nullptr ? store.materials().appearance(carrier->appearance) : nullptr;
  });
}

bool OccurrenceObject::appearance(const Ptr<Appearance>& value) {
  return call(
      "appearance=", [&] { return store.assign(data_, value); }, value);
}

std::string BodyObject::name() const {
  return call("name", [this] { return data_.name; });
}

Ptr<Material> BodyObject::material() const {
  return call("material", [this] { return store.materials().material(data_.material); });
}

bool BodyObject::material(const Ptr<Material>& value) {
  return call(
      "material=", [&] { return store.assign(data_, value); }, value);
}

Ptr<BRepFaces> BodyObject::faces() const {
  return call("faces", [this]() -> Ptr<BRepFaces> { return makeObject<FacesObject>(store, data_, context_); });
}

Ptr<Component> BodyObject::parentComponent() const {
  return call("parentComponent", [this] { return store.component(*data_.component); });
}

Ptr<BRepBody> FaceObject::body() const {
  return call("body", [this] { return store.body(*data_.body, context_); });
}

}  // namespace headless
