// The API objects of what can be said about an appearance's surface: its colour and its roughness. Those of a design's
// own appearance can be edited, those of a library's cannot.
#pragma once

#include <Core/CoreAll.h>

#include <memory>
#include <string>
#include <utility>

#include "host/entities/lifetime.h"
#include "host/entities/material_store.h"
#include "host/model/materials.h"

namespace headless {

/// A colour on its own; it belongs to no appearance.
class ColorObject final : public HostObject<adsk::core::Color> {
 public:
  explicit ColorObject(const model::Colour& shown) : colour(shown) {}

  short red() const override;
  bool red(short value) override;
  short green() const override;
  bool green(short value) override;
  short blue() const override;
  bool blue(short value) override;
  short opacity() const override;
  bool opacity(short value) override;

  const model::Colour& data() const { return colour; }

 protected:
  std::string traceDetail() const override { return model::hexText(colour); }

 private:
  model::Colour colour;
};

class AppearancePropertiesObject final : public BoundObject<adsk::core::Properties> {
 public:
  AppearancePropertiesObject(Lifetime& lifetime, MaterialStore& materialStore,
                             std::shared_ptr<const model::Appearance> owner);

  adsk::core::Ptr<adsk::core::Property> itemById(const std::string& id) const override;
  adsk::core::Ptr<adsk::core::Property> itemByName(const std::string& name) const override;
  adsk::core::Ptr<adsk::core::Property> item(int index) const override;
  size_t count() const override;

 private:
  MaterialStore& store;
  std::shared_ptr<const model::Appearance> appearance;
};

/// What both properties share.
template <class Interface>
class SurfaceProperty : public BoundObject<Interface> {
 public:
  SurfaceProperty(MaterialStore& materialStore, std::shared_ptr<const model::Appearance> owner,
                  std::pair<const char*, const char*> idAndName)
      : BoundObject<Interface>(materialStore.lifetimeOf(*owner)),
        store(materialStore),
        appearance(std::move(owner)),
        names(std::move(idAndName)) {}

  std::string id() const override {
    return this->call("id", [this] { return std::string(names.first); });
  }
  std::string name() const override {
    return this->call("name", [this] { return std::string(names.second); });
  }
  bool isReadOnly() const override {
    return this->call("isReadOnly", [this] { return store.ownerOf(*appearance) == nullptr; });
  }

 protected:
  std::string detail() const override { return names.first; }

  MaterialStore& store;
  std::shared_ptr<const model::Appearance> appearance;

 private:
  std::pair<const char*, const char*> names;
};

class SurfaceColourObject final : public SurfaceProperty<adsk::core::ColorProperty> {
 public:
  using SurfaceProperty::SurfaceProperty;

  adsk::core::Ptr<adsk::core::Color> value() const override;
  bool value(const adsk::core::Ptr<adsk::core::Color>& value) override;
  bool hasConnectedTexture() const override;
};

class SurfaceRoughnessObject final : public SurfaceProperty<adsk::core::FloatProperty> {
 public:
  using SurfaceProperty::SurfaceProperty;

  double value() const override;
  bool value(double value) override;
  std::string units() const override;
};

}  // namespace headless
