// Bodies for assemblies that tests write: boxes where there is a geometry kernel, without geometry elsewhere.
#pragma once

#include <string>

#include "host/model/design.h"

namespace tests {

/// A body of six faces; `size` is the length of its edges in millimetres.
headless::model::Body& addRigBody(headless::model::Component& component, const std::string& name, double size);

}  // namespace tests
