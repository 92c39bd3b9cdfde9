#include "host/entities/entity_store.h"

#include "host/entities/design_objects.h"
#include "host/entities/material_objects.h"
#include "host/entities/one_step.h"
#include "host/model/resolution.h"

namespace headless {

using adsk::core::Ptr;

EntityStore::EntityStore(model::Design& openDesign, model::History& designHistory, MaterialStore& materialStore,
                         const Profile& hostProfile)
    : openDesign(openDesign),
      history(designHistory),
      materialStore(materialStore),
      profile(hostProfile),
      designs(profile.freshWrappers),
      components(profile.freshWrappers),
      occurrences(profile.freshWrappers),
      bodies(profile.freshWrappers),
      faces(profile.freshWrappers),
      designAppearances(openDesign, history, materialStore, lifetime) {}

EntityStore::~EntityStore() = default;

Ptr<adsk::fusion::Design> EntityStore::design() {
  return designs.get(&openDesign, [this] { return makeObject<DesignObject>(*this, openDesign); });
}

Ptr<adsk::fusion::Component> EntityStore::component(model::Component& component) {
  return components.get(&component, [&] { return makeObject<ComponentObject>(*this, component); });
}

Ptr<adsk::fusion::Occurrence> EntityStore::occurrence(model::Occurrence& occurrence) {
  return occurrences.get(&occurrence, [&] { return makeObject<OccurrenceObject>(*this, occurrence); });
}

Ptr<adsk::fusion::BRepBody> EntityStore::body(model::Body& body, model::Occurrence* context) {
  return bodies.get({&body, context}, [&] { return makeObject<BodyObject>(*this, body, context); });
}

Ptr<adsk::fusion::BRepFace> EntityStore::face(model::Face& face, model::Occurrence* context) {
  return faces.get({&face, context}, [&] { return makeObject<FaceObject>(*this, face, context); });
}

bool EntityStore::assign(std::shared_ptr<const model::Appearance>& field,
                         const Ptr<adsk::core::Appearance>& appearance) {
  if (!appearance) {
    history.assign(field, nullptr);
    return true;
  }
  const auto* object = objectBehind<AppearanceObject>(appearance);
  if (object == nullptr || !object->isAlive()) {
    return false;
  }
  const auto applied = forDesign(object->data());
  if (!applied) {
    return false;
  }
  history.assign(field, applied);
  return true;
}

bool EntityStore::assign(model::Occurrence& occurrence, const Ptr<adsk::core::Appearance>& appearance) {
  if (appearance) {
    return assign(occurrence.appearance, appearance);
  }
  const OneStep step(history);
  while (model::Occurrence* carrier = model::lookCarrier(occurrence)) {
    history.assign(carrier->appearance, nullptr);
  }
  return true;
}

bool EntityStore::assign(model::Body& body, const Ptr<adsk::core::Material>& material) {
  const auto* object = objectBehind<MaterialObject>(material);
  if (object == nullptr || !object->isAlive()) {
    return false;
  }
  history.assign(body.material, object->data());
  return true;
}

bool EntityStore::assign(model::Component& component, const Ptr<adsk::core::Material>& material) {
  const auto* object = objectBehind<MaterialObject>(material);
  if (object == nullptr || !object->isAlive()) {
    return false;
  }
  const OneStep step(history);
  history.assign(component.material, object->data());
  for (const auto& body : component.bodies) {
    history.assign(body->material, object->data());
  }
  return true;
}

/// The appearance as the design takes it: itself, its copy, or none when it is refused. Only those of libraries are
/// treated in a special way.
std::shared_ptr<const model::Appearance> EntityStore::forDesign(
    const std::shared_ptr<const model::Appearance>& appearance) {
  if (profile.libraryAppearance == LibraryAppearance::Accepted || !materialStore.isInLibrary(*appearance)) {
    return appearance;
  }
  if (profile.libraryAppearance == LibraryAppearance::Refused) {
    return nullptr;
  }
  auto& copy = copies[appearance];
  if (!copy) {
    model::Appearance copied = *appearance;
    copied.id += "-copy";
    copy = std::make_shared<const model::Appearance>(std::move(copied));
  }
  return copy;
}

std::size_t EntityStore::HashOfInContext::operator()(const InContext& key) const {
  const std::size_t entity = std::hash<const void*>()(key.first);
  const std::size_t context = std::hash<const void*>()(key.second);
  return entity ^ (context + 0x9e3779b97f4a7c15u + (entity << 6u) + (entity >> 2u));
}

}  // namespace headless
