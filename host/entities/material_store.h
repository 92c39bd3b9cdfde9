// The material libraries that are loaded, and the handles to everything in them. One store for each running host: it
// outlives the documents that use its appearances and materials.
#pragma once

#include <Core/CoreAll.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/entities/lifetime.h"
#include "host/model/materials.h"
#include "host/runtime/profile.h"

namespace headless {

class AppearanceObject;
class DesignAppearances;
class LibraryObject;
class MaterialObject;

/// The profile must outlive the store.
class MaterialStore {
 public:
  explicit MaterialStore(const Profile& hostProfile);
  MaterialStore(const MaterialStore&) = delete;
  MaterialStore& operator=(const MaterialStore&) = delete;
  ~MaterialStore();

  /// The API's collection of all libraries.
  adsk::core::Ptr<adsk::core::MaterialLibraries> libraries();

  /// Adds a library that is no file, such as one delivered with the host.
  adsk::core::Ptr<adsk::core::MaterialLibrary> add(model::Library library);
  /// Replaces the libraries that are delivered with the host, as if another host had been installed.
  void setNative(std::vector<model::Library> libraries);

  /// What MaterialLibraries::load does: the library of a file, or nothing when it is not a readable ".adsklib" file
  /// given by its full path, or was loaded before and the profile gives nothing then.
  adsk::core::Ptr<adsk::core::MaterialLibrary> load(const std::string& fullPath);

  /// Why files could not be loaded, in order; the API only says that they were not.
  const std::vector<std::string>& loadProblems() const { return problems; }

  size_t libraryCount() const { return loaded.size(); }
  /// Empty for a bad index.
  adsk::core::Ptr<adsk::core::MaterialLibrary> library(size_t index) const;
  /// The first library for which `fits` holds; empty when there is none.
  adsk::core::Ptr<adsk::core::MaterialLibrary> firstLibrary(
      const std::function<bool(const model::Library&)>& fits) const;
  /// Forgets a library. Appearances and materials that are in use stay usable; false for a native library.
  bool unload(const model::Library& library);
  /// True when the appearance is one of a library's own, and not of a document.
  bool isInLibrary(const model::Appearance& appearance) const { return libraryAppearances.count(&appearance) != 0; }

  /// The handle of an appearance or material; empty for an empty one.
  adsk::core::Ptr<adsk::core::Appearance> appearance(const std::shared_ptr<const model::Appearance>& data);
  adsk::core::Ptr<adsk::core::Material> material(const std::shared_ptr<const model::Material>& data);

  const Profile& hostProfile() const { return profile; }

  /// The open design that the appearance belongs to; nullptr when it is none's own.
  DesignAppearances* ownerOf(const model::Appearance& appearance) const;
  /// Tells whose it is, nullptr for nobody's any more. Handles that were given out for it are not given out again.
  void setOwner(const model::Appearance& appearance, DesignAppearances* owner);
  /// What the handles of the appearance, and of its properties, end with.
  Lifetime& lifetimeOf(const model::Appearance& appearance);

 private:
  struct Loaded;

  Loaded& addLoaded(model::Library library);
  void forget(std::size_t index);

  const Profile& profile;
  // Ends last, after the handles below are let go.
  Lifetime lifetime;
  HandleMap<const model::Appearance*, AppearanceObject> appearances;
  HandleMap<const model::Material*, MaterialObject> materials;
  std::vector<std::unique_ptr<Loaded>> loaded;
  std::unordered_map<const model::Appearance*, DesignAppearances*> owners;
  std::unordered_set<const model::Appearance*> libraryAppearances;
  std::vector<std::string> problems;
};

}  // namespace headless
