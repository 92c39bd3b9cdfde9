// Finding and clearing appearances that are applied below an entity. To clear an appearance means to set it to none, so
// that the object shows what it inherits. Objects that the host does not return along a walk are passed over.
#pragma once

#include "shell/host_objects.h"

namespace tintora {

/// Whether a face of the body carries an appearance of its own; asks no further than the first.
bool hasFaceOverride(const Ptr<fusion::BRepBody>& body);

/// Whether a body or a face under the occurrence, at any depth, carries an appearance of its own.
bool hasBodyOrFaceOverride(const Ptr<fusion::Occurrence>& occurrence);

/// Clears the faces of a body.
void clearFaces(const Ptr<fusion::BRepBody>& body);

/// Clears the bodies, faces and occurrences under an occurrence, deepest first, and the occurrence last.
void clearBodiesAndFaces(const Ptr<fusion::Occurrence>& occurrence);

/// What the remove button does: clears the selected components' occurrences, the selected occurrences and bodies, and
/// all below them. A selected face keeps its appearance, which is recorded in `appliedAppearances`.
void removeAssignedAppearance();

}  // namespace tintora
