#include "host/entities/design_appearances.h"

#include <algorithm>
#include <utility>

#include "host/entities/material_objects.h"
#include "host/entities/one_step.h"

namespace headless {

using adsk::core::Appearance;
using adsk::core::Appearances;
using adsk::core::Ptr;

namespace {

/// The collection of the API.
class DesignAppearancesObject final
    : public ListedItems<Appearances, Appearance, model::Appearance, model::Appearance> {
 public:
  DesignAppearancesObject(Lifetime& lifetime, MaterialStore& materialStore, const Entries& listed,
                          DesignAppearances& listOwner)
      : ListedItems(lifetime, materialStore, listed, &MaterialStore::appearance), owner(listOwner) {}

  Ptr<Appearance> addByCopy(const Ptr<Appearance>& source, const std::string& name) override {
    return call(
        "addByCopy", [&] { return owner.copy(source, name); }, source, name);
  }

 private:
  DesignAppearances& owner;
};

}  // namespace

DesignAppearances::DesignAppearances(model::Design& openDesign, model::History& designHistory,
                                     MaterialStore& materialStore, Lifetime& designLifetime)
    : design(openDesign), history(designHistory), materials(materialStore), lifetime(designLifetime) {
  for (const auto& appearance : design.appearances) {
    own(appearance);
  }
}

DesignAppearances::~DesignAppearances() {
  for (const auto& [appearance, owned] : everOwned) {
    materials.setOwner(*appearance, nullptr);
  }
}

Ptr<Appearances> DesignAppearances::collection() {
  return makeObject<DesignAppearancesObject>(lifetime, materials, design.appearances, *this);
}

Ptr<Appearance> DesignAppearances::copy(const Ptr<Appearance>& source, const std::string& name) {
  const auto* object = objectBehind<AppearanceObject>(source);
  if (object == nullptr || !object->isAlive() || name.empty()) {
    return nullptr;
  }
  const auto copied = std::make_shared<model::Appearance>(*object->data());
  copied->id += "-" + std::to_string(everOwned.size() + 1);
  copied->name = name;
  own(copied);
  auto listed = design.appearances;
  listed.push_back(copied);
  history.assign(design.appearances, std::move(listed));
  return materials.appearance(copied);
}

bool DesignAppearances::remove(const model::Appearance& appearance) {
  const model::Appearance* found = find(appearance);
  if (found == nullptr || isUsed(appearance)) {
    return false;
  }
  auto listed = design.appearances;
  listed.erase(std::find_if(listed.begin(), listed.end(), [&](const auto& each) { return each.get() == found; }));
  history.assign(design.appearances, std::move(listed));
  // Should the deletion be undone, there are new handles.
  materials.setOwner(appearance, this);
  everOwned.at(found).lifetime = std::make_unique<Lifetime>();
  return true;
}

bool DesignAppearances::setColour(const model::Appearance& appearance, const model::Colour& colour) {
  model::Appearance* changed = find(appearance);
  if (changed == nullptr) {
    return false;
  }
  const OneStep step(history);
  history.assign(changed->colour, colour);
  history.assign(changed->hasTexture, false);
  return true;
}

bool DesignAppearances::setRoughness(const model::Appearance& appearance, double roughness) {
  model::Appearance* changed = find(appearance);
  if (changed == nullptr || !changed->roughness || !(roughness >= 0 && roughness <= 1)) {
    return false;
  }
  history.assign(changed->roughness, roughness);
  return true;
}

Lifetime& DesignAppearances::lifetimeOf(const model::Appearance& appearance) {
  return *everOwned.at(&appearance).lifetime;
}

void DesignAppearances::own(const std::shared_ptr<model::Appearance>& appearance) {
  everOwned[appearance.get()] = {appearance, std::make_unique<Lifetime>()};
  materials.setOwner(*appearance, this);
}

// The entry of the list, or nullptr when an undo or a deletion took it out.
model::Appearance* DesignAppearances::find(const model::Appearance& appearance) const {
  for (const auto& each : design.appearances) {
    if (each.get() == &appearance) {
      return each.get();
    }
  }
  return nullptr;
}

}  // namespace headless
