// The physical materials of a design as properties of STEP products.
#pragma once

#include "host/step/product_writer.h"

namespace headless::step {

/// Writes name and density of every material that was chosen, that is of all but the default one: as a property of the
/// product when all its bodies have it, otherwise of the bodies. A component without bodies gets its own.
void writeMaterials(ProductWriter& products);

}  // namespace headless::step
