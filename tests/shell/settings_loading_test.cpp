#include <algorithm>

#include "host/libraries/library_file.h"
#include "tests/shell/file_rights.h"
#include "tests/shell/settings_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

using headless::FaultAnswer;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// Every value differs from that of a new dialog.
const std::vector<std::string> otherLines = {"2",       "0", "Second", "RAL 9005 Jet black", "0", "Stones",
                                             "Granite", "0", "0"};

// What the dialog shows before and after those lines are restored, in the order in which they are.
const std::vector<std::string> defaultChoices = {"Body", "1", "1",      "RAL_COLORS", "RAL 1000 Green beige",
                                                 "1",    "1", "Metals", "Steel 37"};
const std::vector<std::string> otherChoices = {"Face", "0", "0",      "Second", "RAL 9005 Jet black",
                                               "0",    "0", "Stones", "Granite"};

/// Step by which the material library was chosen that the material list belongs to.
constexpr std::size_t materialStep = 8;

/// The choices after the first `steps` of the nine.
std::vector<std::string> choicesAfter(std::size_t steps) {
  std::vector<std::string> expected = defaultChoices;
  std::copy_n(otherChoices.begin(), steps, expected.begin());
  constexpr std::size_t appearanceLibraryStep = 4;
  if (steps >= appearanceLibraryStep && steps < materialStep) {
    // The appearance library's materials are listed meanwhile, and it has none.
    expected.back() = "nothing found";
  } else if (steps == materialStep) {
    expected.back() = "Basalt";
  }
  return expected;
}

class SettingsLoadingUnderProfile : public SettingsTest, public WithRow<std::string> {};

TABLE_OF_PROFILES(SettingsLoadingUnderProfile);

TABLE_TEST(SettingsLoadingUnderProfile, RestoresAllNineValuesWithAndWithoutAFinalLineBreak) {
  for (const char* end : {"", "\n", "\nextra", "\n\n\n"}) {
    writeSettings(joinLines(otherLines) + end);
    startDialog(headless::profileNamed(row()));
    EXPECT_THAT(choices(), ElementsAreArray(otherChoices));
    EXPECT_EQ(shown("idSelection"), "Select Face");
    finish();
  }
}

using SettingsLoading = SettingsTest;

TEST_F(SettingsLoading, KeepsTheDefaultsWithoutAFile) {
  startDialog();
  EXPECT_THAT(choices(), ElementsAreArray(defaultChoices));
}

TEST_F(SettingsLoading, KeepsTheDefaultsForAFileThatCannotBeRead) {
  folder.makeFolder(settingsFile());
  startDialog();
  EXPECT_THAT(choices(), ElementsAreArray(defaultChoices));
}

// On Windows the standard library's own files have other line ends.
TEST_F(SettingsLoading, TakesAFileWithPlainLineFeedsAsAnEditorLeavesIt) {
  folder.write(settingsFile(), joinLines(otherLines) + "\n");
  startDialog();
  EXPECT_THAT(choices(), ElementsAreArray(otherChoices));
}

#ifndef _WIN32
using PosixSettingsLoading = SettingsLoading;

TEST_F(PosixSettingsLoading, KeepsTheDefaultsForAFileThatMayNotBeRead) {
  writeSettings(otherLines);
  fs::permissions(folder.path() / settingsFile(), fs::perms(0222));
  {
    const OrdinaryUser user;
    startDialog();
  }
  EXPECT_THAT(choices(), ElementsAreArray(defaultChoices));
}
#endif

TEST_F(SettingsLoading, TakesTheFileOfTheUserWhoIsSignedIn) {
  writeSettings(otherLines);
  start();
  host().state().account->userId = "SOMEBODY";
  openDialog();
  EXPECT_THAT(choices(), ElementsAreArray(defaultChoices));
  session().pressCancel();
  host().state().account->userId = "USER";
  openDialog();
  EXPECT_THAT(choices(), ElementsAreArray(otherChoices));
}

TEST_F(SettingsLoading, TakesAFileOfItsOwnWhenNobodyIsSignedIn) {
  folder.write("Tintora__CmdSet.txt", onDisk(joinLines(otherLines)));
  start();
  host().state().account.reset();
  openDialog();
  EXPECT_THAT(choices(), ElementsAreArray(otherChoices));
}

TEST_F(SettingsLoading, RaisesForAModuleWithoutEndingBeforeTheFilterIsSetUp) {
  folder.renameModule("Tintora.addin");
  start();
  session().press("idAssetsMatMng");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::out_of_range:")));
  EXPECT_EQ(shown("idSelection"), "Select");
  EXPECT_EQ(session().dialog().width, 425);
}

TEST_F(SettingsLoading, SetsTheInputsInThisOrder) {
  writeSettings(otherLines);
  start();
  host().gate().startTrace();
  openDialog();
  std::vector<std::string> calls = callsWith(host().gate(), {"=(", "clear", "addSelectionFilter", "userId", "ByName"});
  calls.erase(calls.begin(), std::find(calls.begin(), calls.end(), "User.userId()"));
  const std::vector<std::string> filterSetUp = {"TextBoxCommandInput(idActAppearance).formattedText=(\"\")",
                                                "TextBoxCommandInput(idActMaterial).formattedText=(\"\")",
                                                "SelectionCommandInput(idSelection).clearSelection()",
                                                "SelectionCommandInput(idSelection).clearSelectionFilter()",
                                                "SelectionCommandInput(idSelection).addSelectionFilter(\"Faces\")",
                                                "SelectionCommandInput(idSelection).commandPrompt=(\"Select Face\")"};
  std::vector<std::string> expected = {"User.userId()", "ListItem(idFilterSelect: Face).isSelected=(true)"};
  expected.insert(expected.end(), filterSetUp.begin(), filterSetUp.end());
  const std::vector<std::string> restored = {"GroupCommandInput(idGroupAppearance).isExpanded=(false)",
                                             "GroupCommandInput(idGroupAppearance).isEnabledCheckBoxChecked=(false)",
                                             "ListItem(idLibAssets: Second).isSelected=(true)",
                                             "MaterialLibraries.itemByName(\"Second\")",
                                             "ListItems(idMaterialList).clear()",
                                             "ListItem(idAppearanceList: RAL 9005 Jet black).isSelected=(true)",
                                             "GroupCommandInput(idGroupMaterial).isExpanded=(false)",
                                             "GroupCommandInput(idGroupMaterial).isEnabledCheckBoxChecked=(false)",
                                             "ListItem(idLibMaterials: Stones).isSelected=(true)",
                                             "MaterialLibraries.itemByName(\"Stones\")",
                                             "ListItems(idMaterialList).clear()",
                                             "ListItem(idMaterialList: Basalt).isSelected=(true)",
                                             "ListItem(idMaterialList: Granite).isSelected=(true)"};
  expected.insert(expected.end(), restored.begin(), restored.end());
  expected.insert(expected.end(), filterSetUp.begin(), filterSetUp.end());
  EXPECT_THAT(calls, ElementsAreArray(expected));
}

struct ShortFile {
  std::size_t lines;
  std::vector<std::string> choices;
};

class ShortSettingsFile : public SettingsTest, public WithRow<ShortFile> {};

TABLE(Lines, ShortSettingsFile, [](const auto& row) { return std::to_string(row.lines); },
      {{0, defaultChoices},
       {1, {"Face", "1", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "1", "Metals", "Steel 37"}},
       {2, {"Face", "0", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "1", "Metals", "Steel 37"}},
       {3, {"Face", "0", "1", "Second", "RAL 1000 Green beige", "1", "1", "Metals", "nothing found"}},
       {4, {"Face", "0", "1", "Second", "RAL 9005 Jet black", "1", "1", "Metals", "nothing found"}},
       {5, {"Face", "0", "1", "Second", "RAL 9005 Jet black", "0", "1", "Metals", "nothing found"}},
       {6, {"Face", "0", "1", "Second", "RAL 9005 Jet black", "0", "1", "Stones", "Basalt"}},
       {7, {"Face", "0", "1", "Second", "RAL 9005 Jet black", "0", "1", "Stones", "Granite"}},
       {8, {"Face", "0", "0", "Second", "RAL 9005 Jet black", "0", "1", "Stones", "Granite"}},
       {9, otherChoices}});

TABLE_TEST(ShortSettingsFile, IsReadAsFarAsItGoes) {
  writeSettings(
      std::vector<std::string>(otherLines.begin(), otherLines.begin() + static_cast<std::ptrdiff_t>(row().lines)));
  startDialog();
  EXPECT_THAT(choices(), ElementsAreArray(row().choices));
}

struct NumberText {
  const char* name;
  const char* text;
  bool isTrue;
};

class SavedFlag : public SettingsTest, public WithRow<NumberText> {};

TABLE(Texts, SavedFlag, byName,
      {{"One", "1", true},
       {"Zero", "0", false},
       {"Other", "42", true},
       {"Negative", "-1", true},
       {"Zeros", "000", false},
       {"Plus", "+0", false},
       {"WhiteSpace", " \t\v\f0", false},
       {"StopsAtTheFirstOther", "0x1", false},
       {"StopsAtABlank", "0 1", false},
       {"Point", "0.9", false},
       {"Largest", "2147483647", true},
       {"Smallest", "-2147483648", true}});

TABLE_TEST(SavedFlag, IsTrueForANumberOtherThanZero) {
  std::vector<std::string> lines = defaultLines;
  for (const std::size_t line : {1U, 4U, 7U, 8U}) {
    lines[line] = row().text;
  }
  writeSettings(lines);
  startDialog();
  for (const char* id : {"idGroupAppearance", "idGroupMaterial"}) {
    EXPECT_EQ(session().input(id).isExpanded, row().isTrue) << id;
    EXPECT_EQ(session().input(id).isTicked, row().isTrue) << id;
  }
}

class SavedIndex : public SettingsTest, public WithRow<NumberText> {};

TABLE(Texts, SavedIndex, byName, {{"Three", "3", false}, {"Negative", "-1", false}, {"Largest", "2147483647", false}});

TABLE_TEST(SavedIndex, RaisesAtOnceWhereNoButtonHasIt) {
  std::vector<std::string> lines = otherLines;
  lines[0] = row().text;
  writeSettings(lines);
  start();
  session().press("idAssetsMatMng");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  EXPECT_THAT(choices(), ElementsAreArray(defaultChoices));
  EXPECT_EQ(shown("idSelection"), "Select");
}

struct BadNumber {
  const char* name;
  const char* text;
  const char* error;
};

constexpr const char* noNumber = "std::invalid_argument: invalid stoi argument";
constexpr const char* outOfRange = "std::out_of_range: stoi argument out of range";

class BadSavedNumber : public SettingsTest, public WithRow<BadNumber> {};

TABLE(Texts, BadSavedNumber, byName,
      {{"Empty", "", noNumber},
       {"Word", "abc", noNumber},
       {"OnlyASign", "-", noNumber},
       {"TwoSigns", "+-1", noNumber},
       {"OnlyBlanks", "  ", noNumber},
       {"Point", ".5", noNumber},
       {"SignAndBlank", "- 1", noNumber},
       {"TooLarge", "2147483648", outOfRange},
       {"TooSmall", "-2147483649", outOfRange},
       {"TooLong", "99999999999999999999999", outOfRange}});

TABLE_TEST(BadSavedNumber, RaisesAndLeavesWhatWasRestoredBeforeIt) {
  // The lines that hold numbers, and how many values are restored before each.
  const std::vector<std::pair<std::size_t, std::size_t>> numberLines = {{0, 0}, {1, 1}, {7, 2}, {4, 5}, {8, 6}};
  for (const auto& [line, steps] : numberLines) {
    SCOPED_TRACE("line " + std::to_string(line + 1));
    std::vector<std::string> lines = otherLines;
    lines[line] = row().text;
    writeSettings(joinLines(lines) + "\n");
    start();
    session().press("idAssetsMatMng");
    EXPECT_THAT(takeErrors(), ElementsAre(std::string("commandCreated(idAssetsMatMng): ") + row().error));
    EXPECT_THAT(choices(), ElementsAreArray(choicesAfter(steps)));
    finish();
  }
}

struct SavedName {
  const char* name;
  std::size_t line;
  const char* text;
};

class UnmatchedName : public SettingsTest, public WithRow<SavedName> {};

TABLE(Names, UnmatchedName, byName,
      {{"AppearanceLibraryInLowerCase", 2, "second"},
       {"AppearanceLibraryCut", 2, "Secon"},
       {"AppearanceLibraryLonger", 2, "Second "},
       {"AppearanceLibraryEmpty", 2, ""},
       {"AppearanceInUpperCase", 3, "RAL 9005 JET BLACK"},
       {"AppearanceOfAnotherLibrary", 3, "Oak tree"},
       {"MaterialLibraryGone", 5, "Woods"},
       {"MaterialLibraryInLowerCase", 5, "stones"},
       {"MaterialGone", 6, "Marble"},
       {"MaterialCut", 6, "Granit"}});

TABLE_TEST(UnmatchedName, LeavesItsListAsItIs) {
  std::vector<std::string> lines = {"1", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "Stones", "Basalt", "1", "1"};
  std::vector<std::string> expected = {"Body", "1", "1",      "RAL_COLORS", "RAL 1000 Green beige",
                                       "1",    "1", "Stones", "Basalt"};
  lines[row().line] = row().text;
  if (row().line == 5) {
    expected[7] = "Metals";
    expected[8] = "nothing found";
  }
  writeSettings(lines);
  startDialog();
  EXPECT_THAT(choices(), ElementsAreArray(expected));
}

TEST_F(SettingsLoading, ListsTheMaterialsOfALibraryThatTheHostKnowsAndTheListDoesNot) {
  start();
  host().materials().add(headless::libraries::parseLibrary(materialLibrary("Elsewhere", {{"Ice"}, {"Snow"}}), "test"));
  writeSettings({"1", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "Elsewhere", "Snow", "1", "1"});
  openDialog();
  EXPECT_EQ(shown("idLibMaterials"), "Metals");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Ice", "Snow"));
  EXPECT_EQ(shown("idMaterialList"), "Snow");
}

TEST_F(SettingsLoading, ListsTheMaterialsOfTheAppearanceLibraryWhereNoMaterialLibraryFollows) {
  folder.writeLibraries(appearancesFolder,
                        {appearanceLibrary("RAL_COLORS", ralNames), materialLibrary("Mixed", {{"Oak"}, {"Pine"}})});
  writeSettings({"1", "1", "Mixed"});
  startDialog();
  EXPECT_EQ(shown("idLibAssets"), "Mixed");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Oak", "Pine"));
  EXPECT_EQ(shown("idMaterialList"), "Oak");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAreArray(ralNames));
}

TEST_F(SettingsLoading, FillsTheMaterialListWithoutTheRulesOfColours) {
  folder.writeLibraries(materialsFolder,
                        {materialLibrary("Metals", metals), materialLibrary("For RAL_COLORS", {{"Tin"}, {"Steel"}})});
  writeSettings({"1", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "For RAL_COLORS", "Steel", "1", "1"});
  startDialog();
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Tin", "Steel"));
  EXPECT_EQ(shown("idMaterialList"), "Steel");
}

TEST_F(SettingsLoading, MatchesNamesByteForByte) {
  folder.writeLibraries(materialsFolder, {materialLibrary("Metals", metals),
                                          materialLibrary("Stoffe \xC3\xBC", {{"A"}, {"gr\xC3\xBCn "}})});
  writeSettings({"1", "1", "RAL_COLORS", "RAL 1000 Green beige", "1", "Stoffe \xC3\xBC", "gr\xC3\xBCn ", "1", "1"});
  startDialog();
  EXPECT_EQ(shown("idLibMaterials"), "Stoffe \xC3\xBC");
  EXPECT_EQ(shown("idMaterialList"), "gr\xC3\xBCn ");
}

}  // namespace
}  // namespace tests
