// The refresh after a change of the selection.
#include "inspection/selection_info.h"

#include <cstddef>
#include <optional>
#include <string>

#include "inspection/appearance_source.h"
#include "inspection/applied_appearances.h"
#include "inspection/physical_material.h"
#include "shell/globals.h"

namespace tintora {

namespace {

constexpr const char* appearancesDiffer = "Various";
constexpr const char* materialsDiffer = "Physical material: Various";

using Describe = std::string (*)(const Ptr<core::Base>&);

/// The text that all selected entities have in common, or `textIfDifferent` as soon as one differs from the first;
/// empty when the host returns none of them.
std::string commonText(Describe describe, const char* textIfDifferent) {
  std::optional<std::string> firstText;
  const std::size_t count = selectionInput->selectionCount();
  for (std::size_t index = 0; index < count; ++index) {
    const Ptr<core::Base> entity = selectionInput->selection(index)->entity();
    if (!entity) {
      continue;
    }
    const std::string text = describe(entity);
    if (!firstText) {
      firstText = text;
    } else if (text != *firstText) {
      return textIfDifferent;
    }
  }
  return firstText.value_or("");
}

}  // namespace

std::vector<Ptr<core::Base>> selectedEntities() {
  const std::size_t count = selectionInput->selectionCount();
  std::vector<Ptr<core::Base>> entities;
  entities.reserve(count);
  for (std::size_t index = 0; index < count; ++index) {
    entities.push_back(selectionInput->selection(index)->entity());
  }
  return entities;
}

void updateSelectionInfo() {
  collectAppliedAppearances(selectedEntities());
  removeAppearanceButton->isEnabled(!appliedAppearances.empty());
  if (selectionInput->selectionCount() == 0) {
    for (const auto& textBox : infoTextInputs()) {
      textBox->text("");
    }
    return;
  }
  if (!selectionInput->selection(0)->entity()) {
    return;
  }
  const std::string appearanceText = commonText(describeAppearanceSource, appearancesDiffer);
  const std::string materialText = commonText(describePhysicalMaterial, materialsDiffer);
  actAppearanceInput->formattedText(appearanceText);
  actMaterialInput->formattedText(materialText);
}

}  // namespace tintora
