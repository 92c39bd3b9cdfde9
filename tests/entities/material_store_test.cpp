// Loading and unloading of libraries, and the handles to what is in them.
#include "host/entities/material_store.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "host/entities/material_objects.h"
#include "tests/print_handles.h"
#include "tests/support/temporary_folder.h"

namespace headless {
namespace {

namespace fs = std::filesystem;

using adsk::core::MaterialLibraries;
using adsk::core::MaterialLibrary;
using adsk::core::Ptr;

struct MaterialStoreTest : testing::Test {
  Profile profile;
  CallGate gate;
  tests::TemporaryFolder temporary;
  const fs::path& folder = temporary.path();
  std::unique_ptr<MaterialStore> store;
  Ptr<MaterialLibraries> libraries;

  void SetUp() override { open(); }

  void open() {
    store = std::make_unique<MaterialStore>(profile);
    libraries = store->libraries();
  }

  /// Writes a library file and gives its full path.
  std::string file(const std::string& fileName, const std::string& libraryName) const {
    const fs::path path = folder / fileName;
    std::ofstream(path) << R"({"format": "headless material library", "version": 1, "name": ")" << libraryName
                        << R"(", "appearances": [{"name": "Red", "colour": "#FF0000"}],
                            "materials": [{"name": "Brass", "density": 8500, "appearance": "Red"}]})";
    return path.u8string();
  }
};

TEST_F(MaterialStoreTest, LoadsLibrariesInOrder) {
  EXPECT_EQ(libraries->count(), 0u);
  const auto first = libraries->load(file("a.adsklib", "First"));
  const auto second = libraries->load(file("b.adsklib", "Second"));
  ASSERT_TRUE(first && second);
  EXPECT_EQ(first->name(), "First");
  EXPECT_EQ(first->id(), "first");
  EXPECT_FALSE(first->isNative());
  EXPECT_EQ(libraries->count(), 2u);
  EXPECT_EQ(libraries->item(0), first);
  EXPECT_EQ(libraries->item(1), second);
  EXPECT_EQ(libraries->itemByName("Second"), second);
  EXPECT_EQ(libraries->itemById("first"), first);
  EXPECT_FALSE(libraries->item(2));
  EXPECT_FALSE(libraries->item(-1));
  EXPECT_FALSE(libraries->itemByName("first"));
  EXPECT_FALSE(libraries->itemById("First"));
  EXPECT_TRUE(store->loadProblems().empty());
}

TEST_F(MaterialStoreTest, GivesNothingForWhatIsNoLibraryFileAndKeepsTheReason) {
  const std::string good = file("good.adsklib", "Good");
  fs::create_directory(folder / "folder.adsklib");
  std::ofstream(folder / "closed.adsklib") << "PK\x03\x04";
  const std::pair<std::string, const char*> cases[] = {
      {(folder / "missing.adsklib").u8string(), "full path"}, {(folder / "folder.adsklib").u8string(), "full path"},
      {file("old.adsklib.bak", "Old"), "full path"},          {file("UPPER.ADSKLIB", "Upper"), "full path"},
      {fs::relative(good).u8string(), "full path"},           {"", "full path"},
      {(folder / "closed.adsklib").u8string(), "closed"},
  };
  for (const auto& [path, reason] : cases) {
    const std::size_t problems = store->loadProblems().size();
    EXPECT_FALSE(libraries->load(path)) << path;
    ASSERT_EQ(store->loadProblems().size(), problems + 1) << path;
    EXPECT_NE(store->loadProblems().back().find(path), std::string::npos) << store->loadProblems().back();
    EXPECT_NE(store->loadProblems().back().find(reason), std::string::npos) << store->loadProblems().back();
  }
  EXPECT_EQ(libraries->count(), 0u);
}

TEST_F(MaterialStoreTest, ASecondLoadGivesTheLibraryAlreadyLoaded) {
  const std::string path = file("a.adsklib", "First");
  const auto first = libraries->load(path);
  EXPECT_EQ(libraries->load(path), first);
  EXPECT_EQ(libraries->load((folder / "." / "a.adsklib").u8string()), first);
  EXPECT_EQ(libraries->count(), 1u);
}

TEST_F(MaterialStoreTest, ASecondLoadMayGiveNothing) {
  profile.secondLoad = SecondLoad::Nothing;
  open();
  const std::string path = file("a.adsklib", "First");
  const auto first = libraries->load(path);
  ASSERT_TRUE(first);
  EXPECT_FALSE(libraries->load(path));
  EXPECT_EQ(libraries->count(), 1u);
  EXPECT_TRUE(store->loadProblems().empty());
  EXPECT_TRUE(first->unload());
  EXPECT_TRUE(libraries->load(path));
}

TEST_F(MaterialStoreTest, TwoFilesMayHoldLibrariesOfOneName) {
  const auto first = libraries->load(file("a.adsklib", "Same"));
  const auto second = libraries->load(file("b.adsklib", "Same"));
  EXPECT_NE(first, second);
  EXPECT_EQ(libraries->itemByName("Same"), first);
}

TEST_F(MaterialStoreTest, AnUnloadedLibraryIsGoneForEverybody) {
  const auto library = libraries->load(file("a.adsklib", "First"));
  const auto appearances = library->appearances();
  const auto red = appearances->item(0);
  EXPECT_TRUE(store->isInLibrary(*objectBehind<AppearanceObject>(red)->data()));

  EXPECT_TRUE(library->unload());
  EXPECT_EQ(libraries->count(), 0u);
  EXPECT_FALSE(library->isValid());
  EXPECT_FALSE(appearances->isValid());
  EXPECT_EQ(library->name(), "");
  EXPECT_EQ(appearances->count(), 0u);
  EXPECT_FALSE(library->unload());

  EXPECT_EQ(red->name(), "Red") << "what is in use stays usable";
  EXPECT_FALSE(store->isInLibrary(*objectBehind<AppearanceObject>(red)->data()));
}

TEST_F(MaterialStoreTest, ADeliveredLibraryCannotBeUnloaded) {
  model::Library delivered;
  delivered.id = "delivered";
  delivered.name = "Delivered";
  delivered.isNative = true;
  const auto library = store->add(std::move(delivered));
  EXPECT_TRUE(library->isNative());
  EXPECT_FALSE(library->unload());
  EXPECT_EQ(libraries->itemById("delivered"), library);
}

TEST_F(MaterialStoreTest, AnAppearanceHasOneHandle) {
  const auto library = libraries->load(file("a.adsklib", "First"));
  const auto red = library->appearances()->item(0);
  EXPECT_EQ(library->appearances()->itemByName("Red"), red);
  EXPECT_EQ(library->materials()->item(0)->appearance(), red);
  EXPECT_EQ(library->materials()->item(0), library->materials()->itemById("brass"));
  EXPECT_FALSE(store->appearance(nullptr));
  EXPECT_FALSE(store->material(nullptr));
}

TEST_F(MaterialStoreTest, AnAppearanceMayHaveANewHandleEachTime) {
  profile.freshWrappers = true;
  open();
  const auto library = libraries->load(file("a.adsklib", "First"));
  const auto red = library->appearances()->item(0);
  const auto again = library->appearances()->item(0);
  EXPECT_NE(red, again);
  EXPECT_EQ(red->id(), again->id());
}

TEST_F(MaterialStoreTest, HandlesAreInvalidOnceTheStoreIsGone) {
  const auto library = libraries->load(file("a.adsklib", "First"));
  const auto red = library->appearances()->item(0);
  const auto brass = library->materials()->item(0);
  store.reset();
  for (const Ptr<adsk::core::Base>& each :
       std::initializer_list<Ptr<adsk::core::Base>>{library, red, brass, libraries}) {
    EXPECT_FALSE(each->isValid());
  }
  EXPECT_EQ(red->name(), "");
  EXPECT_FALSE(brass->appearance());
  EXPECT_FALSE(libraries->item(0));
}

}  // namespace
}  // namespace headless
