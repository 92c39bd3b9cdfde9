// The colours of a file as appearances of faces, bodies and occurrences.
#pragma once

#include "host/step/design_builder.h"
#include "host/step/translated_file.h"

namespace headless::step {

/// Puts every surface colour of the file where it belongs. One appearance object stands for one colour throughout.
/// A colour of a part or of a group of bodies counts for its bodies; a colour given in the context of an instance, or
/// of a path of instances, counts for those occurrences. Curve colours are left out.
void readStyles(const TranslatedFile& file, BuiltDesign& built);

}  // namespace headless::step
