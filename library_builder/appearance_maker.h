// Makes one RAL appearance in a design: copies the source, gives it the colour and the gloss.
#pragma once

#include <Core/CoreAll.h>

#include "library_builder/ral_table.h"

namespace library_builder {

/// What became of one colour.
enum class Outcome {
  made,
  madeWithOtherGloss,  ///< the gloss could not be set: it is the source's
  wasThere             ///< left as it is
};

/// Makes the appearance of that colour unless one of its name is there. Raises Failure when it cannot be made; nothing
/// of it stays in the design then, as far as the host lets it be deleted.
Outcome makeAppearance(const adsk::core::Ptr<adsk::core::Appearances>& appearances,
                       const adsk::core::Ptr<adsk::core::Appearance>& source, const RalColour& colour);

}  // namespace library_builder
