#include "host/entities/material_store.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "host/entities/code_page.h"
#include "host/entities/design_appearances.h"
#include "host/entities/material_objects.h"
#include "host/libraries/library_file.h"

namespace headless {

namespace fs = std::filesystem;

using adsk::core::MaterialLibrary;
using adsk::core::Ptr;

namespace {

constexpr const char* libraryEnding = ".adsklib";

}  // namespace

/// A library with its handle. Handles to it and its lists end with it.
struct MaterialStore::Loaded {
  model::Library library;
  /// Empty when the library is no file.
  fs::path file;
  Lifetime lifetime;
  Ptr<LibraryObject> handle;
};

MaterialStore::MaterialStore(const Profile& hostProfile)
    : profile(hostProfile), appearances(profile.freshWrappers), materials(profile.freshWrappers) {}

MaterialStore::~MaterialStore() = default;

Ptr<adsk::core::MaterialLibraries> MaterialStore::libraries() {
  return makeObject<LibrariesObject>(lifetime, *this);
}

Ptr<MaterialLibrary> MaterialStore::add(model::Library library) {
  return addLoaded(std::move(library)).handle;
}

void MaterialStore::setNative(std::vector<model::Library> libraries) {
  for (std::size_t i = loaded.size(); i-- > 0;) {
    if (loaded[i]->library.isNative) {
      forget(i);
    }
  }
  for (model::Library& library : libraries) {
    library.isNative = true;
    add(std::move(library));
  }
}

MaterialStore::Loaded& MaterialStore::addLoaded(model::Library library) {
  Loaded& added = *loaded.emplace_back(std::make_unique<Loaded>());
  added.library = std::move(library);
  added.handle = makeObject<LibraryObject>(added.lifetime, *this, added.library);
  for (const auto& appearance : added.library.appearances) {
    libraryAppearances.insert(appearance.get());
  }
  return added;
}

Ptr<MaterialLibrary> MaterialStore::load(const std::string& fullPath) {
  try {
    const fs::path given =
        profile.libraryPathText == LibraryPathText::CodePage ? pathFromCodePage(fullPath) : fs::u8path(fullPath);
    if (given.extension() != libraryEnding || !given.is_absolute() || !fs::is_regular_file(given)) {
      problems.push_back(fullPath + ": is not the full path of a library file; it must end in \"" + libraryEnding +
                         "\"");
      return nullptr;
    }
    const fs::path file = fs::canonical(given);
    for (const auto& known : loaded) {
      if (known->file == file) {
        return profile.secondLoad == SecondLoad::SameLibrary ? known->handle : nullptr;
      }
    }
    Loaded& added = addLoaded(libraries::readLibrary(file));
    added.file = file;
    return added.handle;
  } catch (const libraries::Error& error) {
    problems.emplace_back(error.what());
  } catch (const fs::filesystem_error& error) {
    problems.emplace_back(error.what());
  }
  return nullptr;
}

Ptr<MaterialLibrary> MaterialStore::library(size_t index) const {
  return index < loaded.size() ? Ptr<MaterialLibrary>(loaded[index]->handle) : nullptr;
}

Ptr<MaterialLibrary> MaterialStore::firstLibrary(const std::function<bool(const model::Library&)>& fits) const {
  for (const auto& each : loaded) {
    if (fits(each->library)) {
      return each->handle;
    }
  }
  return nullptr;
}

bool MaterialStore::unload(const model::Library& library) {
  const auto found =
      std::find_if(loaded.begin(), loaded.end(), [&](const auto& each) { return &each->library == &library; });
  if (found == loaded.end() || library.isNative) {
    return false;
  }
  forget(static_cast<std::size_t>(found - loaded.begin()));
  return true;
}

void MaterialStore::forget(std::size_t index) {
  for (const auto& appearance : loaded[index]->library.appearances) {
    libraryAppearances.erase(appearance.get());
  }
  loaded.erase(loaded.begin() + static_cast<std::ptrdiff_t>(index));
}

Ptr<adsk::core::Appearance> MaterialStore::appearance(const std::shared_ptr<const model::Appearance>& data) {
  if (!data) {
    return nullptr;
  }
  return appearances.get(data.get(), [&] { return makeObject<AppearanceObject>(lifetimeOf(*data), *this, data); });
}

DesignAppearances* MaterialStore::ownerOf(const model::Appearance& appearance) const {
  const auto found = owners.find(&appearance);
  return found != owners.end() ? found->second : nullptr;
}

void MaterialStore::setOwner(const model::Appearance& appearance, DesignAppearances* owner) {
  appearances.forget(&appearance);
  if (owner != nullptr) {
    owners[&appearance] = owner;
  } else {
    owners.erase(&appearance);
  }
}

Lifetime& MaterialStore::lifetimeOf(const model::Appearance& appearance) {
  DesignAppearances* owner = ownerOf(appearance);
  return owner != nullptr ? owner->lifetimeOf(appearance) : lifetime;
}

Ptr<adsk::core::Material> MaterialStore::material(const std::shared_ptr<const model::Material>& data) {
  if (!data) {
    return nullptr;
  }
  return materials.get(data.get(), [&] { return makeObject<MaterialObject>(lifetime, *this, data); });
}

}  // namespace headless
