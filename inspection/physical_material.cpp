// The text about an entity's physical material.
#include "inspection/physical_material.h"

#include "shell/text.h"

namespace tintora {

namespace {

constexpr const char* densityId = "structural_Density";
constexpr const char* label = "Physical material: ";

// In lower case, for one entity without a single material; several entities that differ read "Various".
constexpr const char* notUniform = "various";

/// Without a density the text ends in a name that stays bold: its closing tag belongs to the density's part.
std::string nameOnly(const std::string& name) {
  return std::string(label) + "<b>" + name;
}

std::string describe(const Ptr<core::Material>& material) {
  const std::string name = material->name();
  const auto density = hostCast<core::FloatProperty>(material->materialProperties()->itemById(densityId));
  if (!density) {
    return nameOnly(name);
  }
  return nameOnly(name) + "</b>;  Density: " + formatWholeNumber(density->value()) + " kg.m<sup>-3</sup>";
}

}  // namespace

std::string describePhysicalMaterial(const Ptr<core::Base>& entity) {
  switch (entityKind(entity)) {
    case EntityKind::occurrence: {
      const Ptr<core::Material> material = hostCast<fusion::Occurrence>(entity)->component()->material();
      return material ? describe(material) : nameOnly(notUniform);
    }
    case EntityKind::component: {
      const Ptr<core::Material> material = hostCast<fusion::Component>(entity)->material();
      return material ? describe(material) : std::string(label) + notUniform;
    }
    case EntityKind::body:
      return describe(hostCast<fusion::BRepBody>(entity)->material());
    case EntityKind::face:
      return describe(hostCast<fusion::BRepFace>(entity)->body()->material());
    case EntityKind::other:
      break;
  }
  return nameOnly("");
}

}  // namespace tintora
