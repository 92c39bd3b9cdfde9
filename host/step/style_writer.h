// The looks of a design as colours of STEP entities.
#pragma once

#include "host/model/design.h"
#include "host/step/product_writer.h"

namespace headless::step {

/// Writes the own looks of faces, bodies and occurrences. A body without a look of its own whose material was chosen
/// gets its material's colour, so that programs which know no materials show it. An occurrence is coloured in the
/// context of its instance or, when the same instance looks different elsewhere, of the path from the root to it.
void writeStyles(const model::Design& design, ProductWriter& products);

}  // namespace headless::step
