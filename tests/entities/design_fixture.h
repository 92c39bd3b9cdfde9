// A small assembly behind the API, as the entity tests share it: the root has a body "Base" and holds Sub:1, Sub:2 and
// Bolt:3; Sub holds Bolt:1 and Bolt:2; Bolt has the bodies "Head" (two faces) and "Shaft" (one face). One appearance
// and one material are the document's own, and one library holds two more of each.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host/entities/design_objects.h"
#include "host/entities/entity_store.h"
#include "host/entities/material_objects.h"
#include "host/entities/material_store.h"
#include "host/model/design.h"
#include "host/model/history.h"
#include "host/runtime/call_gate.h"
#include "host/runtime/profile.h"
#include "tests/print_handles.h"

namespace headless {

struct DesignFixture : testing::Test {
  Profile profile;
  CallGate gate;
  model::Design design{"Assembly"};
  model::History history;
  std::unique_ptr<MaterialStore> materials;
  std::unique_ptr<EntityStore> store;

  model::Component* sub = nullptr;
  model::Component* bolt = nullptr;
  model::Body* head = nullptr;

  adsk::core::Ptr<adsk::fusion::Component> root;
  adsk::core::Ptr<adsk::core::Appearance> green;
  adsk::core::Ptr<adsk::core::Material> lead;
  adsk::core::Ptr<adsk::core::MaterialLibrary> library;

  void SetUp() override {
    design.root().addBody("Base").addFace();
    sub = &design.addComponent("Sub");
    bolt = &design.addComponent("Bolt");
    head = &bolt->addBody("Head");
    head->addFace();
    head->addFace();
    bolt->addBody("Shaft").addFace();
    sub->addInstance(*bolt);
    sub->addInstance(*bolt);
    design.root().addInstance(*sub);
    design.root().addInstance(*sub);
    design.root().addInstance(*bolt);
    open();
  }

  /// Opens the design, again with the profile as it is now.
  void open() {
    store.reset();
    materials = std::make_unique<MaterialStore>(profile);
    store = std::make_unique<EntityStore>(design, history, *materials, profile);
    root = store->design()->rootComponent();
    green = materials->appearance(model::makeColourAppearance({0, 128, 0}));
    lead = materials->material(model::makeMaterial("Lead", 11340, model::makeColourAppearance({90, 90, 95})));
    library = materials->add(workshop());
  }

  static model::Library workshop() {
    model::Library made;
    made.id = "workshop";
    made.name = "Workshop";
    for (const char* name : {"Red", "Blue"}) {
      model::Appearance appearance;
      appearance.name = name;
      appearance.id = std::string("id-") + name;
      made.appearances.push_back(std::make_shared<const model::Appearance>(appearance));
      made.materials.push_back(model::makeMaterial(std::string(name) + " brass", 8500, made.appearances.back()));
    }
    return made;
  }

  adsk::core::Ptr<adsk::fusion::Occurrence> occurrence(const std::string& fullPath) const {
    for (const auto& each : root->allOccurrences()) {
      if (each->fullPathName() == fullPath) {
        return each;
      }
    }
    ADD_FAILURE() << "no occurrence " << fullPath;
    return nullptr;
  }
  adsk::core::Ptr<adsk::fusion::BRepBody> headOf(const std::string& fullPath) const {
    return occurrence(fullPath)->bRepBodies()->itemByName("Head");
  }
  adsk::core::Ptr<adsk::core::Appearance> libraryAppearance(const char* name) const {
    return library->appearances()->itemByName(name);
  }
};

}  // namespace headless
