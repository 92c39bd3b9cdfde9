// What assemblies of tests are where there is a geometry kernel, and elsewhere.
#pragma once

#include <filesystem>
#include <string>

#include "host/model/design.h"

namespace tests {

/// A body of six faces; `size` is the length of its edges in millimetres. Without the kernel it has no geometry.
headless::model::Body& addRigBody(headless::model::Component& component, const std::string& name, double size);

/// The assembly of the demo: as1-tu-203.stp or, without the kernel, the design file made of it, which the environment
/// variable TINTORA_DEMO_DESIGN names. Empty when it is nowhere.
std::filesystem::path findDemoAssembly();

/// What is missing then, and how to get it.
std::string explainMissingDemoAssembly();

}  // namespace tests
