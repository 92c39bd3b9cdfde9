// Where the appearance that an entity shows comes from, in the dialog's words. The spelling of the texts is the
// product's own.
#pragma once

#include <string>

#include "shell/host_objects.h"

namespace tintora {

/// A source code in words; empty for an unknown code. An appearance of a body reads differently while faces are picked;
/// raises the null-access exception if the filter row has no choice to tell that by.
std::string appearanceSourceText(core::AppearanceSourceTypes source);

/// The text for an occurrence, given by its full path, that shows the appearance of the nearest occurrence above it;
/// empty when there is no such occurrence. Raises the null-access exception for a name that the design does not know.
std::string findParentOccurrenceAppearance(const std::string& fullPathName);

/// The text for one selected entity, with the host's markup. Raises the null-access exception for an empty handle and
/// for a body or face without appearance.
std::string describeAppearanceSource(const Ptr<core::Base>& entity);

}  // namespace tintora
