// The lists of appearance and material names: reading them from a library, narrowing them, filling drop-downs. Nothing
// is kept between calls; every fill reads the library anew.
#pragma once

#include <string>

#include "shell/host_objects.h"
#include "shell/text.h"

namespace tintora {

/// The only item of a filled list that has nothing to show.
inline constexpr const char* nothingFoundItem = "nothing found";

/// Position of an item that is appended to a list.
inline constexpr int atTheEnd = -1;

/// Whether a library of this name holds the add-in's colours, whose items carry icons.
bool isColourLibrary(const std::string& libraryName);

/// Names of the appearances of a library, in the library's order, that contain the filter text (ASCII letters in either
/// case; an empty filter keeps all). Empty when the host knows no such library.
NameSequence listAppearanceNames(const std::string& libraryName, const std::string& filter);

/// The same for the physical materials of a library.
NameSequence listMaterialNames(const std::string& libraryName, const std::string& filter);

/// Appends an item for each name, without icon, not selected.
void appendPlainItems(const Ptr<core::ListItems>& list, const NameSequence& names);

/// The same with the icon of the colour that the name begins with, where the icon's file exists. Raises
/// std::out_of_range for a name of less than four characters; the items before it stay.
void appendColourItems(const Ptr<core::ListItems>& list, const NameSequence& names);

/// Replaces the items of a drop-down, without icons, and selects the first; "nothing found" for no names.
void addPlainItems(const Ptr<core::DropDownCommandInput>& list, const NameSequence& names);

/// The same with the icons and the failure of `appendColourItems`.
void addColourItems(const Ptr<core::DropDownCommandInput>& list, const NameSequence& names);

/// Refills the drop-down `listId` for the library chosen in `libraryId` and the text in `filterId`. Does nothing when
/// the command lacks one of the three inputs.
void fillItemList(const std::string& libraryId, const std::string& filterId, const std::string& listId);

}  // namespace tintora
