// The user guide, a PDF file beside the module.
#pragma once

namespace tintora {

/// Opens the guide with the program that the system associates with it. A missing guide or program is the shell's to
/// report. Raises std::out_of_range when the module's path has no ".dll".
void openUsersGuide();

}  // namespace tintora
