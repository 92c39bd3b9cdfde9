// The dispatcher: which reaction follows the change of which input, and the reactions that are no larger than a few
// calls. Groups and the check box beside them are in groups_test.cpp.
#include <algorithm>
#include <utility>

#include "tests/interaction/reactions.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// Rows of the dispatch in their order; inputs of one row share a reaction.
const std::vector<std::vector<std::string>> rows = {{"idFilterSelect"},
                                                    {"idSelection"},
                                                    {"idLibAssets", "idFilterAppearance"},
                                                    {"idLibMaterials", "idFilterMaterial"},
                                                    {"idGroupAppearance", "idGroupMaterial"},
                                                    {"idKeepAppearance"},
                                                    {"idRemoveAssignAppearance"},
                                                    {"idBtnApply"}};

/// The ids of the inputs that were asked for their id, in order.
Lines idsAskedIn(const Lines& calls) {
  Lines ids;
  for (const std::string& line : calls) {
    const std::size_t call = line.find(").id() -> ");
    if (call != std::string::npos) {
      const std::size_t open = line.find('(');
      ids.push_back(line.substr(open + 1, call - open - 1));
    }
  }
  return ids;
}

struct DispatchedInput {
  std::string id;
  std::size_t row;
};

std::vector<DispatchedInput> dispatchedInputs() {
  std::vector<DispatchedInput> inputs;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (const std::string& id : rows[row]) {
      inputs.push_back({id, row});
    }
  }
  return inputs;
}

class DispatchOrder : public AddInTest, public WithRow<DispatchedInput> {};

TABLE(
    Inputs, DispatchOrder, [](const auto& row) { return row.id; }, dispatchedInputs());

TABLE_TEST(DispatchOrder, RowsAreTriedInOrderUntilOneMatches) {
  const DispatchedInput& changed = row();
  startDialog();
  const Lines asked =
      idsAskedIn(reactionTo(changed.id, traceOf(session(), [&] { raiseChangeOf(session(), changed.id); })));

  Lines expected = {changed.id};
  for (const auto& input : dispatchedInputs()) {
    expected.push_back(input.id);
    if (input.id == changed.id) {
      break;
    }
  }
  ASSERT_GE(asked.size(), expected.size());
  EXPECT_EQ(Lines(asked.begin(), asked.begin() + static_cast<std::ptrdiff_t>(expected.size())), expected);
  for (const auto& later : dispatchedInputs()) {
    if (later.row > changed.row) {
      EXPECT_THAT(asked, Each(Not(later.id)));
    }
  }
}

class InputsWithoutReaction : public AddInTest, public WithRow<std::string> {};

TABLE(Inputs, InputsWithoutReaction, byText,
      {"idGroupSelect", "idActAppearance", "idAppearanceList", "idActMaterial", "idMaterialList"});

TABLE_TEST(InputsWithoutReaction, OnlyIdsAreCompared) {
  startDialog();
  session().pick("Base");
  const std::string before = screenText(session().dialog());
  const Lines reaction = reactionTo(row(), traceOf(session(), [&] { raiseChangeOf(session(), row()); }));
  EXPECT_THAT(reaction.front(), HasSubstr("InputChangedEventArgs.input()"));
  EXPECT_EQ(idsAskedIn(reaction).size(), reaction.size() - 1);
  EXPECT_EQ(screenText(session().dialog()), before);
}

using InputChanged = AddInTest;

TEST_F(InputChanged, AnEventWithoutInputIsIgnored) {
  startDialog();
  session().pick("Base");
  const std::string before = screenText(session().dialog());
  host().gate().setFault({1, FaultAnswer::Nothing, "InputChangedEventArgs.input"});
  const Lines trace = traceOf(session(), [&] { raiseChangeOf(session(), "idBtnApply"); });
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(reactionTo("idBtnApply", trace).size(), 1U);
  EXPECT_EQ(screenText(session().dialog()), before);
}

TEST_F(InputChanged, ChoosingAnItemOfAListLeavesApplyAsItIs) {
  startDialog();
  session().choose("idAppearanceList", "RAL 3000 Flame red");
  session().choose("idMaterialList", "Foam");
  EXPECT_FALSE(isEnabled("idBtnApply"));
  EXPECT_EQ(shown("idAppearanceList"), "RAL 3000 Flame red");
  EXPECT_EQ(shown("idMaterialList"), "Foam");
}

TEST_F(InputChanged, ASelectionIsDescribedBeforeApplyIsDecided) {
  startDialog();
  const Lines reaction = reactionTo("idSelection", traceOf(session(), [&] { session().pick("Base"); }));
  const Lines results = containing("=(", reaction);
  ASSERT_EQ(results.size(), 4U);
  EXPECT_THAT(results[0], HasSubstr("idRemoveAssignAppearance"));
  EXPECT_THAT(results[1], HasSubstr("TextBoxCommandInput(idActAppearance).formattedText="));
  EXPECT_THAT(results[2], HasSubstr("TextBoxCommandInput(idActMaterial).formattedText="));
  EXPECT_EQ(results[3], "BoolValueCommandInput(idBtnApply).isEnabled=(true) -> true");
}

TEST_F(InputChanged, AnErrorEndsTheReactionAndLeavesWhatWasChangedBefore) {
  start();
  host().gate().setFault({3, FaultAnswer::Nothing, "CommandInputs.addBoolValueInput"});
  openDialog();
  ASSERT_EQ(session().dialog().find("idBtnApply"), nullptr);
  session().pick("Base");
  EXPECT_THAT(takeErrors(), ElementsAre(HasSubstr("inputChanged(idSelection): std::exception")));
  EXPECT_THAT(shown("idActMaterial"), HasSubstr("Steel"));
}

// Row 1: the filter row.

constexpr const char* hostFilterId = "SelectionFilterCommand";
using ItemNames = std::vector<std::string>;

class HostSelectionFilter : public AddInTest {
 protected:
  void installList(const ItemNames& names,
                   adsk::core::ListControlDisplayTypes display = adsk::core::RadioButtonlistType) {
    host().ui().definitions().addNative(hostFilterId, "Selection Filter").showAsList(display, names);
  }

  std::vector<bool> selectedItems() {
    const adsk::core::Ptr<adsk::core::ListControlDefinition> control =
        host().ui().definitions().find(hostFilterId)->controlDefinition();
    std::vector<bool> selected;
    for (const auto& item : control->listItems()) {
      selected.push_back(item->isSelected());
    }
    return selected;
  }
};

TEST_F(HostSelectionFilter, GetsItsThirdItemSelectedAfterTheDialogsFilterIsSet) {
  startDialog();
  installList({"Everything", "Bodies", "Faces", "Edges"});
  const Lines reaction =
      reactionTo("idFilterSelect", traceOf(session(), [&] { session().choose("idFilterSelect", "Face"); }));
  EXPECT_THAT(selectedItems(), ElementsAre(false, false, true, false));
  EXPECT_EQ(session().input("idSelection").filters, Lines{"Faces"});

  const auto positionOf = [&](const std::string& call) {
    return std::find_if(reaction.begin(), reaction.end(),
                        [&](const std::string& line) { return line.find(call) != std::string::npos; });
  };
  ASSERT_NE(positionOf("commandPrompt="), reaction.end());
  EXPECT_LT(positionOf("commandPrompt="), positionOf("CommandDefinitions.itemById(\"SelectionFilterCommand\")"));
  EXPECT_EQ(reaction.back(), "ListItem(Selection Filter: Faces).isSelected=(true) -> true");
}

TEST_F(HostSelectionFilter, KeepsOtherItemsOfAMultipleChoiceSelected) {
  startDialog();
  installList({"Everything", "Bodies", "Faces"}, adsk::core::CheckBoxListType);
  const adsk::core::Ptr<adsk::core::ListControlDefinition> control =
      host().ui().definitions().find(hostFilterId)->controlDefinition();
  control->listItems()->item(0)->isSelected(true);
  session().choose("idFilterSelect", "Component");
  EXPECT_THAT(selectedItems(), ElementsAre(true, false, true));
}

TEST_F(HostSelectionFilter, MayBeMissing) {
  startDialog();
  const Lines reaction =
      reactionTo("idFilterSelect", traceOf(session(), [&] { session().choose("idFilterSelect", "Face"); }));
  EXPECT_EQ(reaction.back(), "CommandDefinitions.itemById(\"SelectionFilterCommand\") -> none");
  EXPECT_EQ(session().input("idSelection").filters, Lines{"Faces"});
}

TEST_F(HostSelectionFilter, MayBeNoList) {
  startDialog();
  host().ui().definitions().addNative(hostFilterId, "Selection Filter");
  const Lines reaction =
      reactionTo("idFilterSelect", traceOf(session(), [&] { session().choose("idFilterSelect", "Face"); }));
  EXPECT_THAT(reaction.back(), HasSubstr("CommandDefinition(SelectionFilterCommand).controlDefinition()"));
}

TEST_F(HostSelectionFilter, MayHaveFewerThanThreeItems) {
  startDialog();
  installList({"Everything", "Bodies"});
  const Lines reaction =
      reactionTo("idFilterSelect", traceOf(session(), [&] { session().choose("idFilterSelect", "Face"); }));
  EXPECT_EQ(reaction.back(), "ListItems(Selection Filter).item(2) -> none");
  EXPECT_THAT(selectedItems(), ElementsAre(false, false));
}

class MissingLinkToHostFilter : public HostSelectionFilter, public WithRow<std::string> {};

TABLE(Links, MissingLinkToHostFilter, byText,
      {"UserInterface.commandDefinitions", "CommandDefinitions.itemById", "CommandDefinition.controlDefinition",
       "ListControlDefinition.listItems", "ListItems.item"});

TABLE_TEST(MissingLinkToHostFilter, EndsTheReactionQuietly) {
  startDialog();
  installList({"Everything", "Bodies", "Faces"});
  host().gate().setFault({1, FaultAnswer::Nothing, row()});
  const Lines reaction =
      reactionTo("idFilterSelect", traceOf(session(), [&] { session().choose("idFilterSelect", "Face"); }));
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(reaction.back(), EndsWith("-> nothing, as the call was made to fail"));
  EXPECT_THAT(selectedItems(), ElementsAre(false, false, false));
  EXPECT_EQ(session().input("idSelection").filters, Lines{"Faces"});
}

// Rows 3 and 4: libraries and filters.

using ListRefill = AddInTest;

TEST_F(ListRefill, EveryKeyOfTheAppearanceFilterNarrowsTheAppearanceList) {
  startDialog();
  const Lines trace = traceOf(session(), [&] { session().type("idFilterAppearance", "300"); });
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 3000 Flame red", "RAL 3001 Signal red"));
  EXPECT_EQ(shown("idAppearanceList"), "RAL 3000 Flame red");
  EXPECT_EQ(containing("ListItems(idAppearanceList).clear()", trace).size(), 3U);
  EXPECT_THAT(containing("ListItems(idMaterialList).", trace), Each(HasSubstr(".item(0)")));
}

TEST_F(ListRefill, EveryKeyOfTheMaterialFilterNarrowsTheMaterialList) {
  startDialog();
  const Lines trace = traceOf(session(), [&] { session().type("idFilterMaterial", "al"); });
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Aluminium 6061", "Unknown alloy", "Odd alloy"));
  EXPECT_EQ(shown("idMaterialList"), "Aluminium 6061");
  EXPECT_EQ(containing("ListItems(idMaterialList).clear()", trace).size(), 2U);
  EXPECT_THAT(containing("ListItems(idAppearanceList).", trace), Each(HasSubstr(".item(0)")));
}

TEST_F(ListRefill, AnotherAppearanceLibraryFillsTheAppearanceListThroughItsFilter) {
  addAppearanceLibrary("More.adsklib", "More looks", {"Gold", "Old silver", "Oak"});
  startDialog();
  session().type("idFilterAppearance", "old");
  ASSERT_THAT(itemsOf("idAppearanceList"), ElementsAre("nothing found"));
  session().choose("idLibAssets", "More looks");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("Gold", "Old silver"));
  EXPECT_EQ(itemsOf("idMaterialList").size(), metals.size());
}

TEST_F(ListRefill, AnotherMaterialLibraryFillsTheMaterialListThroughItsFilter) {
  addMaterialLibrary("Woods.adsklib", "Woods", {{"Oak", 700}, {"Steelwood", 1200}});
  startDialog();
  session().choose("idLibMaterials", "Metals");
  session().type("idFilterMaterial", "steel");
  ASSERT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel 37"));
  session().choose("idLibMaterials", "Woods");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steelwood"));
  EXPECT_EQ(itemsOf("idAppearanceList").size(), ralNames.size());
}

class InputChangedUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(InputChangedUnderProfile);

TABLE_TEST(InputChangedUnderProfile, FilterRowTextsAndListsFollowTheUser) {
  startDialog(profile());
  session().pick("Base");
  EXPECT_THAT(shown("idActMaterial"), HasSubstr("Steel"));
  session().choose("idFilterSelect", "Face");
  EXPECT_THAT(session().picked(), IsEmpty());
  EXPECT_EQ(shown("idActMaterial"), "");
  session().pick("Base/Face1");
  session().type("idFilterAppearance", "black");
  session().type("idFilterMaterial", "steel");
  EXPECT_EQ(shown("idAppearanceList"), "RAL 9005 Jet black");
  EXPECT_EQ(shown("idMaterialList"), "Steel 37");
  EXPECT_TRUE(isEnabled("idBtnApply"));
  EXPECT_THAT(session().picked(), ElementsAre("Base/Face1"));
}

struct RefilledList {
  std::string library;
  std::string filter;
  std::string list;
};

class Refill : public AddInTest, public WithRow<RefilledList> {};

TABLE(Lists, Refill, [](const auto& row) { return row.list; },
      {{"idLibAssets", "idFilterAppearance", "idAppearanceList"},
       {"idLibMaterials", "idFilterMaterial", "idMaterialList"}});

// With every compiler, though arguments of one call may be worked out in any order.
TABLE_TEST(Refill, AsksInOneOrder) {
  startDialog();
  const auto& [library, filter, list] = row();
  const auto type = [&, &input = filter] { session().type(input, "a"); };
  const Lines reaction = reactionTo(filter, traceOf(session(), type));
  const Lines ids = idsAskedIn(reaction);
  const Lines handedOn = {library, filter, list};
  EXPECT_NE(std::search(ids.begin(), ids.end(), handedOn.begin(), handedOn.end()), ids.end());
  const auto isAt = [&](const std::string& call) {
    return std::find_if(reaction.begin(), reaction.end(),
                        [&](const std::string& line) { return line.find("(" + call) != std::string::npos; }) -
           reaction.begin();
  };
  EXPECT_LT(isAt(library + ").selectedItem()"), isAt(filter + ").value()"));
  EXPECT_LT(static_cast<std::size_t>(isAt(filter + ").value()")), reaction.size());
}

}  // namespace
}  // namespace tests
