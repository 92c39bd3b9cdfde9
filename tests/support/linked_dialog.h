// Lets the routines that are linked into the test program work on the open dialog, which the module has built.
#pragma once

#include "host/runtime/host.h"
#include "shell/globals.h"

namespace tests {

/// Fills their globals with the dialog's handles, and empties them at its end.
class LinkedDialog {
 public:
  explicit LinkedDialog(headless::Host& host) {
    tintora::appHandle = host.application();
    tintora::uiHandle = tintora::appHandle->userInterface();
    tintora::commandInputs = host.ui().runner().active()->inputs().handle();
    forEachInput([](const char* id, auto& global) { global = tintora::commandInputs->itemById(id); });
  }
  LinkedDialog(const LinkedDialog&) = delete;
  LinkedDialog& operator=(const LinkedDialog&) = delete;
  ~LinkedDialog() {
    tintora::appHandle = nullptr;
    tintora::uiHandle = nullptr;
    tintora::commandInputs = nullptr;
    forEachInput([](const char* /*id*/, auto& global) { global = nullptr; });
  }

 private:
  template <class Action>
  static void forEachInput(const Action& action) {
    action("idSelection", tintora::selectionInput);
    action("idFilterSelect", tintora::filterSelectInput);
    action("idGroupAppearance", tintora::groupAppearanceInput);
    action("idActAppearance", tintora::actAppearanceInput);
    action("idLibAssets", tintora::libAssetsInput);
    action("idAppearanceList", tintora::appearanceListInput);
    action("idGroupMaterial", tintora::groupMaterialInput);
    action("idActMaterial", tintora::actMaterialInput);
    action("idKeepAppearance", tintora::keepAppearanceInput);
    action("idLibMaterials", tintora::libMaterialsInput);
    action("idMaterialList", tintora::materialListInput);
  }
};

}  // namespace tests
