// The one exception that leaves this folder.
#pragma once

#include "host/files/error.h"

namespace headless::step {

using files::Error;

}  // namespace headless::step
