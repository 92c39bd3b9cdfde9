// Guards against damaged entities, which the geometry kernel leaves out without a word or crashes over.
#pragma once

#include <XSControl_WorkSession.hxx>
#include <filesystem>

namespace headless::step {

/// Raises Error for reading `file` when something that is read from it leads to an entity that the kernel cannot make
/// out. Others do no harm: many programs write annotations and the like that the kernel does not know.
void checkEntities(const std::filesystem::path& file, const Handle(XSControl_WorkSession) & session);

/// Raises Error for reading `file` when the kernel tried to make a shape of a body or face and could not: it leaves
/// those out and goes on.
void checkTranslation(const std::filesystem::path& file, const Handle(XSControl_WorkSession) & session);

}  // namespace headless::step
