// Which physical material an entity has, and its density, in the dialog's words.
#pragma once

#include <string>

#include "shell/host_objects.h"

namespace tintora {

/// The text for one selected entity, with the host's markup. The density is given in whole units as the host returns
/// it, or left out when the material has none. Raises the null-access exception for an empty handle and for a body
/// without material.
std::string describePhysicalMaterial(const Ptr<core::Base>& entity);

}  // namespace tintora
