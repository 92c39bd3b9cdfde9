#include <ostream>

#include "host/libraries/library_file.h"
#include "shell/command_settings.h"
#include "shell/globals.h"
#include "tests/shell/file_rights.h"
#include "tests/shell/settings_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

using headless::FaultAnswer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class SettingsSavingUnderProfile : public SettingsTest, public WithRow<std::string> {
 protected:
  headless::Profile profile() const { return headless::profileNamed(row()); }
};

TABLE_OF_PROFILES(SettingsSavingUnderProfile);

TABLE_TEST(SettingsSavingUnderProfile, FirstApplyMakesNineLinesWithoutAFinalLineBreak) {
  startDialog(profile());
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nRAL_COLORS\nRAL 1000 Green beige\n1\nMetals\nSteel 37\n1\n1"));
}

TABLE_TEST(SettingsSavingUnderProfile, SecondApplyEndsTheLastLineToo) {
  startDialog(profile());
  apply();
  session().choose("idMaterialList", "Foam");
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nRAL_COLORS\nRAL 1000 Green beige\n1\nMetals\nFoam\n1\n1\n"));
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nRAL_COLORS\nRAL 1000 Green beige\n1\nMetals\nFoam\n1\n1\n"));
}

TABLE_TEST(SettingsSavingUnderProfile, NextDialogOpensWithWhatWasSaved) {
  startDialog(profile());
  session().choose("idLibMaterials", "Stones");
  session().choose("idMaterialList", "Granite");
  session().choose("idAppearanceList", "RAL 5015 Sky blue");
  session().choose("idFilterSelect", "Face");
  session().expand("idGroupMaterial", false);
  apply("Bolt:2/Head/Face1");
  const std::vector<std::string> expected = {"Face", "1", "1", "RAL_COLORS", "RAL 5015 Sky blue", "0", "0", "Stones"};
  finish();
  startDialog(profile());
  std::vector<std::string> restored = choices();
  restored.pop_back();
  EXPECT_THAT(restored, ::testing::ElementsAreArray(expected));
}

using SettingsSaving = SettingsTest;

TEST_F(SettingsSaving, HappensOnApplyOnly) {
  startDialog();
  session().choose("idMaterialList", "Foam");
  session().choose("idFilterSelect", "Face");
  session().expand("idGroupMaterial", false);
  session().pressCancel();
  openDialog();
  EXPECT_FALSE(folder.has(settingsFile()));
}

struct FilterModeCase {
  const char* label;
  const char* pickable;
  const char* saved;
};

class SavedFilterMode : public SettingsTest, public WithRow<FilterModeCase> {};

TABLE(Modes, SavedFilterMode, [](const auto& row) { return std::string(row.label); },
      {{"Component", "Bolt:2", "0"}, {"Body", "Base", "1"}, {"Face", "Bolt:2/Head/Face1", "2"}});

TABLE_TEST(SavedFilterMode, IsTheIndexOfTheButton) {
  startDialog();
  session().choose("idFilterSelect", row().label);
  apply(row().pickable);
  std::vector<std::string> lines = defaultLines;
  lines[0] = row().saved;
  EXPECT_EQ(savedSettings(), onDisk(joinLines(lines)));
}

TEST_F(SettingsSaving, WritesACollapsedGroupWithoutTick) {
  startDialog();
  session().expand("idGroupAppearance", false);
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n0\nRAL_COLORS\nRAL 1000 Green beige\n1\nMetals\nSteel 37\n0\n1"));
  session().expand("idGroupAppearance", true);
  session().expand("idGroupMaterial", false);
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nRAL_COLORS\nRAL 1000 Green beige\n0\nMetals\nSteel 37\n1\n0\n"));
}

TEST_F(SettingsSaving, WritesAnExpandedGroupWithoutTick) {
  startDialog();
  session().tick("idKeepAppearance", true);
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nRAL_COLORS\nRAL 1000 Green beige\n1\nMetals\nSteel 37\n0\n1"));
}

TEST_F(SettingsSaving, WritesTheChosenNames) {
  startDialog();
  session().choose("idLibAssets", "Second");
  session().choose("idAppearanceList", "Pine tree");
  session().choose("idLibMaterials", "Stones");
  session().choose("idMaterialList", "Granite");
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nSecond\nPine tree\n1\nStones\nGranite\n1\n1"));
}

TEST_F(SettingsSaving, WritesNamesByteForByte) {
  folder.writeLibraries(appearancesFolder, {appearanceLibrary("RAL_COLORS \xC3\xBC", {" RAL 1 gr\xC3\xBCn; \"so\" "})});
  folder.writeLibraries(materialsFolder, {materialLibrary("\xE9\x8B\xBC", {{"St\xC3\xA4hle\t|"}})});
  startDialog();
  apply();
  EXPECT_EQ(savedSettings(), onDisk("1\n1\nRAL_COLORS \xC3\xBC\n RAL 1 gr\xC3\xBCn; \"so\" \n1\n\xE9\x8B\xBC\n"
                                    "St\xC3\xA4hle\t|\n1\n1"));
}

TEST_F(SettingsSaving, ComesBeforeAnythingIsAssigned) {
  startDialog();
  session().pick("Base");
  host().gate().setFault({1, FaultAnswer::Exception, "BRepBody.material="});
  session().click("idBtnApply");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idBtnApply): std::runtime_error:")));
  EXPECT_EQ(savedSettings(), onDisk(joinLines(defaultLines)));
}

TEST_F(SettingsSaving, ReadsTheDialogInTheOrderOfTheLines) {
  startDialog();
  session().pick("Base");
  host().gate().startTrace();
  session().click("idBtnApply");
  std::vector<std::string> calls = callsIn(host().gate());
  calls.erase(calls.begin(), std::find(calls.begin(), calls.end(), "Application.currentUser()"));
  calls.erase(std::find(calls.begin(), calls.end(), "SelectionCommandInput(idSelection).selectionCount()"),
              calls.end());
  EXPECT_THAT(
      calls,
      ElementsAre("Application.currentUser()", "User.userId()", "ButtonRowCommandInput(idFilterSelect).selectedItem()",
                  "ListItem(idFilterSelect: Body).index()", "GroupCommandInput(idGroupAppearance).isExpanded()",
                  "DropDownCommandInput(idLibAssets).selectedItem()", "ListItem(idLibAssets: RAL_COLORS).name()",
                  "DropDownCommandInput(idAppearanceList).selectedItem()",
                  "ListItem(idAppearanceList: RAL 1000 Green beige).name()",
                  "GroupCommandInput(idGroupMaterial).isExpanded()",
                  "DropDownCommandInput(idLibMaterials).selectedItem()", "ListItem(idLibMaterials: Metals).name()",
                  "DropDownCommandInput(idMaterialList).selectedItem()", "ListItem(idMaterialList: Steel 37).name()",
                  "GroupCommandInput(idGroupAppearance).isEnabledCheckBoxChecked()",
                  "GroupCommandInput(idGroupMaterial).isEnabledCheckBoxChecked()"));
}

struct FileBefore {
  const char* name;
  std::string before;
  std::string after;
};

const std::string nineLines = joinLines(defaultLines) + "\n";

class ExistingSettingsFile : public SettingsTest, public WithRow<FileBefore> {};

TABLE(Before, ExistingSettingsFile, byName,
      {{"NineLines", "a\nb\nc\nd\ne\nf\ng\nh\ni\n", nineLines},
       {"NineLinesWithoutFinalBreak", "a\nb\nc\nd\ne\nf\ng\nh\ni", nineLines},
       {"ExtraLines", "a\nb\nc\nd\ne\nf\ng\nh\ni\nextra\n\nlast\n", nineLines + "extra\n\nlast\n"},
       {"ExtraLineWithoutFinalBreak", "a\nb\nc\nd\ne\nf\ng\nh\ni\nlast", nineLines + "last\n"},
       {"EmptyExtraLine", "a\nb\nc\nd\ne\nf\ng\nh\ni\n\n", nineLines + "\n"},
       {"NineEmptyLines", "\n\n\n\n\n\n\n\n\n", nineLines},
       {"OneEmptyLine", "\n", nineLines},
       {"OneLine", "a", nineLines},
       {"EightLines", "a\nb\nc\nd\ne\nf\ng\nh\n", nineLines},
       {"Empty", "", ""}});

TABLE_TEST(ExistingSettingsFile, GetsItsFirstNineLinesReplaced) {
  startDialog();
  writeSettings(row().before);
  apply();
  EXPECT_EQ(savedSettings(), onDisk(row().after));
}

TEST_F(SettingsSaving, KeepsExtraLinesThroughEverySave) {
  startDialog();
  writeSettings(nineLines + "mine");
  for (const char* material : {"Foam", "Aerogel", "Steel 37"}) {
    session().choose("idMaterialList", material);
    apply();
  }
  EXPECT_EQ(savedSettings(), onDisk(nineLines + "mine\n"));
}

TEST_F(SettingsSaving, NeverFillsAnEmptyFile) {
  writeSettings("");
  startDialog();
  apply();
  apply();
  EXPECT_EQ(savedSettings(), "");
}

TEST_F(SettingsSaving, DoesNotReportAFileThatCannotBeWritten) {
  startDialog();
  folder.makeFolder(settingsFile());
  apply();
  EXPECT_THAT(takeErrors(), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(ownLook(body("Machine", "Base")), "RAL 1000 Green beige");
}

TEST_F(SettingsSaving, DoesNotReportAFileThatMayOnlyBeRead) {
  startDialog();
  writeSettings("kept\n");
  {
    const ReadOnlyFile file(folder.path() / settingsFile());
    apply();
  }
  EXPECT_THAT(takeErrors(), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
  EXPECT_EQ(savedSettings(), onDisk("kept\n"));
  EXPECT_EQ(ownLook(body("Machine", "Base")), "RAL 1000 Green beige");
}

#ifndef _WIN32
using PosixSettingsSaving = SettingsSaving;

TEST_F(PosixSettingsSaving, LeavesAFileAloneThatCanBeWrittenButNotRead) {
  startDialog();
  folder.write(settingsFile(), "kept\n");
  const fs::path file = folder.path() / settingsFile();
  fs::permissions(file, fs::perms(0222));
  {
    const OrdinaryUser user;
    apply();
  }
  fs::permissions(file, fs::perms(0666));
  EXPECT_EQ(savedSettings(), "kept\n");
  EXPECT_EQ(ownLook(body("Machine", "Base")), "RAL 1000 Green beige");
}
#endif

TEST_F(SettingsSaving, DoesNotReportAMissingFolder) {
  startDialog();
  host().state().account->userId = "no such folder/USER";
  apply();
  EXPECT_THAT(takeErrors(), IsEmpty());
  EXPECT_FALSE(folder.has("Tintora_no such folder"));
  EXPECT_EQ(ownLook(body("Machine", "Base")), "RAL 1000 Green beige");
}

TEST_F(SettingsSaving, RaisesForAModuleWithoutEndingAndAssignsNothing) {
  folder.renameModule("Tintora.addin");
  start();
  session().press("idAssetsMatMng");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::out_of_range:")));
  apply();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idBtnApply): std::out_of_range:")));
  EXPECT_EQ(ownLook(body("Machine", "Base")), "");
}

class UnselectedList : public SettingsTest, public WithRow<const char*> {
 protected:
  /// Takes the selection of a list away, as no user can.
  void unselect(const std::string& inputId) {
    headless::InputCore* input = host().ui().runner().active()->findInput(inputId);
    auto* dropDown = dynamic_cast<headless::DropDownInput*>(input);
    auto& list = dropDown != nullptr ? dropDown->list() : dynamic_cast<headless::ButtonRowInput&>(*input).list();
    list.setSelected(*list.selected().get(), false);
  }
};

TABLE(Lists, UnselectedList, byText,
      {"idFilterSelect", "idLibAssets", "idAppearanceList", "idLibMaterials", "idMaterialList"});

TABLE_TEST(UnselectedList, RaisesAndNothingIsWrittenOrAssigned) {
  startDialog();
  for (const std::string& before : {std::string(), nineLines + "extra"}) {
    if (!before.empty()) {
      writeSettings(before);
      openDialog();
    }
    session().pick("Base");
    unselect(row());
    session().click("idBtnApply");
    EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idBtnApply): std::exception:")));
    EXPECT_EQ(folder.has(settingsFile()) ? savedSettings() : "", onDisk(before));
    EXPECT_EQ(ownLook(body("Machine", "Base")), "");
  }
}

TEST(SettingsRoutines, RaiseWithoutAnApplication) {
  EXPECT_THROW(tintora::settingsFilePath(), std::exception);
  EXPECT_THROW(tintora::saveCommandSettings(), std::exception);
  EXPECT_THROW(tintora::loadCommandSettings(), std::exception);
}

TEST_F(SettingsSaving, KeepsAFileForEachUser) {
  startDialog();
  host().state().account->userId = "ANNA";
  session().choose("idMaterialList", "Foam");
  apply();
  host().state().account->userId = "BERT";
  session().choose("idMaterialList", "Aerogel");
  apply();
  EXPECT_THAT(folder.read(settingsFile("ANNA")), ::testing::HasSubstr("Foam"));
  EXPECT_THAT(folder.read(settingsFile("BERT")), ::testing::HasSubstr("Aerogel"));
  EXPECT_FALSE(folder.has(settingsFile("USER")));
}

TEST_F(SettingsSaving, HasAFileForNobodyToo) {
  startDialog();
  host().state().account.reset();
  apply();
  EXPECT_EQ(folder.read("Tintora__CmdSet.txt"), onDisk(joinLines(defaultLines)));
}

}  // namespace
}  // namespace tests
