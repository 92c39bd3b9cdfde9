// Which appearance the coloured ones are made from, and the ids of its properties.
#pragma once

#include <Core/CoreAll.h>

namespace library_builder {

/// Ids of the properties that hold an opaque appearance's colour and its roughness; unlike names they are the same in
/// every language.
inline constexpr const char* colourProperty = "opaque_albedo";
inline constexpr const char* roughnessProperty = "surface_roughness";

/// A plain, opaque appearance of the libraries that the CAD program is delivered with. Raises Failure when there is
/// none whose colour could be set.
adsk::core::Ptr<adsk::core::Appearance> findSourceAppearance(const adsk::core::Ptr<adsk::core::Application>& app);

/// The colour of an appearance; empty when it is none that is opaque and has a colour.
adsk::core::Ptr<adsk::core::ColorProperty> colourOf(const adsk::core::Ptr<adsk::core::Appearance>& appearance);

}  // namespace library_builder
