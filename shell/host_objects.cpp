// The kind of an entity.
#include "shell/host_objects.h"

#include <string_view>

namespace tintora {

EntityKind entityKind(const Ptr<core::Base>& entity) {
  // The host hands out plain C texts: compare the letters, not the addresses.
  const char* const typeName = entity->objectType();
  const std::string_view className = typeName != nullptr ? typeName : "";
  if (className == "adsk::fusion::Occurrence") {
    return EntityKind::occurrence;
  }
  if (className == "adsk::fusion::Component") {
    return EntityKind::component;
  }
  if (className == "adsk::fusion::BRepBody") {
    return EntityKind::body;
  }
  if (className == "adsk::fusion::BRepFace") {
    return EntityKind::face;
  }
  return EntityKind::other;
}

}  // namespace tintora
