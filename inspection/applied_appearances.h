// The inventory of appearances that are applied directly to the selected entities or to anything below them.
#pragma once

#include <vector>

#include "shell/host_objects.h"

namespace tintora {

/// Rebuilds `appliedAppearances` for the given entities. Each occurrence, body and face is asked once, however often
/// the entities reach it. Raises the null-access exception for an empty handle; what was recorded until then stays.
void collectAppliedAppearances(const std::vector<Ptr<core::Base>>& entities);

/// Records the face in `appliedAppearances` if it carries an appearance of its own.
void recordFaceOverride(const Ptr<fusion::BRepFace>& face);

}  // namespace tintora
