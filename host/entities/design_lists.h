// The API's lists over the parts of a design. They look into the model's own lists and copy nothing.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <memory>
#include <string>
#include <vector>

#include "host/entities/entity_store.h"
#include "host/entities/lifetime.h"
#include "host/model/design.h"

namespace headless {

/// Occurrences of a tree, for both of the API's list classes.
template <class Interface>
class OccurrencesOf : public BoundObject<Interface> {
 public:
  OccurrencesOf(EntityStore& entityStore, const std::vector<model::Occurrence*>& listed)
      : BoundObject<Interface>(entityStore.boundTo()), store(entityStore), nodes(listed) {}

  adsk::core::Ptr<adsk::fusion::Occurrence> item(size_t index) const override {
    return this->call(
        "item",
        [&]() -> adsk::core::Ptr<adsk::fusion::Occurrence> {
          return index < nodes.size() ? store.occurrence(*nodes[index]) : nullptr;
        },
        index);
  }
  size_t count() const override {
    return this->call("count", [this] { return nodes.size(); });
  }
  adsk::core::Ptr<adsk::fusion::Occurrence> itemByName(const std::string& name) const override {
    return this->call(
        "itemByName",
        [&]() -> adsk::core::Ptr<adsk::fusion::Occurrence> {
          for (model::Occurrence* node : nodes) {
            if (node->instance->isNamed(name)) {
              return store.occurrence(*node);
            }
          }
          return nullptr;
        },
        name);
  }

 protected:
  EntityStore& store;
  const std::vector<model::Occurrence*>& nodes;
};

class OccurrenceListObject final : public OccurrencesOf<adsk::fusion::OccurrenceList> {
 public:
  using OccurrencesOf::OccurrencesOf;
};

class OccurrencesObject final : public OccurrencesOf<adsk::fusion::Occurrences> {
 public:
  using OccurrencesOf::OccurrencesOf;

  adsk::core::Ptr<adsk::fusion::OccurrenceList> asList() const override;
};

/// The bodies of a component, as seen through `context` when there is one.
class BodiesObject final : public BoundObject<adsk::fusion::BRepBodies> {
 public:
  BodiesObject(EntityStore& entityStore, const model::Component& owner, model::Occurrence* seenThrough);

  adsk::core::Ptr<adsk::fusion::BRepBody> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::fusion::BRepBody> itemByName(const std::string& name) const override;

 private:
  EntityStore& store;
  const model::Component& component;
  model::Occurrence* context;
};

/// The faces of a body, in the body's context.
class FacesObject final : public BoundObject<adsk::fusion::BRepFaces> {
 public:
  FacesObject(EntityStore& entityStore, const model::Body& owner, model::Occurrence* seenThrough);

  adsk::core::Ptr<adsk::fusion::BRepFace> item(size_t index) const override;
  size_t count() const override;

 private:
  EntityStore& store;
  const model::Body& body;
  model::Occurrence* context;
};

}  // namespace headless
