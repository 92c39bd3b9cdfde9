// The texts about an entity's appearance.
#include "inspection/appearance_source.h"

#include <vector>

#include "shell/globals.h"
#include "shell/text.h"

namespace tintora {

namespace {

constexpr const char* byMaterial = "appearance by assigned material.";
constexpr const char* byParentBody = "appearance by parent body.";
constexpr const char* byParentOccurrence = "appearance by some parent occurence.";
constexpr const char* overridden = "overriden appearance.";

// Ends without a full stop, unlike the text of the source code.
constexpr const char* foundInParentOccurrence = "appearance by some parent occurence";

constexpr const char* occurrenceByMaterial = "Selected componet has appearance by assigned material.";
constexpr const char* rootComponentSelected =
    "The root component has been selected. Fusion 360 does not support changing the appearance of the root component "
    "using the API.";

std::string nameAndSource(const std::string& name, const std::string& source) {
  return "<b>" + name + "</b> - " + source;
}

std::string describe(const Ptr<fusion::Occurrence>& occurrence) {
  const Ptr<core::Appearance> own = occurrence->appearance();
  if (own) {
    return nameAndSource(own->name(), overridden);
  }
  const std::string inherited = findParentOccurrenceAppearance(occurrence->fullPathName());
  return inherited.empty() ? occurrenceByMaterial : inherited;
}

/// For a body or a face.
template <class Entity>
std::string describeShown(const Ptr<Entity>& entity) {
  const std::string name = entity->appearance()->name();
  return nameAndSource(name, appearanceSourceText(entity->appearanceSourceType()));
}

}  // namespace

std::string appearanceSourceText(core::AppearanceSourceTypes source) {
  switch (source) {
    case core::MaterialAppearanceSource:
      return byMaterial;
    case core::BodyAppearanceSource:
      return selectedFilterMode() == faceFilterMode ? byParentBody : overridden;
    case core::OccurrenceAppearanceSource:
      return byParentOccurrence;
    case core::FaceAppearanceSource:
    case core::OverrideAppearanceSource:
      return overridden;
    default:
      return {};
  }
}

std::string findParentOccurrenceAppearance(const std::string& fullPathName) {
  // Drops the last name, that of the occurrence itself.
  const std::vector<std::string> parents = splitString(fullPathName, "+");
  if (parents.empty()) {
    return {};
  }
  const Ptr<fusion::Design> design = activeDesign();
  if (!design) {
    return {};
  }
  const Ptr<fusion::Component> root = design->rootComponent();
  if (!root) {
    return {};
  }
  const Ptr<fusion::OccurrenceList> occurrences = root->allOccurrences();
  for (auto parent = parents.rbegin(); parent != parents.rend(); ++parent) {
    const Ptr<core::Appearance> appearance = occurrences->itemByName(*parent)->appearance();
    if (appearance) {
      return nameAndSource(appearance->name(), foundInParentOccurrence);
    }
  }
  return {};
}

std::string describeAppearanceSource(const Ptr<core::Base>& entity) {
  switch (entityKind(entity)) {
    case EntityKind::occurrence:
      return describe(hostCast<fusion::Occurrence>(entity));
    case EntityKind::component:
      return rootComponentSelected;
    case EntityKind::body:
      return describeShown(hostCast<fusion::BRepBody>(entity));
    case EntityKind::face:
      return describeShown(hostCast<fusion::BRepFace>(entity));
    case EntityKind::other:
      break;
  }
  return nameAndSource("", "");
}

}  // namespace tintora
