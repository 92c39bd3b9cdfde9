// Taking the inventory.
#include "inspection/applied_appearances.h"

#include <set>

#include "inspection/occurrence_walk.h"
#include "shell/globals.h"

namespace tintora {

namespace {

/// Objects that were visited. Holding their handles keeps their addresses from being given to other objects.
template <class Entity>
class Visited {
 public:
  /// Whether this is the object's first visit.
  bool add(const Ptr<Entity>& entity) { return entities_.insert(entity).second; }

 private:
  std::set<Ptr<Entity>, ByAddress> entities_;
};

/// One inventory. The maps ignore a second entry for an object and the host answers alike each time, so passing over
/// objects that were visited already changes nothing but the time.
class Inventory {
 public:
  void visit(const Ptr<core::Base>& entity) {
    switch (entityKind(entity)) {
      case EntityKind::component:
        for (const auto& occurrence : items(hostCast<fusion::Component>(entity)->allOccurrences())) {
          recordOccurrenceOverrides(occurrence);
        }
        break;
      case EntityKind::occurrence:
        visitSelectedOccurrence(hostCast<fusion::Occurrence>(entity));
        break;
      case EntityKind::body:
        recordBodyOverride(hostCast<fusion::BRepBody>(entity));
        break;
      case EntityKind::face:
        visitFace(hostCast<fusion::BRepFace>(entity));
        break;
      case EntityKind::other:
        break;
    }
  }

 private:
  /// A selected occurrence is recorded before its children, one below it after them.
  void visitSelectedOccurrence(const Ptr<fusion::Occurrence>& occurrence) {
    if (!occurrences_.add(occurrence)) {
      return;
    }
    recordOwnAppearance(occurrence);
    for (const auto& child : items(occurrence->childOccurrences())) {
      recordOccurrenceOverrides(child);
    }
    visitBodies(occurrence);
  }

  void recordOccurrenceOverrides(const Ptr<fusion::Occurrence>& top) {
    const auto reach = [this](const Ptr<fusion::Occurrence>& occurrence) {
      return occurrences_.add(occurrence) ? Walk::on : Walk::past;
    };
    const auto leave = [this](const Ptr<fusion::Occurrence>& occurrence) {
      recordOwnAppearance(occurrence);
      visitBodies(occurrence);
    };
    walkOccurrences(top, Missing::raises, reach, leave);
  }

  void visitBodies(const Ptr<fusion::Occurrence>& occurrence) {
    for (const auto& body : items(occurrence->bRepBodies())) {
      recordBodyOverride(body);
    }
  }

  void recordBodyOverride(const Ptr<fusion::BRepBody>& body) {
    if (!bodies_.add(body)) {
      return;
    }
    if (body->appearanceSourceType() == core::BodyAppearanceSource) {
      appliedAppearances.bodyOverrides.emplace(body, body->appearance());
    }
    for (const auto& face : items(body->faces())) {
      visitFace(face);
    }
  }

  void visitFace(const Ptr<fusion::BRepFace>& face) {
    if (faces_.add(face)) {
      recordFaceOverride(face);
    }
  }

  static void recordOwnAppearance(const Ptr<fusion::Occurrence>& occurrence) {
    const Ptr<core::Appearance> own = occurrence->appearance();
    if (own) {
      appliedAppearances.occurrenceOverrides.emplace(occurrence, own);
    }
  }

  Visited<fusion::Occurrence> occurrences_;
  Visited<fusion::BRepBody> bodies_;
  Visited<fusion::BRepFace> faces_;
};

}  // namespace

void collectAppliedAppearances(const std::vector<Ptr<core::Base>>& entities) {
  appliedAppearances = AppliedAppearances();
  Inventory inventory;
  for (const auto& entity : entities) {
    inventory.visit(entity);
  }
}

void recordFaceOverride(const Ptr<fusion::BRepFace>& face) {
  if (face->appearanceSourceType() == core::FaceAppearanceSource) {
    appliedAppearances.faceOverrides.emplace(face, face->appearance());
  }
}

}  // namespace tintora
