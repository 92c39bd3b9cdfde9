// The API objects of a design: components, occurrences, bodies and faces. They hold no state of their own; what they
// show is worked out from the model at each call. A body or face seen through an occurrence is an object of its own
// that shares the native one's data.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>
#include <utility>

#include "host/entities/entity_store.h"
#include "host/entities/lifetime.h"
#include "host/model/design.h"
#include "host/model/resolution.h"

namespace headless {

class DesignObject final : public BoundObject<adsk::fusion::Design> {
 public:
  DesignObject(EntityStore& entityStore, model::Design& design);

  adsk::core::Ptr<adsk::fusion::Component> rootComponent() const override;
  adsk::core::Ptr<adsk::core::Appearances> appearances() const override;

 protected:
  std::string detail() const override { return data.name; }

 private:
  EntityStore& store;
  model::Design& data;
};

class ComponentObject final : public BoundObject<adsk::fusion::Component>, public ModelEntity {
 public:
  ComponentObject(EntityStore& entityStore, model::Component& component);

  std::string name() const override;
  adsk::core::Ptr<adsk::fusion::Occurrences> occurrences() const override;
  adsk::core::Ptr<adsk::fusion::OccurrenceList> allOccurrences() const override;
  adsk::core::Ptr<adsk::fusion::BRepBodies> bRepBodies() const override;
  adsk::core::Ptr<adsk::core::Material> material() const override;
  bool material(const adsk::core::Ptr<adsk::core::Material>& value) override;
  adsk::core::Ptr<adsk::fusion::Design> parentDesign() const override;

  std::pair<const void*, const void*> identity() const override { return {&data_, nullptr}; }
  model::Component& data() const { return data_; }

 protected:
  std::string detail() const override { return data_.name; }

 private:
  EntityStore& store;
  model::Component& data_;
};

class OccurrenceObject final : public BoundObject<adsk::fusion::Occurrence>, public ModelEntity {
 public:
  OccurrenceObject(EntityStore& entityStore, model::Occurrence& occurrence);

  std::string name() const override;
  std::string fullPathName() const override;
  adsk::core::Ptr<adsk::fusion::Component> component() const override;
  adsk::core::Ptr<adsk::fusion::OccurrenceList> childOccurrences() const override;
  adsk::core::Ptr<adsk::fusion::BRepBodies> bRepBodies() const override;
  adsk::core::Ptr<adsk::core::Appearance> appearance() const override;
  bool appearance(const adsk::core::Ptr<adsk::core::Appearance>& value) override;

  std::pair<const void*, const void*> identity() const override { return {&data_, nullptr}; }
  model::Occurrence& data() const { return data_; }

 protected:
  std::string detail() const override { return data_.fullPathName(); }

 private:
  EntityStore& store;
  model::Occurrence& data_;
};

/// What bodies and faces have in common: a look that may be their own, and a context.
template <class Interface, class Data>
class SeenObject : public BoundObject<Interface>, public ModelEntity {
 public:
  adsk::core::Ptr<adsk::core::Appearance> appearance() const override {
    return this->call("appearance", [this] { return store.materials().appearance(look().appearance); });
  }
  bool appearance(const adsk::core::Ptr<adsk::core::Appearance>& value) override {
    return this->call(
        "appearance=", [&] { return store.assign(data_.appearance, value); }, value);
  }
  adsk::core::AppearanceSourceTypes appearanceSourceType() const override {
    return this->call("appearanceSourceType", [this] {
      const bool isOverride = data_.appearance && store.hostProfile().ownAppearanceIsOverride;
      return static_cast<adsk::core::AppearanceSourceTypes>(isOverride ? model::Source::Override : look().source);
    });
  }
  adsk::core::Ptr<adsk::fusion::Occurrence> assemblyContext() const override {
    return this->call("assemblyContext", [this]() -> adsk::core::Ptr<adsk::fusion::Occurrence> {
      return context_ != nullptr ? store.occurrence(*context_) : nullptr;
    });
  }

  std::pair<const void*, const void*> identity() const override { return {&data_, context_}; }
  Data& data() const { return data_; }
  /// The occurrence through which it is seen; nullptr for a native one.
  model::Occurrence* context() const { return context_; }

 protected:
  SeenObject(EntityStore& entityStore, Data& data, model::Occurrence* context)
      : BoundObject<Interface>(entityStore.boundTo()), store(entityStore), data_(data), context_(context) {}

  model::Look look() const { return model::lookOf(data_, context_); }
  std::string detailOf(const model::Body& body) const {
    return context_ != nullptr ? context_->fullPathName() + "+" + body.name : body.name;
  }

  EntityStore& store;
  Data& data_;
  model::Occurrence* context_;
};

class BodyObject final : public SeenObject<adsk::fusion::BRepBody, model::Body> {
 public:
  BodyObject(EntityStore& entityStore, model::Body& body, model::Occurrence* context)
      : SeenObject(entityStore, body, context) {}

  std::string name() const override;
  adsk::core::Ptr<adsk::core::Material> material() const override;
  bool material(const adsk::core::Ptr<adsk::core::Material>& value) override;
  adsk::core::Ptr<adsk::fusion::BRepFaces> faces() const override;
  adsk::core::Ptr<adsk::fusion::Component> parentComponent() const override;

 protected:
  std::string detail() const override { return detailOf(data()); }
};

class FaceObject final : public SeenObject<adsk::fusion::BRepFace, model::Face> {
 public:
  FaceObject(EntityStore& entityStore, model::Face& face, model::Occurrence* context)
      : SeenObject(entityStore, face, context) {}

  adsk::core::Ptr<adsk::fusion::BRepBody> body() const override;

 protected:
  std::string detail() const override { return detailOf(*data().body); }
};

}  // namespace headless
