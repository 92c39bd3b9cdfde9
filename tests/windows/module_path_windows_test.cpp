// Where the module lies, in folder names that only Windows makes difficult: its narrow paths are in the system's code
// page, which cannot show every character. The tests expect the western European one (1252).
#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"
#include "tests/support/windows_calls.h"

namespace tests {
namespace {

using headless::desktop::openedFiles;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class WindowsModulePath : public AddInTest {
 protected:
  void SetUp() override { ASSERT_EQ(GetACP(), 1252U) << "these tests are about another code page"; }

  /// Moves the add-in, with a guide, into a folder below its own; the name is UTF-8.
  void moveTo(const std::string& subfolder) {
    place = std::filesystem::u8path(subfolder);
    folder.moveModuleTo(place);
    folder.write(place / "Tintora_UsersGuide.pdf", "%PDF");
  }
  std::string guide() const { return (folder.path() / place / "Tintora_UsersGuide.pdf").u8string(); }
  bool hasSettings() const { return folder.has(place / settingsFile()); }

  std::filesystem::path place;
};

/// A host that understands the paths of library files.
headless::Profile lenientHost() {
  return headless::lenientProfile();
}

class WindowsShownFolder : public WindowsModulePath, public WithRow<const char*> {};

TABLE(Names, WindowsShownFolder, byText,
      {"my add ins",
       "Gr\xC3\xB6\xC3\x9F"
       "e \xE2\x82\xAC",
       "a;b & c %d"});

TABLE_TEST(WindowsShownFolder, HoldsGuideLibrariesAndSettings) {
  moveTo(row());
  start(lenientHost());
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), ElementsAre(guide()));
  openDialog();
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
  session().choose("idMaterialList", "Foam");
  session().pick("Base");
  session().click("idBtnApply");
  EXPECT_TRUE(hasSettings());
  session().pressCancel();
  openDialog();
  EXPECT_EQ(shown("idMaterialList"), "Foam");
}

TEST_F(WindowsModulePath, WithCharactersThatTheCodePageCannotShowHasBlanksInTheirPlace) {
  moveTo("\xD0\x96\xD0\xA3\xD0\x9A");
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), IsEmpty());
  session().press("idAssetsMatMng");
  EXPECT_THAT(takeErrors(),
              ElementsAre(AllOf(StartsWith("commandCreated(idAssetsMatMng): std::filesystem::filesystem_error:"),
                                HasSubstr("directory_iterator::directory_iterator"))));
}

/// A letter that the code page cannot show.
struct Letter {
  const char* name;
  const char* utf8;
};

class WindowsMissingLetter : public WindowsModulePath, public WithRow<Letter> {};

// An L with a stroke would otherwise become a plain one, and a slash of mathematics one of paths.
TABLE(Letters, WindowsMissingLetter, byName,
      {{"Zhe", "\xD0\x96"}, {"LWithStroke", "\xC5\x81"}, {"DivisionSlash", "\xE2\x88\x95"}});

// The other folder has everything that an add-in needs, so that all of it is used there and nothing here.
TABLE_TEST(WindowsMissingLetter, IsABlankWhichMayLeadToAnotherFolder) {
  moveTo(std::string("x") + row().utf8 + "y");
  // Where a letter that looks alike would lead.
  folder.write("xLy/Tintora_UsersGuide.pdf", "%PDF");
  const std::filesystem::path other = "x y";
  folder.write(other / "Tintora_UsersGuide.pdf", "%PDF");
  folder.write(other / appearancesFolder / "Other.adsklib", appearanceLibrary("RAL_COLORS of the other", {"Gold"}));
  folder.write(other / materialsFolder / "Other.adsklib", materialLibrary("Other materials", {{"Brass"}}));
  start(lenientHost());
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(),
              ElementsAre((folder.path() / other / "Tintora_UsersGuide.pdf").make_preferred().u8string()));
  openDialog();
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS of the other"));
  EXPECT_THAT(itemsOf("idLibMaterials"), ElementsAre("Other materials"));
  session().pick("Base");
  session().click("idBtnApply");
  EXPECT_TRUE(folder.has(other / settingsFile()));
  EXPECT_FALSE(hasSettings());
}

class WindowsLibraryName : public WindowsModulePath {
 protected:
  void SetUp() override {
    WindowsModulePath::SetUp();
    folder.write(appearancesFolder / std::filesystem::u8path("Gr\xC3\xBCn.adsklib"),
                 appearanceLibrary("Green", {"Reed green"}));
  }
};

TEST_F(WindowsLibraryName, IsPassedInTheCodePage) {
  start();
  host().gate().startTrace();
  openDialog();
  EXPECT_THAT(callsWith(host().gate(), {"Gr\xFCn.adsklib"}).size(), 1U);
}

TEST_F(WindowsLibraryName, IsFoundByAHostThatTakesPathsOfTheCodePage) {
  startDialog(lenientHost());
  EXPECT_THAT(itemsOf("idLibAssets"), ::testing::UnorderedElementsAre("RAL_COLORS", "Green"));
}

TEST_F(WindowsLibraryName, IsPassedOverByAHostThatTakesPathsForUtf8) {
  startDialog();
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
}

TEST_F(WindowsModulePath, LibrariesWithOtherNamesAreNotFound) {
  folder.write(appearancesFolder / std::filesystem::u8path("\xD0\x96.adsklib"), appearanceLibrary("Beetle", {"Black"}));
  start(lenientHost());
  host().gate().startTrace();
  openDialog();
  EXPECT_THAT(callsWith(host().gate(), {" .adsklib"}).size(), 1U);
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
}

}  // namespace
}  // namespace tests
