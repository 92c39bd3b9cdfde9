#include "shell/module_path.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
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

TEST_F(ModulePath, IsCutAt260Characters) {
  const std::string longName(120, 'x');
  try {
    folder.moveModuleTo(longName + "/" + longName);
  } catch (const fs::filesystem_error& error) {
    ASSERT_EQ(std::getenv("CI"), nullptr) << error.what();
    GTEST_SKIP() << "paths cannot be that long here: " << error.what();
  }
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
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
