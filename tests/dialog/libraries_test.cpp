#include "dialog/libraries.h"

#ifndef _WIN32
#include <unistd.h>
#endif

#include <algorithm>
#include <cerrno>
#include <functional>
#include <system_error>
#include <utility>

#include "host/libraries/library_file.h"
#include "shell/globals.h"
#include "tests/dialog/dialog_fixture.h"
#include "tests/support/linked_module_path.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

using headless::FaultAnswer;
using headless::Profile;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class Libraries : public DialogTest {
 protected:
  /// Starts the add-in and builds the dialog, recording what it has the host load.
  void build(Profile profile = usualProfile()) {
    start(std::move(profile));
    host().gate().startTrace();
    pressMainButton();
  }

  /// The calls by which an entry of a library folder was given to the host.
  std::vector<std::string> loadsOf(const fs::path& entry) {
    const std::string path = (folder.path() / entry).make_preferred().string();
    return callsWith(host().gate(), {"MaterialLibraries.load(\"" + path + "\")"});
  }

  std::vector<std::string> loads() { return callsWith(host().gate(), {"MaterialLibraries.load("}); }
};

struct Entry {
  const char* name;
  const char* fileName;
  bool isGivenToHost;
  bool isListed;
};

class LibraryFileName : public Libraries, public WithRow<Entry> {};

TABLE(Names, LibraryFileName, byName,
      {{"Usual", "Brass.adsklib", true, true},
       {"WithBlanks", "Brass and more.adsklib", true, true},
       {"Twice", "Brass.adsklib.adsklib", true, true},
       {"MarkInside", "old.adsklib.bak", true, false},
       {"MarkInside2", "Colours.adsklib.old", true, false},
       {"LongerEnding", "Brass.adsklibrary", true, false},
       {"UpperCase", "X.ADSKLIB", false, false},
       {"NoDot", "Brassadsklib", false, false},
       {"Text", "readme.txt", false, false}});

TABLE_TEST(LibraryFileName, DecidesWhetherTheHostGetsTheFile) {
  addMaterialLibrary(row().fileName, "Found", {{"Brass"}});
  build();
  EXPECT_THAT(loadsOf(materialsFolder / row().fileName), SizeIs(row().isGivenToHost ? 1 : 0));
  const std::vector<std::string> libraries = itemsOf("idLibMaterials");
  EXPECT_EQ(std::count(libraries.begin(), libraries.end(), "Found"), row().isListed ? 1 : 0);
  EXPECT_THAT(libraries, Contains("Metals"));
}

TEST_F(Libraries, FolderNamedLikeALibraryIsGivenToTheHostAndNotEntered) {
  folder.write(materialsFolder / "x.adsklib" / "Inside.adsklib", materialLibrary("Inside", {{"Brass"}}));
  build();
  EXPECT_THAT(loadsOf(materialsFolder / "x.adsklib"), SizeIs(1));
  EXPECT_THAT(loads(), SizeIs(3));
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Metals"));
}

TEST_F(Libraries, OtherFolderIsNeitherGivenToTheHostNorEntered) {
  folder.write(materialsFolder / "More" / "Inside.adsklib", materialLibrary("Inside", {{"Brass"}}));
  build();
  EXPECT_THAT(loads(), SizeIs(2));
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Metals"));
}

TEST_F(Libraries, EveryFileIsALibraryFileBelowAFolderThatIsNamedLikeOne) {
  folder.write(materialsFolder / "readme.txt", "no library");
  folder.makeFolder("my.adsklib folder");
  folder.renameModule("my.adsklib folder/Tintora.dll");
  fs::rename(folder.path() / "resources", folder.path() / "my.adsklib folder" / "resources");
  build();
  EXPECT_THAT(loadsOf("my.adsklib folder" / materialsFolder / "readme.txt"), SizeIs(1));
}

TEST_F(Libraries, FileThatTheHostCannotReadIsSkipped) {
  folder.write(materialsFolder / "Broken.adsklib", "this is no library");
  folder.write(materialsFolder / "Empty.adsklib", "");
  build();
  EXPECT_THAT(takeErrors(), IsEmpty());
  EXPECT_THAT(loads(), SizeIs(4));
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Metals"));
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

#ifndef _WIN32
// Windows lets administrators only make links.
using PosixLibraries = Libraries;

TEST_F(PosixLibraries, LinkToNowhereIsTheHostsToRefuse) {
  fs::create_symlink("nowhere", folder.path() / materialsFolder / "gone.adsklib");
  build();
  EXPECT_THAT(loadsOf(materialsFolder / "gone.adsklib"), SizeIs(1));
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Metals"));
}
#endif

TEST_F(Libraries, AreListedInTheOrderOfTheFileSystem) {
  folder.writeLibraries(appearancesFolder, {appearanceLibrary("Zinc", {}), appearanceLibrary("RAL_COLORS", ralNames),
                                            appearanceLibrary("Amber", {}), appearanceLibrary("amber", {}),
                                            appearanceLibrary("Middle", {})});
  build();
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("Zinc", "RAL_COLORS", "Amber", "amber", "Middle"));
}

TEST_F(Libraries, AreLoadedByFullPathAppearancesFirst) {
  folder.writeLibraries(materialsFolder, {materialLibrary("A", {{"Brass"}}), materialLibrary("B", {{"Brass"}})});
  build();
  std::vector<std::string> expected;
  for (const fs::path& kind : {appearancesFolder, materialsFolder}) {
    for (const std::string& name : folder.listing(kind)) {
      const std::string path = (folder.path() / kind / name).make_preferred().string();
      expected.push_back("MaterialLibraries.load(\"" + path + "\")");
    }
  }
  EXPECT_THAT(loads(), ElementsAreArray(expected));
}

TEST_F(Libraries, OfTheSameNameAreListedOnceEach) {
  folder.writeLibraries(materialsFolder, {materialLibrary("Twin", {{"Brass"}}), materialLibrary("Twin", {{"Steel"}})});
  build();
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Twin", "Twin"));
}

TEST_F(Libraries, AreNamedAsTheHostNamesThem) {
  addMaterialLibrary("Metals.adsklib", "Gr\xC3\xBCne \"Stoffe\"", {{"Brass"}});
  build();
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Gr\xC3\xBCne \"Stoffe\""));
}

TEST_F(Libraries, AreLoadedAnewForEveryDialogAndListedOnce) {
  build();
  session().pressCancel();
  openDialog();
  EXPECT_THAT(loadsOf(materialsFolder / "Metals.adsklib"), SizeIs(2));
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Metals"));
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
}

TEST_F(Libraries, AreFoundByTheNextDialogWhenTheyAreAddedMeanwhile) {
  build();
  session().pressCancel();
  addMaterialLibrary("Stones.adsklib", "Stones", {{"Basalt"}});
  openDialog();
  EXPECT_THAT(itemsOf("idLibMaterials"), ::testing::UnorderedElementsAre("Metals", "Stones"));
}

TEST_F(Libraries, AreMissingInASecondDialogWhereTheHostLoadsAFileOnce) {
  Profile profile = usualProfile();
  profile.secondLoad = headless::SecondLoad::Nothing;
  build(profile);
  EXPECT_THAT(inputIds(), SizeIs(16));
  session().pressCancel();
  pressMainButton();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(7)));
  EXPECT_THAT(itemsOf("idLibAssets"), IsEmpty());
}

using adsk::core::Ptr;

/// Takes every path for a library's.
class AcceptingLibraries final : public headless::HostObject<adsk::core::MaterialLibraries> {
 public:
  explicit AcceptingLibraries(std::function<Ptr<adsk::core::MaterialLibrary>(const std::string&)> onLoad)
      : answer(std::move(onLoad)) {}

  Ptr<adsk::core::MaterialLibrary> load(const std::string& filename) override { return answer(filename); }
  Ptr<adsk::core::MaterialLibrary> item(int /*index*/) const override { return nullptr; }
  std::size_t count() const override { return 0; }
  Ptr<adsk::core::MaterialLibrary> itemByName(const std::string& /*name*/) const override { return nullptr; }
  Ptr<adsk::core::MaterialLibrary> itemById(const std::string& /*id*/) const override { return nullptr; }

 private:
  std::function<Ptr<adsk::core::MaterialLibrary>(const std::string&)> answer;
};

/// Has nothing but libraries.
class LibrariesOnly final : public headless::HostObject<adsk::core::Application> {
 public:
  explicit LibrariesOnly(Ptr<adsk::core::MaterialLibraries> given) : libraries(std::move(given)) {}

  Ptr<adsk::core::MaterialLibraries> materialLibraries() const override { return libraries; }
  Ptr<adsk::core::UserInterface> userInterface() const override { return nullptr; }
  Ptr<adsk::core::Product> activeProduct() const override { return nullptr; }
  Ptr<adsk::core::Documents> documents() const override { return nullptr; }
  Ptr<adsk::core::User> currentUser() const override { return nullptr; }
  std::string userName() const override { return {}; }
  std::string userId() const override { return {}; }
  int getLastError(std::string* /*description*/) const override { return 0; }

 private:
  Ptr<adsk::core::MaterialLibraries> libraries;
};

/// The routine that is linked into the test program, at a host that accepts what the headless host would refuse.
class LinkedLibraries : public Libraries {
 protected:
  void TearDown() override { tintora::appHandle = nullptr; }

  /// Each library is named after its path by a host that first does what the test says.
  std::vector<std::string> namesOf(
      const char* kind, const std::function<void()>& whenLoading = [] {}) {
    const LinkedModulePath path(folder.module());
    tintora::appHandle = headless::makeObject<LibrariesOnly>(
        headless::makeObject<AcceptingLibraries>([this, whenLoading](const std::string& file) {
          whenLoading();
          return host().materials().add(headless::libraries::parseLibrary(
              materialLibrary(fs::u8path(file).filename().u8string(), {{"Brass"}}), "test"));
        }));
    return tintora::loadLibraryFolder(kind);
  }
};

TEST_F(LinkedLibraries, AreNamedWhateverTheyAreAsLongAsTheHostAcceptsThem) {
  folder.makeFolder(materialsFolder / "x.adsklib");
  folder.write(materialsFolder / "Colours.adsklib.old", "an old library");
  folder.write(materialsFolder / "readme.txt", "no library");
  load();
  EXPECT_THAT(namesOf("Materials"),
              ::testing::UnorderedElementsAre("Colours.adsklib.old", "Metals.adsklib", "x.adsklib"));
}

#ifndef _WIN32
using PosixLinkedLibraries = LinkedLibraries;

/// Takes a folder that is being listed away from the one who lists it, as a network does that breaks down.
void breakListingOf(const fs::path& listed) {
  for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code ignored;
    if (fs::read_symlink(entry.path(), ignored) == listed) {
      close(std::stoi(entry.path().filename().string()));
    }
  }
}

TEST_F(PosixLinkedLibraries, RaiseWhenTheListingBreaksOff) {
  load();
  const fs::path listed = fs::canonical(folder.path() / materialsFolder);
  try {
    namesOf("Materials", [&listed] { breakListingOf(listed); });
    FAIL() << "nothing was raised";
  } catch (const fs::filesystem_error& error) {
    EXPECT_THAT(error.what(), HasSubstr("directory_iterator::operator++"));
    EXPECT_EQ(error.code(), std::error_code(EBADF, std::generic_category()));
  }
}
#endif

struct LibraryKind {
  const char* name;
  /// How many inputs there are when its folder is read.
  std::size_t inputs;
};

const std::vector<LibraryKind> libraryKinds = {{"Appearances", 6}, {"Materials", 13}};

class LibraryFolder : public Libraries, public WithRow<LibraryKind> {
 protected:
  fs::path kindFolder() const { return fs::path("resources/Libs") / row().name; }

  void expectFileSystemError(const std::string& operation) {
    const std::vector<headless::BoundaryError> errors = session().takeErrors();
    ASSERT_THAT(errors, SizeIs(1));
    EXPECT_EQ(errors[0].where, "commandCreated(idAssetsMatMng)");
    EXPECT_EQ(errors[0].kind, "std::filesystem::filesystem_error");
    EXPECT_THAT(errors[0].what, HasSubstr(operation));
    EXPECT_TRUE(errors[0].code);
    code = errors[0].code;
    EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(row().inputs)));
  }

  std::error_code code;
};

TABLE(Kinds, LibraryFolder, byName, libraryKinds);

TABLE_TEST(LibraryFolder, EndsTheDialogWhenItIsMissing) {
  folder.remove(kindFolder());
  build();
  expectFileSystemError("directory_iterator::directory_iterator");
  // The module's own error category is another object than the test's.
  EXPECT_EQ(code.value(), ENOENT);
}

TABLE_TEST(LibraryFolder, EndsTheDialogWhenItIsAFile) {
  folder.remove(kindFolder());
  folder.write(kindFolder(), "not a folder");
  build();
  expectFileSystemError("directory_iterator::directory_iterator");
}

#ifndef _WIN32
using PosixLibraryFolder = LibraryFolder;

TABLE(Kinds, PosixLibraryFolder, byName, libraryKinds);

TABLE_TEST(PosixLibraryFolder, EndsTheDialogWhenTheStatusOfAnEntryCannotBeRead) {
  fs::create_symlink("circle", folder.path() / kindFolder() / "circle");
  build();
  expectFileSystemError("directory_entry::status");
  EXPECT_EQ(code.value(), ELOOP);
}
#endif

TABLE_TEST(LibraryFolder, IsReadAgainByTheNextDialog) {
  const std::vector<std::string> files = folder.listing(kindFolder());
  const std::string content = folder.read(kindFolder() / files.front());
  folder.remove(kindFolder());
  build();
  EXPECT_THAT(takeErrors(), SizeIs(1));
  session().pressCancel();
  folder.write(kindFolder() / files.front(), content);
  openDialog();
  EXPECT_THAT(inputIds(), SizeIs(16));
}

}  // namespace
}  // namespace tests
