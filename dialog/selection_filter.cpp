// The three filter modes and their effect on the selection input.
#include "dialog/selection_filter.h"

#include "shell/globals.h"

namespace tintora {

namespace {

struct Pickable {
  const char* hostFilter;
  const char* prompt;
};

/// What each filter mode lets the user pick; null for an index that is no filter mode.
const Pickable* pickableIn(int filterMode) {
  static constexpr Pickable occurrences = {"Occurrences", "Select Componet"};
  static constexpr Pickable bodies = {"Bodies", "Select Body"};
  static constexpr Pickable faces = {"Faces", "Select Face"};
  switch (filterMode) {
    case componentFilterMode:
      return &occurrences;
    case bodyFilterMode:
      return &bodies;
    case faceFilterMode:
      return &faces;
    default:
      return nullptr;
  }
}

}  // namespace

void setupSelectionFilter() {
  for (const auto& textBox : infoTextInputs()) {
    if (textBox) {
      textBox->formattedText("");
    }
  }
  selectionInput->clearSelection();
  selectionInput->clearSelectionFilter();
  if (const Pickable* const pickable = pickableIn(selectedFilterMode())) {
    selectionInput->addSelectionFilter(pickable->hostFilter);
    selectionInput->commandPrompt(pickable->prompt);
  }
}

}  // namespace tintora
