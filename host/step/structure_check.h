// Guards the geometry kernel against assemblies that would make it run out of stack.
#pragma once

#include <XSControl_WorkSession.hxx>
#include <filesystem>

namespace headless::step {

/// Raises Error for reading `file` when a product contains itself, by whatever detour, or lies too deep.
void checkStructure(const std::filesystem::path& file, const Handle(XSControl_WorkSession) & session);

}  // namespace headless::step
