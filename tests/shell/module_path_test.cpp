#include "shell/module_path.h"

#include <algorithm>
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
  /// Moves the module into a folder below its own, and the libraries with it.
  void moveModuleTo(const std::string& subfolder) {
    folder.makeFolder(subfolder);
    folder.renameModule(subfolder + "/Tintora.dll");
    fs::rename(folder.path() / "resources", folder.path() / subfolder / "resources");
  }

  /// The guide that the help button opens.
  std::string openedGuide() {
    start();
    session().press("idOpenHelp");
    const std::vector<std::string> opened = headless::desktop::openedFiles();
    return opened.size() == 1 ? opened.front() : std::to_string(opened.size()) + " files were opened";
  }

  std::string pathBesideFolder(const std::string& file) const {
    return (folder.path() / file).make_preferred().string();
  }
};

struct FileName {
  const char* module;
  const char* guide;
};

std::string nameOf(const ::testing::TestParamInfo<FileName>& info) {
  std::string name = info.param.module;
  std::replace_if(
      name.begin(), name.end(), [](char letter) { return letter == '.' || letter == ' '; }, '_');
  return name;
}

class ModuleName : public ModulePath, public ::testing::WithParamInterface<FileName> {};

TEST_P(ModuleName, HasItsFirstEndingReplaced) {
  folder.renameModule(GetParam().module);
  EXPECT_EQ(openedGuide(), pathBesideFolder(GetParam().guide));
}

INSTANTIATE_TEST_SUITE_P(Names, ModuleName,
                         ::testing::Values(FileName{"Tintora.dll", "Tintora_UsersGuide.pdf"},
                                           FileName{"Another name.dll", "Another name_UsersGuide.pdf"},
                                           FileName{"Tintora.dll.dll", "Tintora_UsersGuide.pdf.dll"},
                                           FileName{"Tintora.dllx.dll", "Tintora_UsersGuide.pdfx.dll"},
                                           FileName{"Tintora.DLL.dll", "Tintora.DLL_UsersGuide.pdf"}),
                         nameOf);

class ModuleNameWithoutEnding : public ModulePath, public ::testing::WithParamInterface<FileName> {};

TEST_P(ModuleNameWithoutEnding, HasNoGuide) {
  folder.renameModule(GetParam().module);
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
  EXPECT_THAT(headless::desktop::openedFiles(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Names, ModuleNameWithoutEnding,
                         ::testing::Values(FileName{"Tintora.addin", ""}, FileName{"Tintora.DLL", ""}), nameOf);

TEST_F(ModulePath, FolderNamedLikeAModuleIsReplacedInsteadOfTheFile) {
  moveModuleTo("my.dll folder");
  EXPECT_EQ(openedGuide(), pathBesideFolder("my_UsersGuide.pdf folder/Tintora.dll"));
}

TEST_F(ModulePath, FolderNamedLikeAModuleMovesTheSettingsFileToo) {
  moveModuleTo("my.dll folder");
  folder.makeFolder("my_USER_CmdSet.txt folder");
  startDialog();
  session().pick("Base");
  session().click("idBtnApply");
  EXPECT_TRUE(folder.has("my_USER_CmdSet.txt folder/Tintora.dll"));
}

TEST_F(ModulePath, IsCutAt260Characters) {
  const std::string longName(120, 'x');
  try {
    moveModuleTo(longName + "/" + longName);
  } catch (const fs::filesystem_error& error) {
    GTEST_SKIP() << "paths cannot be that long here: " << error.what();
  }
  start();
  session().press("idOpenHelp");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("execute(idOpenHelp): std::out_of_range")));
}

TEST_F(ModulePath, AddInFolderIsTheOneOfTheModuleAndNotOfTheHost) {
  moveModuleTo("below");
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
