#include "shell/module_path.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"

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

std::string moduleNameOf(const ::testing::TestParamInfo<FileName>& info) {
  std::string name = info.param.module;
  std::replace_if(
      name.begin(), name.end(), [](char letter) { return letter == '.' || letter == ' '; }, '_');
  return name;
}

class ModuleName : public ModulePath, public ::testing::WithParamInterface<FileName> {};

TEST_P(ModuleName, HasItsFirstEndingReplaced) {
  folder.renameModule(GetParam().module);
  keepSettings();
  EXPECT_TRUE(folder.has(GetParam().settings));
}

INSTANTIATE_TEST_SUITE_P(Names, ModuleName,
                         ::testing::Values(FileName{"Tintora.dll", "Tintora_USER_CmdSet.txt"},
                                           FileName{"Another name.dll", "Another name_USER_CmdSet.txt"},
                                           FileName{"Tintora.dll.dll", "Tintora_USER_CmdSet.txt.dll"},
                                           FileName{"Tintora.dllx.dll", "Tintora_USER_CmdSet.txtx.dll"},
                                           FileName{"Other.DLL.dll", "Other.DLL_USER_CmdSet.txt"}),
                         moduleNameOf);

class ModuleNameWithoutEnding : public ModulePath, public ::testing::WithParamInterface<FileName> {};

TEST_P(ModuleNameWithoutEnding, HasNoGuide) {
  folder.renameModule(GetParam().module);
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
  EXPECT_THAT(headless::desktop::openedFiles(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Names, ModuleNameWithoutEnding,
                         ::testing::Values(FileName{"Tintora.addin", ""}, FileName{"Tintora.DLL", ""}), moduleNameOf);

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
  // How long the folders' names are, and where a path is cut, depends on where a system keeps temporary files.
  LongModulePath() { hasJournal = false; }

  /// The test is over when the system has no paths that long.
  void moveTo(const fs::path& subfolder) {
    try {
      folder.moveModuleTo(subfolder);
    } catch (const fs::filesystem_error& error) {
      ASSERT_EQ(std::getenv("CI"), nullptr) << error.what();
      GTEST_SKIP() << "paths cannot be that long here: " << error.what();
    }
  }

  /// Gives the module's path that many characters.
  void makeLong(std::size_t length) {
    const std::size_t rest = (folder.path() / "x" / "Tintora.dll").wstring().size() - 1;
    ASSERT_LT(rest, length) << "the folder for temporary files is too deep for this test";
    moveTo(std::string(length - rest, 'x'));
  }
};

class ModulePathLength : public LongModulePath, public ::testing::WithParamInterface<std::size_t> {
 protected:
  /// One character of the buffer is for the end of the text.
  static bool isWhole() { return GetParam() < 260; }
};

TEST_P(ModulePathLength, CutsTheEndingFrom260Characters) {
  makeLong(GetParam());
  if (IsSkipped() || HasFatalFailure()) {
    return;
  }
  ASSERT_EQ(folder.module().wstring().size(), GetParam());
  const fs::path guide = folder.module().parent_path() / "Tintora_UsersGuide.pdf";
  folder.write(guide, "%PDF");
  start();
  session().press("idOpenHelp");
  if (isWhole()) {
    EXPECT_THAT(headless::desktop::openedFiles(), ElementsAre(guide.u8string()));
  } else {
    EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
    EXPECT_THAT(headless::desktop::openedFiles(), IsEmpty());
  }
}

// The folder is whole and holds the libraries; what is missing is the ending that names the settings file.
TEST_P(ModulePathLength, LeavesTheDialogWithoutSettingsFrom260Characters) {
  makeLong(GetParam());
  if (IsSkipped() || HasFatalFailure()) {
    return;
  }
  start();
  session().press("idAssetsMatMng");
  EXPECT_THAT(itemsOf("idLibAssets"), ElementsAre("RAL_COLORS"));
  if (isWhole()) {
    EXPECT_THAT(takeErrors(), IsEmpty());
  } else {
    EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::out_of_range")));
  }
}

INSTANTIATE_TEST_SUITE_P(Characters, ModulePathLength, ::testing::Values(258, 259, 260, 261),
                         [](const auto& info) { return std::to_string(info.param); });

TEST_F(LongModulePath, OfWhichEvenTheFolderIsCutHasNoLibraries) {
  const std::string longName(120, 'x');
  moveTo(longName + "/" + longName);
  if (IsSkipped() || HasFatalFailure()) {
    return;
  }
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
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
