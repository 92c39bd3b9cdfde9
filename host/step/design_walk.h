// What a file of a design is made of, and whether there can be one.
#pragma once

#include <vector>

#include "host/model/design.h"

namespace headless::step {

/// The root and every component that is used below it, each once, users before used.
std::vector<const model::Component*> reachedComponents(const model::Design& design);

/// Raises Error, naming the body, unless the body and all its faces have geometry.
void requireGeometry(const model::Body& body);

/// Raises Error when occurrences are nested deeper than the kernel can deal with. Expands the root's tree.
void requireDepth(const model::Design& design);

}  // namespace headless::step
