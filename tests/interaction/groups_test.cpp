// Opening and closing the two groups, their header boxes, and "Set Appearance by Material": the two ways to give an
// appearance exclude each other.
#include <algorithm>

#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Groups : public AddInTest {
 protected:
  bool isTicked(const std::string& inputId) { return session().input(inputId).isTicked; }

  /// What the reaction set, in order, without answers.
  Lines setBy(const std::string& inputId, const std::function<void()>& action) {
    Lines calls;
    for (const std::string& line : reactionTo(inputId, traceOf(session(), action))) {
      if (line.find("=(") != std::string::npos || line.find(".clear()") != std::string::npos) {
        calls.push_back(line.substr(0, line.rfind(" -> ")));
      }
    }
    return calls;
  }
};

TEST_F(Groups, ClosingTheAppearanceGroupEmptiesItsFilterAndUnticksIt) {
  startDialog();
  session().type("idFilterAppearance", "300");
  session().type("idFilterMaterial", "steel");
  session().expand("idGroupAppearance", false);
  EXPECT_EQ(shown("idFilterAppearance"), "");
  EXPECT_EQ(itemsOf("idAppearanceList"), ralNames);
  EXPECT_FALSE(isTicked("idGroupAppearance"));
  EXPECT_TRUE(isTicked("idGroupMaterial"));
  EXPECT_EQ(shown("idFilterMaterial"), "steel");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel 37"));
}

TEST_F(Groups, ClosingTheMaterialGroupEmptiesItsFilterAndUnticksIt) {
  startDialog();
  session().type("idFilterAppearance", "300");
  session().type("idFilterMaterial", "steel");
  session().expand("idGroupMaterial", false);
  EXPECT_EQ(shown("idFilterMaterial"), "");
  EXPECT_EQ(itemsOf("idMaterialList").size(), metals.size());
  EXPECT_FALSE(isTicked("idGroupMaterial"));
  EXPECT_TRUE(isTicked("idGroupAppearance"));
  EXPECT_EQ(shown("idFilterAppearance"), "300");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 3000 Flame red", "RAL 3001 Signal red"));
}

TEST_F(Groups, OpeningTheAppearanceGroupTicksItAndUnticksTheCheckBox) {
  startDialog();
  session().tick("idKeepAppearance", true);
  session().expand("idGroupAppearance", false);
  ASSERT_TRUE(isTicked("idKeepAppearance"));
  session().expand("idGroupAppearance", true);
  EXPECT_TRUE(isTicked("idGroupAppearance"));
  EXPECT_FALSE(isTicked("idKeepAppearance"));
}

TEST_F(Groups, OpeningTheMaterialGroupTicksItAndLeavesTheCheckBox) {
  startDialog();
  session().tick("idKeepAppearance", true);
  session().expand("idGroupMaterial", false);
  session().expand("idGroupMaterial", true);
  EXPECT_TRUE(isTicked("idGroupMaterial"));
  EXPECT_TRUE(isTicked("idKeepAppearance"));
}

TEST_F(Groups, ClosingTheAppearanceGroupLeavesTheCheckBox) {
  startDialog();
  session().tick("idKeepAppearance", true);
  session().expand("idGroupAppearance", false);
  EXPECT_TRUE(isTicked("idKeepAppearance"));
}

TEST_F(Groups, AnOpenGroupKeepsItsFilterAndList) {
  startDialog();
  session().type("idFilterAppearance", "300");
  session().type("idFilterMaterial", "steel");
  const Lines trace = traceOf(session(), [&] {
    raiseChangeOf(session(), "idGroupAppearance");
    raiseChangeOf(session(), "idGroupMaterial");
  });
  EXPECT_EQ(shown("idFilterAppearance"), "300");
  EXPECT_EQ(shown("idFilterMaterial"), "steel");
  EXPECT_THAT(containing(".clear()", trace), IsEmpty());
}

class HeaderBox : public Groups, public WithRow<std::string> {};

TABLE(Groups, HeaderBox, byText, {"idGroupAppearance", "idGroupMaterial"});

TABLE_TEST(HeaderBox, OfAnOpenGroupIsTickedAgain) {
  startDialog();
  session().tick(row(), false);
  EXPECT_TRUE(isTicked(row()));
}

TABLE_TEST(HeaderBox, OfAClosedGroupIsUntickedAgain) {
  startDialog();
  session().expand(row(), false);
  session().tick(row(), true);
  EXPECT_FALSE(isTicked(row()));
}

TEST_F(Groups, ClosingSetsFilterThenListThenBoxThenApply) {
  startDialog();
  session().type("idFilterMaterial", "steel");
  const Lines calls = setBy("idGroupMaterial", [&] { session().expand("idGroupMaterial", false); });
  EXPECT_THAT(calls,
              ElementsAre("StringValueCommandInput(idFilterMaterial).value=(\"\")", "ListItems(idMaterialList).clear()",
                          "ListItem(idMaterialList: Steel 37).isSelected=(true)",
                          "GroupCommandInput(idGroupMaterial).isEnabledCheckBoxChecked=(false)",
                          "BoolValueCommandInput(idBtnApply).isEnabled=(false)"));
}

TEST_F(Groups, OpeningSetsBoxThenCheckBoxThenApply) {
  startDialog();
  session().tick("idKeepAppearance", true);
  session().expand("idGroupAppearance", false);
  const Lines calls = setBy("idGroupAppearance", [&] { session().expand("idGroupAppearance", true); });
  EXPECT_THAT(calls, ElementsAre("GroupCommandInput(idGroupAppearance).isEnabledCheckBoxChecked=(true)",
                                 "BoolValueCommandInput(idKeepAppearance).value=(false)",
                                 "BoolValueCommandInput(idBtnApply).isEnabled=(false)"));
}

TEST_F(Groups, TickingTheCheckBoxUnticksTheAppearanceGroupAndEmptiesItsFilter) {
  startDialog();
  session().type("idFilterAppearance", "300");
  session().tick("idKeepAppearance", true);
  EXPECT_TRUE(isTicked("idKeepAppearance"));
  EXPECT_FALSE(isTicked("idGroupAppearance"));
  EXPECT_TRUE(session().input("idGroupAppearance").isExpanded);
  EXPECT_EQ(shown("idFilterAppearance"), "");
  EXPECT_EQ(itemsOf("idAppearanceList"), ralNames);
}

// A person cannot bring about both ticks, but a settings file can.
TEST_F(Groups, UntickingTheCheckBoxUnticksTheAppearanceGroupToo) {
  startDialog();
  session().tick("idKeepAppearance", true);
  const adsk::core::Ptr<adsk::core::GroupCommandInput> group =
      host().ui().runner().active()->commandInputs()->itemById("idGroupAppearance");
  group->isEnabledCheckBoxChecked(true);
  session().tick("idKeepAppearance", false);
  EXPECT_FALSE(isTicked("idKeepAppearance"));
  EXPECT_FALSE(isTicked("idGroupAppearance"));
}

TEST_F(Groups, TheCheckBoxLeavesMaterialFilterAndList) {
  startDialog();
  session().type("idFilterMaterial", "steel");
  session().tick("idKeepAppearance", true);
  EXPECT_EQ(shown("idFilterMaterial"), "steel");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel 37"));
  EXPECT_TRUE(isTicked("idGroupMaterial"));
}

TEST_F(Groups, TheCheckBoxSetsBoxThenFilterThenListThenApply) {
  startDialog();
  session().type("idFilterAppearance", "300");
  const Lines calls = setBy("idKeepAppearance", [&] { session().tick("idKeepAppearance", true); });
  EXPECT_THAT(calls, ElementsAre("GroupCommandInput(idGroupAppearance).isEnabledCheckBoxChecked=(false)",
                                 "StringValueCommandInput(idFilterAppearance).value=(\"\")",
                                 "ListItems(idAppearanceList).clear()",
                                 "ListItem(idAppearanceList: RAL 1000 Green beige).isSelected=(true)",
                                 "BoolValueCommandInput(idBtnApply).isEnabled=(true)"));
}

class GroupsUnderProfile : public AddInUnderProfile {
 protected:
  bool isTicked(const std::string& inputId) { return session().input(inputId).isTicked; }
};

TABLE_OF_PROFILES(GroupsUnderProfile);

TABLE_TEST(GroupsUnderProfile, TheTwoWaysToGiveAnAppearanceExcludeEachOther) {
  startDialog(profile());
  session().tick("idKeepAppearance", true);
  EXPECT_TRUE(isTicked("idKeepAppearance"));
  EXPECT_FALSE(isTicked("idGroupAppearance"));
  session().expand("idGroupAppearance", false);
  session().expand("idGroupAppearance", true);
  EXPECT_FALSE(isTicked("idKeepAppearance"));
  EXPECT_TRUE(isTicked("idGroupAppearance"));
}

TABLE_TEST(GroupsUnderProfile, AClosedGroupIsUntickedWithItsFilterEmpty) {
  startDialog(profile());
  session().type("idFilterMaterial", "steel");
  session().expand("idGroupMaterial", false);
  EXPECT_FALSE(isTicked("idGroupMaterial"));
  EXPECT_EQ(shown("idFilterMaterial"), "");
  session().expand("idGroupMaterial", true);
  EXPECT_TRUE(isTicked("idGroupMaterial"));
  EXPECT_EQ(itemsOf("idMaterialList").size(), metals.size());
}

}  // namespace
}  // namespace tests
