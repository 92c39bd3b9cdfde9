// The physical materials of a file as materials of bodies and components.
#pragma once

#include <StepRepr_PropertyDefinition.hxx>

#include "host/step/design_builder.h"
#include "host/step/translated_file.h"

namespace headless::step {

using model::MaterialLookup;

/// True when the values of the property are those of a material.
bool isMaterialProperty(const StepRepr_PropertyDefinition& property);

/// Gives bodies, or components without bodies, the materials that the file assigns to them: as a property of the
/// product or of one of its bodies, or as a raw material that the product is made from. A material that `lookup` knows
/// is taken from there; another is made of what the file says, and looks like the default material.
void readMaterials(const TranslatedFile& file, const MaterialLookup& lookup, BuiltDesign& built);

}  // namespace headless::step
