// When the Apply button is enabled. Three rules that differ on purpose: one after a change of the selection or of a
// group, one after a change of a list, one after "Set Appearance by Material".
#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* nothingFound = "nothing found";

/// A state of the dialog, and whether each rule enables Apply in it.
struct ApplyState {
  const char* name;
  bool isPicked;
  bool isAppearanceOpen;
  bool isMaterialOpen;
  bool hasAppearances;
  bool hasMaterials;
  bool afterSelectionOrGroup;
  bool afterList;
  bool afterCheckBox;
};

constexpr bool no = false;
constexpr bool yes = true;

// What each row is about stands first; the columns are those of ApplyState.
const std::vector<ApplyState> applyStates = {
    {"Everything", yes, yes, yes, yes, yes, yes, yes, yes},
    {"OnlyAppearanceOpen", yes, yes, no, yes, yes, yes, yes, yes},
    {"OnlyMaterialOpen", yes, no, yes, yes, yes, yes, yes, yes},
    {"BothClosed", yes, no, no, yes, yes, no, yes, yes},
    {"NothingPicked", no, yes, yes, yes, yes, no, yes, yes},
    {"NothingPickedBothClosed", no, no, no, yes, yes, no, yes, yes},
    {"NoAppearances", yes, yes, yes, no, yes, no, no, yes},
    {"NoAppearancesInAClosedGroup", yes, no, yes, no, yes, no, no, yes},
    {"NoMaterials", yes, yes, yes, yes, no, no, no, no},
    {"NoMaterialsInAClosedGroup", yes, yes, no, yes, no, no, no, no},
    {"NothingAtAllInTheLists", yes, yes, yes, no, no, no, no, no},
    {"NothingPickedNoAppearances", no, yes, yes, no, yes, no, no, yes},
};

class ApplyRules : public AddInTest, public WithRow<ApplyState> {
 protected:
  void bringAbout(const ApplyState& state) {
    addAppearanceLibrary("Empty.adsklib", "Empty looks", {});
    addMaterialLibrary("Empty.adsklib", "Empty materials", {});
    addMaterialLibrary("More.adsklib", "More materials", {{"Brass"}});
    startDialog();
    session().choose("idLibAssets", state.hasAppearances ? "RAL_COLORS" : "Empty looks");
    session().choose("idLibMaterials", "More materials");
    session().choose("idLibMaterials", state.hasMaterials ? "Metals" : "Empty materials");
    if (state.isPicked) {
      session().pick("Base");
    }
    session().expand("idGroupAppearance", state.isAppearanceOpen);
    session().expand("idGroupMaterial", state.isMaterialOpen);
    ASSERT_EQ(shown("idAppearanceList") == nothingFound, !state.hasAppearances);
    ASSERT_EQ(shown("idMaterialList") == nothingFound, !state.hasMaterials);
  }

  /// The button's state after a change of that input, whatever it was before.
  bool enabledAfterChangeOf(const std::string& inputId, bool before) {
    host().ui().runner().active()->findInput("idBtnApply")->enabled = before;
    raiseChangeOf(session(), inputId);
    return isEnabled("idBtnApply");
  }
};

TABLE(States, ApplyRules, byName, applyStates);

TABLE_TEST(ApplyRules, AfterTheSelectionOrAGroup) {
  bringAbout(row());
  const bool expected = row().afterSelectionOrGroup;
  for (const char* changed : {"idSelection", "idGroupAppearance", "idGroupMaterial"}) {
    EXPECT_EQ(enabledAfterChangeOf(changed, !expected), expected) << changed;
  }
}

TABLE_TEST(ApplyRules, AfterAList) {
  bringAbout(row());
  const bool expected = row().afterList;
  for (const char* changed : {"idLibAssets", "idFilterAppearance", "idLibMaterials", "idFilterMaterial"}) {
    EXPECT_EQ(enabledAfterChangeOf(changed, !expected), expected) << changed;
  }
}

TABLE_TEST(ApplyRules, AfterTheCheckBox) {
  bringAbout(row());
  const bool expected = row().afterCheckBox;
  EXPECT_EQ(enabledAfterChangeOf("idKeepAppearance", !expected), expected);
}

using ApplyButton = AddInTest;

TEST_F(ApplyButton, FollowsTheSelection) {
  startDialog();
  EXPECT_FALSE(isEnabled("idBtnApply"));
  session().pick("Base");
  EXPECT_TRUE(isEnabled("idBtnApply"));
  session().clearPicks();
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(ApplyButton, StaysDisabledWhileBothGroupsAreClosed) {
  startDialog();
  session().expand("idGroupAppearance", false);
  session().expand("idGroupMaterial", false);
  session().pick("Base");
  EXPECT_FALSE(isEnabled("idBtnApply"));
  session().expand("idGroupMaterial", true);
  EXPECT_TRUE(isEnabled("idBtnApply"));
}

TEST_F(ApplyButton, IsDisabledByAFilterThatFindsNothingUntilItIsEmptied) {
  startDialog();
  session().pick("Base");
  session().type("idFilterAppearance", "no such colour");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre(nothingFound));
  EXPECT_FALSE(isEnabled("idBtnApply"));
  session().type("idFilterAppearance", "");
  EXPECT_TRUE(isEnabled("idBtnApply"));
}

// A library without materials leaves its list without any item when the dialog is built: there is none to look at.
TEST_F(ApplyButton, IsDisabledByAFilterThatFindsNothingWhateverTheMaterialListLacks) {
  removeLibraries("Materials");
  addMaterialLibrary("Empty.adsklib", "Empty materials", {});
  startDialog();
  ASSERT_THAT(itemsOf("idMaterialList"), IsEmpty());
  session().type("idFilterAppearance", "~");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre(nothingFound));
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(ApplyButton, StaysDisabledAfterTheAppearanceFilterIsEmptiedWhileNoMaterialIsFound) {
  startDialog();
  session().pick("Base");
  session().type("idFilterMaterial", "no such material");
  session().type("idFilterAppearance", "no such colour");
  session().type("idFilterAppearance", "");
  EXPECT_FALSE(isEnabled("idBtnApply"));
  session().type("idFilterMaterial", "");
  EXPECT_TRUE(isEnabled("idBtnApply"));
}

TEST_F(ApplyButton, IsEnabledByAFilterAloneAndDisabledByTheNextGroup) {
  startDialog();
  session().type("idFilterAppearance", "RAL");
  EXPECT_TRUE(isEnabled("idBtnApply"));
  session().expand("idGroupMaterial", false);
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

TEST_F(ApplyButton, IsEnabledByTheCheckBoxWithNothingSelected) {
  startDialog();
  session().tick("idKeepAppearance", true);
  EXPECT_TRUE(isEnabled("idBtnApply"));
}

/// A list of these appearances, and whether Apply takes it for one that has nothing to show.
struct FirstItem {
  const char* name;
  std::vector<std::string> appearances;
  bool isNothing;
};

class NothingToShow : public AddInTest, public WithRow<FirstItem> {};

TABLE(Names, NothingToShow, byName,
      {{"SameName", {nothingFound, "Gold"}, true},
       {"SecondItem", {"Gold", nothingFound}, false},
       {"LongerName", {"nothing found yet"}, false},
       {"OtherCase", {"Nothing found"}, false}});

TABLE_TEST(NothingToShow, IsToldByTheExactNameOfTheFirstItem) {
  addAppearanceLibrary("Odd.adsklib", "Odd names", row().appearances);
  startDialog();
  session().pick("Base");
  session().choose("idLibAssets", "Odd names");
  EXPECT_EQ(itemsOf("idAppearanceList"), row().appearances);
  EXPECT_EQ(isEnabled("idBtnApply"), !row().isNothing);
}

TEST_F(ApplyButton, IsNotDecidedWhenAListHasNoItemAtAll) {
  removeLibraries("Materials");
  addMaterialLibrary("Empty.adsklib", "Empty materials", {});
  startDialog();
  ASSERT_TRUE(itemsOf("idMaterialList").empty());
  session().pick("Base");
  EXPECT_THAT(takeErrors(), ElementsAre(HasSubstr("inputChanged(idSelection): std::exception")));
  EXPECT_FALSE(isEnabled("idBtnApply"));
  EXPECT_THAT(shown("idActMaterial"), HasSubstr("Steel"));
}

class ApplyButtonUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(ApplyButtonUnderProfile);

TABLE_TEST(ApplyButtonUnderProfile, FollowsSelectionListsAndGroups) {
  startDialog(profile());
  session().pick("Base");
  EXPECT_TRUE(isEnabled("idBtnApply"));
  session().type("idFilterMaterial", "no such material");
  EXPECT_FALSE(isEnabled("idBtnApply"));
  session().expand("idGroupMaterial", false);
  EXPECT_TRUE(isEnabled("idBtnApply"));
  session().expand("idGroupAppearance", false);
  EXPECT_FALSE(isEnabled("idBtnApply"));
  session().expand("idGroupAppearance", true);
  EXPECT_TRUE(isEnabled("idBtnApply"));
  session().clearPicks();
  EXPECT_FALSE(isEnabled("idBtnApply"));
}

}  // namespace
}  // namespace tests
