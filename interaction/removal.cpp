// The walks that look for and clear applied appearances.
#include "interaction/removal.h"

#include "inspection/applied_appearances.h"
#include "inspection/occurrence_walk.h"
#include "inspection/selection_info.h"

namespace tintora {

namespace {

template <class Entity>
void clearAppearance(const Ptr<Entity>& entity) {
  entity->appearance(Ptr<core::Appearance>());
}

void clearAppearanceTree(const Ptr<fusion::BRepBody>& body) {
  clearAppearance(body);
  clearFaces(body);
}

void clearBodies(const Ptr<fusion::Occurrence>& occurrence) {
  for (const auto& body : items(occurrence->bRepBodies(), Missing::skipped)) {
    clearAppearanceTree(body);
  }
}

void clearAppearanceTree(const Ptr<fusion::Occurrence>& top) {
  const auto reach = [](const Ptr<fusion::Occurrence>& occurrence) {
    clearAppearance(occurrence);
    return Walk::on;
  };
  walkOccurrences(top, Missing::skipped, reach, clearBodies);
}

void removeFrom(const Ptr<core::Base>& entity) {
  switch (entityKind(entity)) {
    case EntityKind::component:
      for (const auto& occurrence : items(hostCast<fusion::Component>(entity)->occurrences(), Missing::skipped)) {
        clearAppearanceTree(occurrence);
      }
      break;
    case EntityKind::occurrence: {
      const auto occurrence = hostCast<fusion::Occurrence>(entity);
      clearAppearanceTree(occurrence);
      clearBodies(occurrence);
      break;
    }
    case EntityKind::body: {
      const auto body = hostCast<fusion::BRepBody>(entity);
      clearAppearanceTree(body);
      clearFaces(body);
      break;
    }
    case EntityKind::face:
      recordFaceOverride(hostCast<fusion::BRepFace>(entity));
      break;
    case EntityKind::other:
      break;
  }
}

}  // namespace

bool hasFaceOverride(const Ptr<fusion::BRepBody>& body) {
  for (const auto& face : items(body->faces(), Missing::skipped)) {
    if (face->appearanceSourceType() == core::FaceAppearanceSource) {
      return true;
    }
  }
  return false;
}

bool hasBodyOrFaceOverride(const Ptr<fusion::Occurrence>& occurrence) {
  const auto reach = [](const Ptr<fusion::Occurrence>& reached) {
    for (const auto& body : items(reached->bRepBodies(), Missing::skipped)) {
      if (body->appearanceSourceType() == core::BodyAppearanceSource || hasFaceOverride(body)) {
        return Walk::stop;
      }
    }
    return Walk::on;
  };
  const auto leave = [](const Ptr<fusion::Occurrence>&) {};
  return walkOccurrences(occurrence, Missing::skipped, reach, leave);
}

void clearFaces(const Ptr<fusion::BRepBody>& body) {
  for (const auto& face : items(body->faces(), Missing::skipped)) {
    clearAppearance(face);
  }
}

void clearBodiesAndFaces(const Ptr<fusion::Occurrence>& occurrence) {
  const auto reach = [](const Ptr<fusion::Occurrence>&) { return Walk::on; };
  const auto leave = [](const Ptr<fusion::Occurrence>& left) {
    clearBodies(left);
    clearAppearance(left);
  };
  walkOccurrences(occurrence, Missing::skipped, reach, leave);
}

void removeAssignedAppearance() {
  // The host may clear the selection at the first change.
  for (const auto& entity : selectedEntities()) {
    if (entity) {
      removeFrom(entity);
    }
  }
}

}  // namespace tintora
