// Pictures of what is on screen in a sitting, saved as SVG files with the add-in's own icons in them.
#pragma once

#include <filesystem>
#include <string>

#include "host/cli/sitting.h"

namespace headless::cli {

/// The picture in an icon folder, as an address that holds the file itself: the largest of the PNG sizes that icon
/// folders have. Empty when there is none.
std::string embeddedIcon(const std::filesystem::path& folder);

/// The open dialog. `openList` is the id of a drop-down that is drawn open; empty for none. Like the functions below it
/// raises files::Error when the file cannot be written.
void saveDialogPicture(Sitting& sitting, const std::string& openList, const std::filesystem::path& svg);

/// The last message box. Raises Failure when none was shown.
void saveMessagePicture(Sitting& sitting, const std::filesystem::path& svg);

/// The toolbar with the add-in's buttons.
void saveToolbarPicture(Sitting& sitting, const std::filesystem::path& svg);

}  // namespace headless::cli
