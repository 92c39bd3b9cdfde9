// The API objects of the open design: one handle object for each entity and context, as the host promises, or a new one
// with every call where the profile says so.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <utility>

#include "host/entities/design_appearances.h"
#include "host/entities/lifetime.h"
#include "host/entities/material_store.h"
#include "host/model/design.h"
#include "host/model/history.h"
#include "host/runtime/profile.h"

namespace headless {

class BodyObject;
class ComponentObject;
class DesignObject;
class FaceObject;
class OccurrenceObject;

/// Gives handles to the entities of one design, and makes the changes that their setters ask for. Everything that it is
/// given must outlive it; when it goes, its handle objects answer with nothing.
class EntityStore {
 public:
  EntityStore(model::Design& openDesign, model::History& designHistory, MaterialStore& materialStore,
              const Profile& hostProfile);
  EntityStore(const EntityStore&) = delete;
  EntityStore& operator=(const EntityStore&) = delete;
  ~EntityStore();

  adsk::core::Ptr<adsk::fusion::Design> design();
  adsk::core::Ptr<adsk::fusion::Component> component(model::Component& component);
  adsk::core::Ptr<adsk::fusion::Occurrence> occurrence(model::Occurrence& occurrence);
  /// `context` is the occurrence through which the body or face is seen; nullptr for a native one.
  adsk::core::Ptr<adsk::fusion::BRepBody> body(model::Body& body, model::Occurrence* context);
  adsk::core::Ptr<adsk::fusion::BRepFace> face(model::Face& face, model::Occurrence* context);

  /// Applies an appearance to a body or face, or removes it when the handle is empty. False when it is refused.
  bool assign(std::shared_ptr<const model::Appearance>& field,
              const adsk::core::Ptr<adsk::core::Appearance>& appearance);
  /// The same for an occurrence.
  bool assign(model::Occurrence& occurrence, const adsk::core::Ptr<adsk::core::Appearance>& appearance);
  /// Sets the material of a body, or of a component and all its own bodies; false for an empty handle.
  bool assign(model::Body& body, const adsk::core::Ptr<adsk::core::Material>& material);
  bool assign(model::Component& component, const adsk::core::Ptr<adsk::core::Material>& material);

  /// The design's own appearances.
  DesignAppearances& appearances() { return designAppearances; }
  MaterialStore& materials() const { return materialStore; }
  const Profile& hostProfile() const { return profile; }
  /// The end of this lifetime is the end of every handle object.
  Lifetime& boundTo() { return lifetime; }

 private:
  using InContext = std::pair<const void*, const void*>;
  struct HashOfInContext {
    std::size_t operator()(const InContext& key) const;
  };

  std::shared_ptr<const model::Appearance> forDesign(const std::shared_ptr<const model::Appearance>& appearance);

  model::Design& openDesign;
  model::History& history;
  MaterialStore& materialStore;
  const Profile& profile;
  // Ends last, after the handles below are let go.
  Lifetime lifetime;
  HandleMap<const void*, adsk::fusion::Design> designs;
  HandleMap<const void*, adsk::fusion::Component> components;
  HandleMap<const void*, adsk::fusion::Occurrence> occurrences;
  HandleMap<InContext, adsk::fusion::BRepBody, HashOfInContext> bodies;
  HandleMap<InContext, adsk::fusion::BRepFace, HashOfInContext> faces;
  DesignAppearances designAppearances;
  std::unordered_map<std::shared_ptr<const model::Appearance>, std::shared_ptr<const model::Appearance>> copies;
};

}  // namespace headless
