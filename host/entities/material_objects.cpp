#include "host/entities/material_objects.h"

#include <utility>
#include <variant>

#include "host/entities/appearance_properties.h"
#include "host/entities/design_appearances.h"

namespace headless {

using adsk::core::Appearance;
using adsk::core::Appearances;
using adsk::core::Material;
using adsk::core::MaterialLibrary;
using adsk::core::Materials;
using adsk::core::Properties;
using adsk::core::Property;
using adsk::core::Ptr;

AppearanceObject::AppearanceObject(Lifetime& lifetime, MaterialStore& materialStore,
                                   std::shared_ptr<const model::Appearance> appearance)
    : BoundObject(lifetime), store(materialStore), data_(std::move(appearance)) {}

std::string AppearanceObject::name() const {
  return call("name", [this] { return data_->name; });
}

std::string AppearanceObject::id() const {
  return call("id", [this] { return data_->id; });
}

bool AppearanceObject::hasTexture() const {
  return call("hasTexture", [this] { return data_->hasTexture; });
}

Ptr<Properties> AppearanceObject::appearanceProperties() const {
  return call("appearanceProperties", [this]() -> Ptr<Properties> {
    return makeObject<AppearancePropertiesObject>(store.lifetimeOf(*data_), store, data_);
  });
}

bool AppearanceObject::isUsed() const {
  return call("isUsed", [this] {
    const DesignAppearances* owner = store.ownerOf(*data_);
    return owner != nullptr && owner->isUsed(*data_);
  });
}

bool AppearanceObject::deleteMe() {
  return call("deleteMe", [this] {
    DesignAppearances* owner = store.ownerOf(*data_);
    return owner != nullptr && owner->remove(*data_);
  });
}

MaterialObject::MaterialObject(Lifetime& lifetime, MaterialStore& materialStore,
                               std::shared_ptr<const model::Material> material)
    : BoundObject(lifetime), store(materialStore), data_(std::move(material)) {}

std::string MaterialObject::name() const {
  return call("name", [this] { return data_->name; });
}

std::string MaterialObject::id() const {
  return call("id", [this] { return data_->id; });
}

Ptr<Properties> MaterialObject::materialProperties() const {
  return call("materialProperties", [this]() -> Ptr<Properties> { return makeObject<PropertiesObject>(data_); });
}

Ptr<Appearance> MaterialObject::appearance() const {
  return call("appearance", [this] { return store.appearance(data_->appearance); });
}

namespace {

Ptr<Property> propertyAt(const std::shared_ptr<const model::Material>& material, std::size_t index) {
  if (index >= material->properties.size()) {
    return nullptr;
  }
  const model::MaterialProperty& property = material->properties[index];
  if (std::holds_alternative<double>(property.value)) {
    return makeObject<FloatPropertyObject>(material, property);
  }
  return makeObject<StringPropertyObject>(material, property);
}

template <class Fits>
Ptr<Property> firstProperty(const std::shared_ptr<const model::Material>& material, Fits&& fits) {
  std::size_t index = 0;
  while (index < material->properties.size() && !fits(material->properties[index])) {
    ++index;
  }
  return propertyAt(material, index);
}

}  // namespace

Ptr<Property> PropertiesObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return firstProperty(material, [&](const auto& each) { return each.id == id; }); }, id);
}

Ptr<Property> PropertiesObject::itemByName(const std::string& name) const {
  return call(
      "itemByName", [&] { return firstProperty(material, [&](const auto& each) { return each.name == name; }); }, name);
}

Ptr<Property> PropertiesObject::item(int index) const {
  return call(
      "item", [&] { return index < 0 ? Ptr<Property>() : propertyAt(material, static_cast<std::size_t>(index)); },
      index);
}

size_t PropertiesObject::count() const {
  return call("count", [this] { return material->properties.size(); });
}

double FloatPropertyObject::value() const {
  return call("value", [this] { return std::get<double>(data.value); });
}

bool FloatPropertyObject::value(double value) {
  return call(
      "value=", [] { return false; }, value);
}

std::string FloatPropertyObject::units() const {
  return call("units", [this] { return data.unit; });
}

std::string StringPropertyObject::value() const {
  return call("value", [this] { return std::get<std::string>(data.value); });
}

Ptr<Appearance> LibraryAppearances::addByCopy(const Ptr<Appearance>& source, const std::string& name) {
  return call(
      "addByCopy", [] { return Ptr<Appearance>(); }, source, name);
}

LibraryObject::LibraryObject(Lifetime& libraryLifetime, MaterialStore& materialStore, const model::Library& library)
    : BoundObject(libraryLifetime), lifetime(libraryLifetime), store(materialStore), library(library) {}

std::string LibraryObject::name() const {
  return call("name", [this] { return library.name; });
}

std::string LibraryObject::id() const {
  return call("id", [this] { return library.id; });
}

Ptr<Materials> LibraryObject::materials() const {
  using Items = ListedItems<Materials, Material, model::Material>;
  return call("materials", [this]() -> Ptr<Materials> {
    return makeObject<Items>(lifetime, store, library.materials, &MaterialStore::material);
  });
}

Ptr<Appearances> LibraryObject::appearances() const {
  return call("appearances", [this]() -> Ptr<Appearances> {
    return makeObject<LibraryAppearances>(lifetime, store, library.appearances, &MaterialStore::appearance);
  });
}

bool LibraryObject::isNative() const {
  return call("isNative", [this] { return library.isNative; });
}

bool LibraryObject::unload() {
  return call("unload", [this] { return store.unload(library); });
}

LibrariesObject::LibrariesObject(Lifetime& lifetime, MaterialStore& materialStore)
    : BoundObject(lifetime), store(materialStore) {}

Ptr<MaterialLibrary> LibrariesObject::item(int index) const {
  return call(
      "item", [&] { return index < 0 ? Ptr<MaterialLibrary>() : store.library(static_cast<std::size_t>(index)); },
      index);
}

size_t LibrariesObject::count() const {
  return call("count", [this] { return store.libraryCount(); });
}

Ptr<MaterialLibrary> LibrariesObject::load(const std::string& filename) {
  return call(
      "load", [&] { return store.load(filename); }, filename);
}

Ptr<MaterialLibrary> LibrariesObject::itemByName(const std::string& name) const {
  return call(
      "itemByName", [&] { return store.firstLibrary([&](const auto& each) { return each.name == name; }); }, name);
}

Ptr<MaterialLibrary> LibrariesObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return store.firstLibrary([&](const auto& each) { return each.id == id; }); }, id);
}

}  // namespace headless
