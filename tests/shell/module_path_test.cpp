#include "shell/module_path.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class ModulePath : public AddInTest {
 protected:
  /// Uses the dialog once, so that the settings are kept.
  void keepSettings() {
    startDialog();
    session().pick("Base");
    session().click("idBtnApply");
  }
};

struct FileName {
  const char* module;
  const char* settings;
};

std::string moduleNameOf(const FileName& file) {
  std::string name = file.module;
  std::replace_if(
      name.begin(), name.end(), [](char letter) { return letter == '.' || letter == ' '; }, '_');
  return name;
}

class ModuleName : public ModulePath, public WithRow<FileName> {};

TABLE(Names, ModuleName, moduleNameOf,
      {{"Tintora.dll", "Tintora_USER_CmdSet.txt"},
       {"Another name.dll", "Another name_USER_CmdSet.txt"},
       {"Tintora.dll.dll", "Tintora_USER_CmdSet.txt.dll"},
       {"Tintora.dllx.dll", "Tintora_USER_CmdSet.txtx.dll"},
       {"Other.DLL.dll", "Other.DLL_USER_CmdSet.txt"}});

TABLE_TEST(ModuleName, HasItsFirstEndingReplaced) {
  folder.renameModule(row().module);
  keepSettings();
  EXPECT_TRUE(folder.has(row().settings));
}

class ModuleNameWithoutEnding : public ModulePath, public WithRow<FileName> {};

TABLE(Names, ModuleNameWithoutEnding, moduleNameOf, {{"Tintora.addin", ""}, {"Tintora.DLL", ""}});

TABLE_TEST(ModuleNameWithoutEnding, HasNoGuide) {
  folder.renameModule(row().module);
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
  EXPECT_THAT(headless::desktop::openedFiles(), IsEmpty());
}

TEST_F(ModulePath, FolderNamedLikeAModuleHidesTheGuide) {
  folder.moveModuleTo("my.dll folder");
  folder.write("my.dll folder/Tintora_UsersGuide.pdf", "%PDF");
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(headless::desktop::openedFiles(), IsEmpty());
}

TEST_F(ModulePath, FolderNamedLikeAModuleIsReplacedInsteadOfTheFile) {
  folder.moveModuleTo("my.dll folder");
  folder.makeFolder("my_USER_CmdSet.txt folder");
  keepSettings();
  EXPECT_TRUE(folder.has("my_USER_CmdSet.txt folder/Tintora.dll"));
}

/// Paths that are too long for the buffer are cut.
class LongModulePath : public ModulePath {
 protected:
  // Not every system removes what has so long a path.
  void TearDown() override {
    if (!IsSkipped() && !HasFatalFailure()) {
      finish();
      fs::rename(folder.path() / top, folder.path() / "short");
    }
  }

  /// The test is over when the system has no paths that long.
  void moveTo(const fs::path& subfolder) {
    top = *subfolder.begin();
    try {
      folder.moveModuleTo(subfolder);
    } catch (const fs::filesystem_error& error) {
      ASSERT_EQ(std::getenv("CI"), nullptr) << error.what();
      GTEST_SKIP() << "paths cannot be that long here: " << error.what();
    }
  }

  const fs::path veryLong = fs::path(std::string(120, 'x')) / std::string(120, 'x');

 private:
  fs::path top;
};

class ModulePathLength : public ModulePath, public WithRow<std::size_t> {
 protected:
  /// The file has so long a name that its path has that many characters.
  void SetUp() override {
    const std::size_t rest = (folder.path() / ".dll").wstring().size();
    ASSERT_LT(rest, row()) << "the folder for temporary files is too deep for this test";
    folder.renameModule(std::string(row() - rest, 'x') + ".dll");
    ASSERT_EQ(folder.module().wstring().size(), row());
  }

  /// One character of the buffer is for the end of the text.
  bool isWhole() const { return row() < 260; }

  void expectThatThereIsNoGuideOnceItIsCut() {
    start();
    session().press("idOpenHelp");
    if (isWhole()) {
      EXPECT_THAT(takeErrors(), IsEmpty());
    } else {
      EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
      EXPECT_THAT(headless::desktop::openedFiles(), IsEmpty());
    }
  }

  /// The folder is whole and holds the libraries; what is missing is the ending that names the settings file.
  void expectThatThereAreNoSettingsOnceItIsCut() {
    start();
    session().press("idAssetsMatMng");
    EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
    if (isWhole()) {
      EXPECT_THAT(takeErrors(), IsEmpty());
    } else {
      EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::out_of_range")));
    }
  }
};

const auto nameOfLength = [](std::size_t length) { return std::to_string(length); };

TABLE(Characters, ModulePathLength, nameOfLength, {258, 259, 261, 262});

TABLE_TEST(ModulePathLength, CutsTheEndingFrom260CharactersSoThatThereIsNoGuide) {
  expectThatThereIsNoGuideOnceItIsCut();
}

TABLE_TEST(ModulePathLength, CutsTheEndingFrom260CharactersSoThatThereAreNoSettings) {
  expectThatThereAreNoSettingsOnceItIsCut();
}

#ifndef _WIN32
// Wine gives a path of 260 characters without an end, and so whole; Windows is documented to cut it.
using PosixModulePathLength = ModulePathLength;

TABLE(Characters, PosixModulePathLength, nameOfLength, {260});

TABLE_TEST(PosixModulePathLength, CutsTheEndingFrom260CharactersSoThatThereIsNoGuide) {
  expectThatThereIsNoGuideOnceItIsCut();
}

TABLE_TEST(PosixModulePathLength, CutsTheEndingFrom260CharactersSoThatThereAreNoSettings) {
  expectThatThereAreNoSettingsOnceItIsCut();
}

using PosixModulePath = ModulePath;

// Windows itself opens no guide whose path is that long.
TEST_F(PosixModulePath, OfWhichTheGuidesIsLongerThan260CharactersHasAGuide) {
  const std::size_t rest = (folder.path() / ".dll").wstring().size();
  const std::string name(259 - rest, 'x');
  folder.renameModule(name + ".dll");
  folder.write(name + "_UsersGuide.pdf", "%PDF");
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(headless::desktop::openedFiles(), ElementsAre((folder.path() / (name + "_UsersGuide.pdf")).u8string()));
}
#endif

TEST_F(LongModulePath, OfWhichEvenTheFolderIsCutHasNoGuide) {
  moveTo(veryLong);
  if (IsSkipped() || HasFatalFailure()) {
    return;
  }
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
}

TEST_F(LongModulePath, OfWhichEvenTheFolderIsCutHasNoLibraries) {
  // The error names the folder as far as it goes, which depends on where a system keeps temporary files.
  hasJournal = false;
  moveTo(veryLong);
  if (IsSkipped() || HasFatalFailure()) {
    return;
  }
  start();
  session().press("idAssetsMatMng");
  EXPECT_THAT(takeErrors(),
              ElementsAre(AllOf(StartsWith("commandCreated(idAssetsMatMng): std::filesystem::filesystem_error:"),
                                HasSubstr("directory_iterator::directory_iterator"))));
}

TEST_F(ModulePath, AddInFolderIsTheOneOfTheModuleAndNotOfTheHost) {
  folder.moveModuleTo("below");
  startDialog();
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
}

std::string withSystemSeparators(const std::string& path) {
  return fs::path(path).make_preferred().string();
}

TEST(JoinPath, PutsTheSystemsSeparatorBetweenTheParts) {
  EXPECT_EQ(tintora::joinPath({"resources", "Libs", "Materials"}), withSystemSeparators("resources/Libs/Materials"));
  EXPECT_EQ(tintora::joinPath({"resources"}), "resources");
  EXPECT_EQ(tintora::joinPath({}), "");
}

TEST(JoinPath, GivesAnOuterSeparatorForAnEmptyPart) {
  EXPECT_EQ(tintora::joinPath({"", "Libs", ""}), withSystemSeparators("/Libs/"));
}

TEST(JoinPath, LeavesThePartsAsTheyAre) {
  EXPECT_EQ(tintora::joinPath({"a b", "c.d"}), withSystemSeparators("a b/c.d"));
}

}  // namespace
}  // namespace tests
