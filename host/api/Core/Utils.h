// Calls that belong to no class.
#pragma once

namespace adsk {

/// Lets the host work off what waits, such as drawing and clicks of the user, and comes back then. Afterwards nothing
/// that was open before need still be there. (Documented; what it gives is not, so nothing is declared.)
void doEvents();

}  // namespace adsk
