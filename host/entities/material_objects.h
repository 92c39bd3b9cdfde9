// The API objects of libraries, materials, appearances and properties.
#pragma once

#include <Core/CoreAll.h>

#include <memory>
#include <string>

#include "host/entities/lifetime.h"
#include "host/entities/material_store.h"
#include "host/model/materials.h"

namespace headless {

class AppearanceObject final : public BoundObject<adsk::core::Appearance> {
 public:
  AppearanceObject(Lifetime& lifetime, MaterialStore& materialStore,
                   std::shared_ptr<const model::Appearance> appearance);

  std::string name() const override;
  std::string id() const override;
  bool hasTexture() const override;
  adsk::core::Ptr<adsk::core::Properties> appearanceProperties() const override;
  bool isUsed() const override;
  bool deleteMe() override;

  const std::shared_ptr<const model::Appearance>& data() const { return data_; }

 protected:
  std::string detail() const override { return data_->name; }

 private:
  MaterialStore& store;
  std::shared_ptr<const model::Appearance> data_;
};

class MaterialObject final : public BoundObject<adsk::core::Material> {
 public:
  MaterialObject(Lifetime& lifetime, MaterialStore& materialStore, std::shared_ptr<const model::Material> material);

  std::string name() const override;
  std::string id() const override;
  adsk::core::Ptr<adsk::core::Properties> materialProperties() const override;
  adsk::core::Ptr<adsk::core::Appearance> appearance() const override;

  const std::shared_ptr<const model::Material>& data() const { return data_; }

 protected:
  std::string detail() const override { return data_->name; }

 private:
  MaterialStore& store;
  std::shared_ptr<const model::Material> data_;
};

/// The properties of one material. They cannot be edited: materials are shared and never change.
class PropertiesObject final : public HostObject<adsk::core::Properties> {
 public:
  explicit PropertiesObject(std::shared_ptr<const model::Material> owner) : material(std::move(owner)) {}

  adsk::core::Ptr<adsk::core::Property> itemById(const std::string& id) const override;
  adsk::core::Ptr<adsk::core::Property> itemByName(const std::string& name) const override;
  adsk::core::Ptr<adsk::core::Property> item(int index) const override;
  size_t count() const override;

 private:
  std::shared_ptr<const model::Material> material;
};

/// What the two kinds of properties share.
template <class Interface>
class PropertyObject : public HostObject<Interface> {
 public:
  /// The property must be one of the material's, which it keeps alive.
  PropertyObject(std::shared_ptr<const model::Material> owner, const model::MaterialProperty& property)
      : material(std::move(owner)), data(property) {}

  std::string id() const override {
    return this->call("id", [this] { return data.id; });
  }
  std::string name() const override {
    return this->call("name", [this] { return data.name; });
  }
  bool isReadOnly() const override {
    return this->call("isReadOnly", [] { return true; });
  }

 protected:
  std::string traceDetail() const override { return data.id; }

  std::shared_ptr<const model::Material> material;
  const model::MaterialProperty& data;
};

class FloatPropertyObject final : public PropertyObject<adsk::core::FloatProperty> {
 public:
  using PropertyObject::PropertyObject;

  double value() const override;
  bool value(double value) override;
  std::string units() const override;
};

class StringPropertyObject final : public PropertyObject<adsk::core::StringProperty> {
 public:
  using PropertyObject::PropertyObject;

  std::string value() const override;
};

/// Appearances, or materials, of a library or a design in its order. `Held` is the data as the list holds it.
template <class Interface, class Item, class Data, class Held = const Data>
class ListedItems : public BoundObject<Interface> {
 public:
  using Entries = std::vector<std::shared_ptr<Held>>;
  using Find = adsk::core::Ptr<Item> (MaterialStore::*)(const std::shared_ptr<const Data>&);

  ListedItems(Lifetime& lifetime, MaterialStore& materialStore, const Entries& listed, Find handleFor)
      : BoundObject<Interface>(lifetime), store(materialStore), entries(listed), find(handleFor) {}

  adsk::core::Ptr<Item> item(int index) const override {
    return this->call(
        "item", [&] { return at(index < 0 ? entries.size() : static_cast<std::size_t>(index)); }, index);
  }
  size_t count() const override {
    return this->call("count", [this] { return entries.size(); });
  }
  adsk::core::Ptr<Item> itemByName(const std::string& name) const override {
    return this->call(
        "itemByName", [&] { return first([&](const Data& each) { return each.name == name; }); }, name);
  }
  adsk::core::Ptr<Item> itemById(const std::string& id) const override {
    return this->call(
        "itemById", [&] { return first([&](const Data& each) { return each.id == id; }); }, id);
  }

 private:
  adsk::core::Ptr<Item> at(std::size_t index) const {
    return index < entries.size() ? (store.*find)(entries[index]) : adsk::core::Ptr<Item>();
  }
  template <class Fits>
  adsk::core::Ptr<Item> first(Fits&& fits) const {
    std::size_t index = 0;
    while (index < entries.size() && !fits(*entries[index])) {
      ++index;
    }
    return at(index);
  }

  MaterialStore& store;
  const Entries& entries;
  Find find;
};

/// The appearances of a library, which takes no others.
class LibraryAppearances final
    : public ListedItems<adsk::core::Appearances, adsk::core::Appearance, model::Appearance> {
 public:
  using ListedItems::ListedItems;

  adsk::core::Ptr<adsk::core::Appearance> addByCopy(const adsk::core::Ptr<adsk::core::Appearance>& source,
                                                    const std::string& name) override;
};

class LibraryObject final : public BoundObject<adsk::core::MaterialLibrary> {
 public:
  /// The library must live as long as the lifetime does.
  LibraryObject(Lifetime& libraryLifetime, MaterialStore& materialStore, const model::Library& library);

  std::string name() const override;
  std::string id() const override;
  adsk::core::Ptr<adsk::core::Materials> materials() const override;
  adsk::core::Ptr<adsk::core::Appearances> appearances() const override;
  bool isNative() const override;
  bool unload() override;

  const model::Library& data() const { return library; }

 protected:
  std::string detail() const override { return library.name; }

 private:
  Lifetime& lifetime;
  MaterialStore& store;
  const model::Library& library;
};

class LibrariesObject final : public BoundObject<adsk::core::MaterialLibraries> {
 public:
  LibrariesObject(Lifetime& lifetime, MaterialStore& materialStore);

  adsk::core::Ptr<adsk::core::MaterialLibrary> item(int index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::MaterialLibrary> load(const std::string& filename) override;
  adsk::core::Ptr<adsk::core::MaterialLibrary> itemByName(const std::string& name) const override;
  adsk::core::Ptr<adsk::core::MaterialLibrary> itemById(const std::string& id) const override;

 private:
  MaterialStore& store;
};

}  // namespace headless
