// Names, filter and items of the appearance and material lists.
#include "dialog/item_lists.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "dialog/libraries.h"
#include "shell/globals.h"
#include "shell/module_path.h"

namespace tintora {

namespace {

constexpr const char* colourLibraryName = "RAL_COLORS";

/// Folds A to Z only: other bytes are parts of UTF-8 characters and stay as they are.
std::string toLowerAscii(std::string text) {
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') {
      letter = static_cast<char>(letter - 'A' + 'a');
    }
  }
  return text;
}

template <class Collection>
NameSequence namesContaining(const std::string& filter, const Ptr<Collection>& collection) {
  const std::string lowerFilter = toLowerAscii(filter);
  NameSequence names;
  for (const auto& item : items<int>(collection)) {
    std::string name = item->name();
    if (contains(toLowerAscii(name), lowerFilter)) {
      names.push_back(std::move(name));
    }
  }
  return names;
}

Ptr<core::MaterialLibrary> libraryNamed(const std::string& name) {
  return appHandle->materialLibraries()->itemByName(name);
}

/// Names the icon of a colour: "RAL 1000 Green beige" gives "RAL1000".
std::string iconKey(const std::string& name) {
  return name.substr(0, 3) + name.substr(4, 4);
}

/// Icon folder of each colour as the host takes it, relative to the add-in's folder; empty for a colour without icon.
class ColourIcons {
 public:
  std::string folderOf(const std::string& name) const {
    const std::string folder = joinPath({relativeFolder_, iconKey(name)});
    const std::string icon = joinPath({addinFolder_, folder, "16x16.png"});
    std::error_code unreadableMeansMissing;
    return std::filesystem::exists(toSystemPath(icon), unreadableMeansMissing) ? folder : std::string();
  }

 private:
  std::string addinFolder_ = addinFolder();
  std::string relativeFolder_ = joinPath({libraryFolder(appearanceLibraries), colourLibraryName});
};

using AppendItems = void (*)(const Ptr<core::ListItems>&, const NameSequence&);

void replaceItems(const Ptr<core::DropDownCommandInput>& list, const NameSequence& names, AppendItems appendItems) {
  const Ptr<core::ListItems> listItems = list->listItems();
  listItems->clear();
  if (names.empty()) {
    listItems->add(nothingFoundItem, true, "", atTheEnd);
    return;
  }
  appendItems(listItems, names);
  listItems->item(0)->isSelected(true);
}

}  // namespace

bool isColourLibrary(const std::string& libraryName) {
  return contains(libraryName, colourLibraryName);
}

NameSequence listAppearanceNames(const std::string& libraryName, const std::string& filter) {
  const Ptr<core::MaterialLibrary> library = libraryNamed(libraryName);
  return library ? namesContaining(filter, library->appearances()) : NameSequence();
}

NameSequence listMaterialNames(const std::string& libraryName, const std::string& filter) {
  const Ptr<core::MaterialLibrary> library = libraryNamed(libraryName);
  return library ? namesContaining(filter, library->materials()) : NameSequence();
}

void appendPlainItems(const Ptr<core::ListItems>& list, const NameSequence& names) {
  for (const std::string& name : names) {
    list->add(name, false, "", atTheEnd);
  }
}

void appendColourItems(const Ptr<core::ListItems>& list, const NameSequence& names) {
  const ColourIcons icons;
  for (const std::string& name : names) {
    list->add(name, false, icons.folderOf(name), atTheEnd);
  }
}

void addPlainItems(const Ptr<core::DropDownCommandInput>& list, const NameSequence& names) {
  replaceItems(list, names, appendPlainItems);
}

void addColourItems(const Ptr<core::DropDownCommandInput>& list, const NameSequence& names) {
  replaceItems(list, names, appendColourItems);
}

void fillItemList(const std::string& libraryId, const std::string& filterId, const std::string& listId) {
  // Always through the command's own collection: a host may hand a group's with an event, which lacks the rest.
  const auto library = hostCast<core::DropDownCommandInput>(commandInputs->itemById(libraryId));
  const auto filter = hostCast<core::StringValueCommandInput>(commandInputs->itemById(filterId));
  const auto list = hostCast<core::DropDownCommandInput>(commandInputs->itemById(listId));
  if (!library || !filter || !list) {
    return;
  }
  // Each call in a statement of its own: C++ leaves open in which order operands and arguments are worked out.
  NameSequence names;
  const std::string id = library->id();
  if (id == libAssetsInput->id()) {
    const std::string libraryName = library->selectedItem()->name();
    names = listAppearanceNames(libraryName, filter->value());
  } else if (id == libMaterialsInput->id()) {
    const std::string libraryName = library->selectedItem()->name();
    names = listMaterialNames(libraryName, filter->value());
  }
  if (isColourLibrary(library->selectedItem()->name())) {
    addColourItems(list, names);
  } else {
    addPlainItems(list, names);
  }
}

}  // namespace tintora
