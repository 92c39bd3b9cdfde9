// The simple markup of formatted texts.
#pragma once

#include <string>

namespace headless {

/// The text as it is shown: tags are dropped, "<br />" is a line break; an opening bracket that no tag follows stays.
std::string withoutMarkup(const std::string& formatted);

}  // namespace headless
