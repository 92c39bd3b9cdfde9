// The steps of Apply, and what each kind of entity gets.
#include "interaction/assignment.h"

#include <string>
#include <vector>

#include "inspection/occurrence_walk.h"
#include "inspection/selection_info.h"
#include "interaction/removal.h"
#include "shell/command_settings.h"
#include "shell/globals.h"

namespace tintora {

namespace {

using Entities = std::vector<Ptr<core::Base>>;

constexpr const char* caption = "Tintora";
constexpr const char* removeFromFacesQuestion = "Remove appearances applied to faces?";
constexpr const char* removeFromBodiesAndFacesQuestion = "Remove appearances applied to bodies & faces?";
// Speaks of reading although it is shown while assigning; the wording is the product's own.
constexpr const char* rootComponentNotice =
    "The root component has been selected. Fusion 360 does not support reading the appearance of the root component "
    "using the API.";

std::string chosenName(const Ptr<core::DropDownCommandInput>& list) {
  return list->selectedItem()->name();
}

Ptr<core::MaterialLibrary> chosenLibrary(const Ptr<core::DropDownCommandInput>& libraries) {
  return appHandle->materialLibraries()->itemByName(chosenName(libraries));
}

/// Empty when the library or the material is not found.
Ptr<core::Material> chosenMaterial() {
  const Ptr<core::MaterialLibrary> library = chosenLibrary(libMaterialsInput);
  return library ? library->materials()->itemByName(chosenName(materialListInput)) : Ptr<core::Material>();
}

/// Empty when nothing is chosen, or the library or the appearance is not found. Taken from the library as it is, not
/// copied into the design.
Ptr<core::Appearance> chosenAppearance() {
  if (!appearanceListInput->selectedItem()) {
    return {};
  }
  const Ptr<core::MaterialLibrary> library = chosenLibrary(libAssetsInput);
  return library ? library->appearances()->itemByName(chosenName(appearanceListInput)) : Ptr<core::Appearance>();
}

/// The body's own appearance goes whether or not the material is to give the look: where it is not, it is put back
/// after everything was assigned.
void assignMaterialToBody(const Ptr<fusion::BRepBody>& body, const Ptr<core::Material>& material) {
  body->material(material);
  if (keepAppearanceInput) {
    body->appearance(Ptr<core::Appearance>());
  }
}

void assignMaterialToOccurrence(const Ptr<fusion::Occurrence>& top, const Ptr<core::Material>& material) {
  const auto reach = [&material](const Ptr<fusion::Occurrence>& occurrence) {
    for (const auto& body : items(occurrence->bRepBodies())) {
      assignMaterialToBody(body, material);
    }
    return Walk::on;
  };
  const auto leave = [&material](const Ptr<fusion::Occurrence>& occurrence) {
    occurrence->component()->material(material);
  };
  walkOccurrences(top, Missing::raises, reach, leave);
}

/// A selected component is taken for the root component.
void assignMaterialToRootComponent(const Ptr<core::Material>& material) {
  const Ptr<fusion::Component> root = activeDesign()->rootComponent();
  for (const auto& occurrence : items(root->occurrences())) {
    assignMaterialToOccurrence(occurrence, material);
  }
  root->material(material);
}

void assignMaterialToEntity(const Ptr<core::Base>& entity, const Ptr<core::Material>& material) {
  switch (entityKind(entity)) {
    case EntityKind::face:
      assignMaterialToBody(hostCast<fusion::BRepFace>(entity)->body(), material);
      break;
    case EntityKind::body:
      assignMaterialToBody(hostCast<fusion::BRepBody>(entity), material);
      break;
    case EntityKind::occurrence:
      assignMaterialToOccurrence(hostCast<fusion::Occurrence>(entity), material);
      break;
    case EntityKind::component:
      assignMaterialToRootComponent(material);
      break;
    case EntityKind::other:
      break;
  }
}

bool userAgrees(const char* question) {
  return uiHandle->messageBox(question, caption, core::YesNoButtonType, core::QuestionIconType) == core::DialogYes;
}

void assignAppearanceToBody(const Ptr<fusion::BRepBody>& body, const Ptr<core::Appearance>& appearance) {
  if (hasFaceOverride(body) && userAgrees(removeFromFacesQuestion)) {
    clearFaces(body);
  }
  body->appearance(appearance);
}

void assignAppearanceToOccurrence(const Ptr<fusion::Occurrence>& occurrence, const Ptr<core::Appearance>& appearance) {
  if (hasBodyOrFaceOverride(occurrence) && userAgrees(removeFromBodiesAndFacesQuestion)) {
    clearBodiesAndFaces(occurrence);
  }
  occurrence->appearance(appearance);
}

/// Some hosts give another object for the same component with every call; its name tells it then.
bool isRootComponent(const Ptr<fusion::Component>& component) {
  const Ptr<fusion::Component> root = activeDesign()->rootComponent();
  return component == root || component->name() == root->name();
}

void explainRootComponent(const Ptr<fusion::Component>& component) {
  if (isRootComponent(component)) {
    uiHandle->messageBox(rootComponentNotice, caption, core::OKButtonType, core::InformationIconType);
  }
}

void assignAppearanceToEntity(const Ptr<core::Base>& entity, const Ptr<core::Appearance>& appearance) {
  switch (entityKind(entity)) {
    case EntityKind::face:
      hostCast<fusion::BRepFace>(entity)->appearance(appearance);
      break;
    case EntityKind::body:
      assignAppearanceToBody(hostCast<fusion::BRepBody>(entity), appearance);
      break;
    case EntityKind::occurrence:
      assignAppearanceToOccurrence(hostCast<fusion::Occurrence>(entity), appearance);
      break;
    case EntityKind::component:
      explainRootComponent(hostCast<fusion::Component>(entity));
      break;
    case EntityKind::other:
      break;
  }
}

void assignMaterial(const Entities& entities) {
  const Ptr<core::Material> material = chosenMaterial();
  for (const auto& entity : entities) {
    assignMaterialToEntity(entity, material);
  }
}

void assignAppearance(const Entities& entities) {
  const Ptr<core::Appearance> appearance = chosenAppearance();
  for (const auto& entity : entities) {
    assignAppearanceToEntity(entity, appearance);
  }
}

template <class Entity>
void putBack(const AppearanceOverrides<Entity>& overrides) {
  for (const auto& [entity, appearance] : overrides) {
    entity->appearance(appearance);
  }
}

}  // namespace

void applyToSelection() {
  saveCommandSettings();
  const Entities entities = selectedEntities();
  if (entities.empty()) {
    return;
  }
  // Both are copies: at any assignment the host may clear the selection, upon which the record is rebuilt.
  const AppliedAppearances recorded = appliedAppearances;
  if (groupMaterialInput->isExpanded()) {
    assignMaterial(entities);
  }
  if (groupAppearanceInput->isExpanded()) {
    assignAppearance(entities);
  }
  if (groupMaterialInput->isExpanded() && !keepAppearanceInput->value()) {
    putBack(recorded.occurrenceOverrides);
    putBack(recorded.bodyOverrides);
    putBack(recorded.faceOverrides);
  }
}

}  // namespace tintora
