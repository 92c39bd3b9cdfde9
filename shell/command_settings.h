// The user's last choices in the dialog, kept in a text file beside the module, one file per user, nine lines each.
#pragma once

#include <string>

namespace tintora {

/// Narrow path of the current user's settings file. Raises the null-access exception without an application and
/// std::out_of_range when the module's path has no ".dll".
std::string settingsFilePath();

/// Writes the dialog's state; lines after the ninth stay. A failing write is not reported, and a file that exists but
/// is empty stays so. Raises the null-access exception, with nothing written, when an input or a list's choice is
/// missing. [while the dialog is open]
void saveCommandSettings();

/// Applies the file to a dialog that was just built. Without a file, for missing lines and for names that no list has,
/// the dialog keeps what it shows. Raises std::invalid_argument or std::out_of_range for a line that should hold a
/// number, the null-access exception for a filter mode that does not exist; what was applied before stays.
void loadCommandSettings();

}  // namespace tintora
