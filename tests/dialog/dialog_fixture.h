// What the tests of the dialog have in common.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/addin_fixture.h"

namespace tests {

/// Ids of all inputs of the dialog, in order.
inline const std::vector<std::string> dialogInputIds = {
    "idGroupSelect", "idSelection",      "idFilterSelect",     "idGroupAppearance",        "idActAppearance",
    "idLibAssets",   "idAppearanceList", "idFilterAppearance", "idRemoveAssignAppearance", "idGroupMaterial",
    "idActMaterial", "idKeepAppearance", "idLibMaterials",     "idMaterialList",           "idFilterMaterial",
    "idBtnApply"};

class DialogTest : public AddInTest {
 protected:
  static std::vector<std::string> firstInputs(std::size_t count) {
    return {dialogInputIds.begin(), dialogInputIds.begin() + static_cast<std::ptrdiff_t>(count)};
  }

  /// Ids of the inputs of the dialog in its order, those of a group after the group; empty without a dialog.
  std::vector<std::string> inputIds() {
    std::vector<std::string> ids;
    if (session().isDialogOpen()) {
      appendIds(session().dialog().inputs, ids);
    }
    return ids;
  }

  /// Presses the main button, whatever comes of it.
  void pressMainButton() { session().press("idAssetsMatMng"); }

  /// How an icon or library folder of the add-in is written on this system.
  static std::string inSystemStyle(const std::string& path) {
    return std::filesystem::path(path).make_preferred().string();
  }

  headless::CommandObject& command() { return *host().ui().runner().active().get(); }

 private:
  static void appendIds(const std::vector<headless::InputView>& inputs, std::vector<std::string>& ids) {
    for (const headless::InputView& input : inputs) {
      ids.push_back(input.id);
      appendIds(input.children, ids);
    }
  }
};

}  // namespace tests
