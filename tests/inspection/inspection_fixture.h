// What the tests of the inspection share: an open dialog whose texts are read after picking, and, for what no person
// can bring about, the inspection's own routines linked into the test and put to work on that dialog.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>
#include <utility>
#include <vector>

#include "host/model/resolution.h"
#include "shell/globals.h"
#include "tests/print_handles.h"
#include "tests/support/addin_fixture.h"

namespace tests {

/// The exception of an empty handle as the host's boundary names it.
inline const std::vector<std::string> nullAccess = {"std::exception"};

/// What the dialog says of a body without a material of its own.
inline constexpr const char* steelText = "Physical material: <b>Steel</b>;  Density: 7850 kg.m<sup>-3</sup>";

class InspectionTest : public AddInTest {
 protected:
  using Entity = adsk::core::Ptr<adsk::core::Base>;

  std::string appearanceText() { return markup("idActAppearance"); }
  std::string materialText() { return markup("idActMaterial"); }
  bool isRemoveEnabled() { return isEnabled("idRemoveAssignAppearance"); }

  /// Chooses what may be picked: "Component", "Body" or "Face".
  void pickOnly(const std::string& filter) { session().choose("idFilterSelect", filter); }
  void pickAll(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
      session().pick(path);
    }
  }
  /// Some hosts let more through than the filter says; from now on this one does.
  void letEverythingThrough() { host().ui().runner().active()->selectionInput()->clearSelectionFilter(); }
  /// Picks a thing whatever the filter is.
  void pickUnfiltered(const Entity& entity) {
    letEverythingThrough();
    session().pick(entity);
  }
  void pickComponent(headless::model::Component& component) { pickUnfiltered(entities().component(component)); }
  void pickRoot() { pickComponent(design().root()); }

  /// Nothing is picked any more and the add-in is not told, so that the texts stand.
  void letGoSilently() { host().ui().runner().active()->selectionInput()->dropAll(); }

  headless::EntityStore& entities() { return *host().document()->entities; }
  adsk::core::Ptr<adsk::core::Appearance> handleOf(const std::shared_ptr<const headless::model::Appearance>& look) {
    return host().materials().appearance(look);
  }
  adsk::core::Ptr<adsk::core::Material> handleOf(const std::shared_ptr<const headless::model::Material>& material) {
    return host().materials().material(material);
  }

  /// How often a call was made since the last startCounting().
  std::size_t callsOf(const std::string& name) {
    const auto counts = host().gate().countsByName();
    const auto found = counts.find(name);
    return found == counts.end() ? 0 : found->second;
  }
  void startCounting() { host().gate().resetCounts(); }
  /// The nth call of that name from now on answers nothing.
  void answerNothingAt(const std::string& call, std::size_t nth = 1) {
    host().gate().setFault({nth, headless::FaultAnswer::Nothing, call});
  }
};

/// The routines linked into the test program have globals of their own; they are bound to the dialog of the session.
class LinkedInspectionTest : public InspectionTest {
 protected:
  void TearDown() override { releaseGlobals(); }

  /// To be called when the dialog is open, and again when another one was opened.
  void bindGlobals() {
    tintora::appHandle = host().application();
    bind(tintora::filterSelectInput, "idFilterSelect");
    bind(tintora::selectionInput, "idSelection");
    bind(tintora::actAppearanceInput, "idActAppearance");
    bind(tintora::actMaterialInput, "idActMaterial");
    bind(tintora::removeAppearanceButton, "idRemoveAssignAppearance");
  }

 private:
  template <class Input>
  void bind(adsk::core::Ptr<Input>& global, const std::string& id) {
    global = host().ui().runner().active()->findInput(id)->handle();
  }

  static void releaseGlobals() {
    tintora::appHandle = nullptr;
    tintora::filterSelectInput = nullptr;
    tintora::selectionInput = nullptr;
    tintora::actAppearanceInput = nullptr;
    tintora::actMaterialInput = nullptr;
    tintora::removeAppearanceButton = nullptr;
    tintora::appliedAppearances = tintora::AppliedAppearances();
  }
};

}  // namespace tests
