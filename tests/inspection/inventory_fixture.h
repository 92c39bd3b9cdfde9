// The inventory taken by the linked routine, compared by what the entities are and not by their handles.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "inspection/applied_appearances.h"
#include "tests/inspection/inspection_fixture.h"
#include "tests/inspection/random_assembly.h"

namespace tests {

inline EntityKey keyOf(const adsk::core::Ptr<adsk::core::Base>& entity) {
  return dynamic_cast<const headless::ModelEntity&>(*entity.get()).identity();
}

template <class Entity>
std::map<EntityKey, std::string> named(const tintora::AppearanceOverrides<Entity>& overrides) {
  std::map<EntityKey, std::string> names;
  for (const auto& [entity, appearance] : overrides) {
    names.emplace(keyOf(entity), appearance->name());
  }
  return names;
}

/// What was recorded last.
inline PlainInventory taken() {
  const tintora::AppliedAppearances& applied = tintora::appliedAppearances;
  return {named(applied.occurrenceOverrides), named(applied.bodyOverrides), named(applied.faceOverrides)};
}

class InventoryTest : public LinkedInspectionTest {
 protected:
  Entity handleOf(const Selected& selected) {
    return selected.component != nullptr ? Entity(entities().component(*selected.component))
                                         : headless::handleOf(selected.pickable, entities());
  }
  using InspectionTest::handleOf;

  void collect(const std::vector<Selected>& selection) {
    std::vector<Entity> handles;
    for (const Selected& each : selection) {
      handles.push_back(handleOf(each));
    }
    tintora::collectAppliedAppearances(handles);
  }

  Selected root() { return {&design().root(), {}}; }
  Selected occurrenceOf(const std::string& path) { return {nullptr, {path, &occurrence(path), nullptr, nullptr}}; }
};

}  // namespace tests
