#include "dialog/item_lists.h"

#include <ostream>

#include "tests/dialog/dialog_fixture.h"
#include "tests/support/linked_dialog.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using headless::ItemView;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// The two lists, each with its library and its filter.
struct ListInputs {
  const char* library;
  const char* filter;
  const char* list;
};

constexpr ListInputs appearanceInputs = {"idLibAssets", "idFilterAppearance", "idAppearanceList"};
constexpr ListInputs materialInputs = {"idLibMaterials", "idFilterMaterial", "idMaterialList"};

class ItemLists : public DialogTest {
 protected:
  void addNames(const std::vector<std::string>& names) {
    std::vector<TestMaterial> materials;
    for (const std::string& name : names) {
      materials.push_back({name});
    }
    addAppearanceLibrary("RAL_COLORS.adsklib", "RAL_COLORS", names);
    addMaterialLibrary("Metals.adsklib", "Metals", materials);
  }

  /// The icon of each item of the appearance list.
  std::vector<std::string> icons() {
    std::vector<std::string> folders;
    for (const ItemView& item : session().input("idAppearanceList").items) {
      folders.push_back(item.icon);
    }
    return folders;
  }

  static std::string iconFolder(const std::string& key) {
    return inSystemStyle("resources/Libs/Appearances/RAL_COLORS/" + key);
  }
};

const std::vector<std::string> filteredNames = {"RAL 3000 Flame red",
                                                "RAL 1000 Green beige",
                                                "RAL 30",
                                                "ral 3015 light pink",
                                                "Bor30",
                                                "RAL 9999 \xC3\x89"
                                                "cru",
                                                "RAL 9998 \xC3\xA9"
                                                "cru"};

struct FilterCase {
  const char* name;
  const char* filter;
  std::vector<std::string> kept;
};

class ListFilter : public ItemLists, public WithRow<FilterCase> {};

TABLE(Texts, ListFilter, byName,
      {{"LowerCase", "ral 30", {"RAL 3000 Flame red", "RAL 30", "ral 3015 light pink"}},
       {"UpperCase", "RAL 30", {"RAL 3000 Flame red", "RAL 30", "ral 3015 light pink"}},
       {"Anywhere", "30", {"RAL 3000 Flame red", "RAL 30", "ral 3015 light pink", "Bor30"}},
       {"AtTheEnd", "RED", {"RAL 3000 Flame red"}},
       {"TrailingBlank", "3000 ", {"RAL 3000 Flame red"}},
       {"TrailingBlankThatNothingHas", "ral 30 ", {}},
       {"LeadingBlank", " light", {"ral 3015 light pink"}},
       {"OnlyABlank",
        " ",
        {"RAL 3000 Flame red", "RAL 1000 Green beige", "RAL 30", "ral 3015 light pink",
         "RAL 9999 \xC3\x89"
         "cru",
         "RAL 9998 \xC3\xA9"
         "cru"}},
       {"UpperCaseAccent",
        "\xC3\x89",
        {"RAL 9999 \xC3\x89"
         "cru"}},
       {"LowerCaseAccent",
        "\xC3\xA9"
        "CRU",
        {"RAL 9998 \xC3\xA9"
         "cru"}},
       {"NoPattern", ".*", {}},
       {"WholeName", "bor30", {"Bor30"}},
       {"LongerThanAnyName", "ral 3000 flame red and more", {}}});

TABLE_TEST(ListFilter, KeepsTheNamesThatContainItInTheLibrarysOrder) {
  addNames(filteredNames);
  startDialog();
  const std::vector<std::string> expected = row().kept.empty() ? std::vector<std::string>{"nothing found"} : row().kept;
  for (const ListInputs& inputs : {appearanceInputs, materialInputs}) {
    session().type(inputs.filter, row().filter);
    EXPECT_THAT(itemsOf(inputs.list), ElementsAreArray(expected));
    EXPECT_EQ(shown(inputs.list), expected.front());
  }
}

class ItemListsUnderProfile : public ItemLists, public WithRow<std::string> {};

TABLE_OF_PROFILES(ItemListsUnderProfile);

TABLE_TEST(ItemListsUnderProfile, FollowTheFilterKeyByKeyAndComeBackWhenItIsEmptied) {
  startDialog(headless::profileNamed(row()));
  const std::vector<std::string> all = itemsOf("idAppearanceList");
  session().type("idFilterAppearance", "s");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 3001 Signal red", "RAL 5015 Sky blue"));
  session().type("idFilterAppearance", "sk");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 5015 Sky blue"));
  session().type("idFilterAppearance", "skx");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("nothing found"));
  session().type("idFilterAppearance", "");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAreArray(all));
  EXPECT_EQ(shown("idAppearanceList"), all.front());
}

TABLE_TEST(ItemListsUnderProfile, FollowTheLibraryAndKeepTheFilter) {
  addMaterialLibrary("Stones.adsklib", "Stones", {{"Basalt"}, {"Steel grey granite"}});
  startDialog(headless::profileNamed(row()));
  session().choose("idLibMaterials", "Metals");
  session().type("idFilterMaterial", "steel");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel 37"));
  session().choose("idLibMaterials", "Stones");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel grey granite"));
  EXPECT_EQ(shown("idMaterialList"), "Steel grey granite");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAreArray(ralNames));
}

TEST_F(ItemLists, ForgetTheChoiceWhenTheyAreRefilled) {
  startDialog();
  session().choose("idAppearanceList", "RAL 3001 Signal red");
  session().type("idFilterAppearance", "red");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 3000 Flame red", "RAL 3001 Signal red"));
  EXPECT_EQ(shown("idAppearanceList"), "RAL 3000 Flame red");
}

TEST_F(ItemLists, ShowNothingFoundForALibraryThatIsEmpty) {
  addMaterialLibrary("Metals.adsklib", "Metals", {});
  startDialog();
  EXPECT_THAT(itemsOf("idMaterialList"), IsEmpty());
  session().type("idFilterMaterial", "x");
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("nothing found"));
  EXPECT_EQ(shown("idMaterialList"), "nothing found");
  EXPECT_EQ(session().input("idMaterialList").items.front().icon, "");
}

TEST_F(ItemLists, ShowNothingFoundForALibraryThatTheHostForgot) {
  addAppearanceLibrary("Woods.adsklib", "Woods", {"Oak tree"});
  startDialog();
  host().application()->materialLibraries()->itemByName("Woods")->unload();
  session().choose("idLibAssets", "Woods");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("nothing found"));
}

TEST_F(ItemLists, AreFilledInThisOrder) {
  startDialog();
  host().gate().startTrace();
  session().type("idFilterMaterial", "l");
  EXPECT_THAT(
      callsWith(host().gate(),
                {"ListItems(idMaterialList).clear", "ListItems(idMaterialList).add", "ListItems(idMaterialList).item",
                 "isSelected=", "Libraries.itemByName", "StringValueCommandInput(idFilterMaterial).value"}),
      ElementsAre("StringValueCommandInput(idFilterMaterial).value()", R"(MaterialLibraries.itemByName("Metals"))",
                  "ListItems(idMaterialList).clear()", R"(ListItems(idMaterialList).add("Steel 37", false, "", -1))",
                  R"(ListItems(idMaterialList).add("Aluminium 6061", false, "", -1))",
                  R"(ListItems(idMaterialList).add("Aerogel", false, "", -1))",
                  R"(ListItems(idMaterialList).add("Unknown alloy", false, "", -1))",
                  R"(ListItems(idMaterialList).add("Odd alloy", false, "", -1))", "ListItems(idMaterialList).item(0)",
                  "ListItem(idMaterialList: Steel 37).isSelected=(true)",
                  // The rule of the Apply button looks at the list too.
                  "ListItems(idMaterialList).item(0)"));
}

TEST_F(ItemLists, GetNothingFoundAsOneSelectedItem) {
  startDialog();
  host().gate().startTrace();
  session().type("idFilterMaterial", "@");
  EXPECT_THAT(
      callsWith(host().gate(), {"ListItems(idMaterialList).clear", "ListItems(idMaterialList).add", "isSelected="}),
      ElementsAre("ListItems(idMaterialList).clear()",
                  R"(ListItems(idMaterialList).add("nothing found", true, "", -1))"));
}

struct KeyCase {
  const char* name;
  const char* itemName;
  const char* key;
};

class IconKey : public ItemLists, public WithRow<KeyCase> {};

TABLE(Names, IconKey, byName,
      {{"Colour", "RAL 9005 Jet black", "RAL9005"},
       {"AnyFourthCharacter", "RAL-1000", "RAL1000"},
       {"FourthDigit", "RAL10005", "RAL0005"},
       {"BlankInside", "RAL 10 05", "RAL10 0"},
       {"Short", "RAL 12", "RAL12"},
       {"FourCharacters", "Zinc", "Zin"},
       {"FiveCharacters", "Steel", "Stel"}});

TABLE_TEST(IconKey, NamesTheFolderOfTheIcon) {
  addNames({row().itemName});
  folder.addColourIcon(row().key);
  startDialog();
  EXPECT_THAT(icons(), ElementsAre(iconFolder(row().key)));
  session().type("idFilterAppearance", std::string(row().itemName).substr(0, 1));
  EXPECT_THAT(icons(), ElementsAre(iconFolder(row().key)));
}

TEST_F(ItemLists, HaveIconsOnlyWhereTheFileExists) {
  folder.addColourIcon("RAL3000");
  folder.makeFolder(appearancesFolder / "RAL_COLORS" / "RAL3001");
  folder.write(appearancesFolder / "RAL_COLORS" / "RAL5015" / "32x32.png", "icon");
  startDialog();
  for (const char* filter : {"", "r"}) {
    session().type("idFilterAppearance", filter);
    EXPECT_THAT(icons(), ElementsAre("", iconFolder("RAL3000"), "", "", "")) << filter;
  }
}

TEST_F(ItemLists, TakeIconsThatAppearMeanwhile) {
  startDialog();
  EXPECT_EQ(icons().front(), "");
  folder.addColourIcon("RAL1000");
  session().type("idFilterAppearance", "r");
  EXPECT_EQ(icons().front(), iconFolder("RAL1000"));
}

struct LibraryName {
  const char* name;
  const char* libraryName;
  bool hasIcons;
};

class IconLibrary : public ItemLists, public WithRow<LibraryName> {};

TABLE(Names, IconLibrary, byName,
      {{"Inside", "my_RAL_COLORS_2", true},
       {"AtTheEnd", "old RAL_COLORS", true},
       {"LowerCase", "ral_colors", false},
       {"Cut", "RAL_COLOR", false},
       {"Another", "Woods", false}});

TABLE_TEST(IconLibrary, IsOneWhoseNameContainsThatOfTheColours) {
  addAppearanceLibrary("Another.adsklib", row().libraryName, {"RAL 9005 Jet black"});
  folder.addColourIcon("RAL9005");
  startDialog();
  session().choose("idLibAssets", "RAL_COLORS");
  session().choose("idLibAssets", row().libraryName);
  EXPECT_THAT(icons(), ElementsAre(row().hasIcons ? iconFolder("RAL9005") : ""));
  session().choose("idLibAssets", "RAL_COLORS");
  EXPECT_EQ(icons().back(), iconFolder("RAL9005"));
}

TEST_F(ItemLists, OfColoursRaiseForANameOfLessThanFourCharactersAndKeepTheItemsBeforeIt) {
  folder.writeLibraries(appearancesFolder,
                        {appearanceLibrary("Short RAL_COLORS", {"RAL 1000 Green beige", "Red", "RAL 3000"}),
                         appearanceLibrary("RAL_COLORS", ralNames)});
  startDialog();
  session().choose("idLibAssets", "Short RAL_COLORS");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idLibAssets): std::out_of_range:")));
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("RAL 1000 Green beige"));
}

TEST_F(ItemLists, WithoutColoursTakeNamesOfAnyLength) {
  addAppearanceLibrary("Short.adsklib", "Short", {"Red", "O"});
  startDialog();
  session().choose("idLibAssets", "Short");
  EXPECT_THAT(itemsOf("idAppearanceList"), ElementsAre("Red", "O"));
}

TEST_F(ItemLists, OfAMaterialLibraryAreFilledAsColoursToo) {
  addMaterialLibrary("Metals.adsklib", "Metals for RAL_COLORS", {{"Steel 37"}, {"Tin"}});
  startDialog();
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel 37", "Tin"));
  session().type("idFilterMaterial", "t");
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idFilterMaterial): std::out_of_range:")));
  EXPECT_THAT(itemsOf("idMaterialList"), ElementsAre("Steel 37"));
}

class MissingListInput : public ItemLists, public WithRow<std::size_t> {};

TABLE(Nth, MissingListInput, byNumber, {1U, 2U, 3U});

TABLE_TEST(MissingListInput, LeavesTheListAsItIs) {
  startDialog();
  host().gate().setFault({row(), FaultAnswer::Nothing, "CommandInputs.itemById"});
  session().type("idFilterMaterial", "s");
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(itemsOf("idMaterialList"), SizeIs(metals.size()));
}

class MissingListObject : public ItemLists, public WithRow<const char*> {};

TABLE(Calls, MissingListObject, byText,
      {"Application.materialLibraries", "MaterialLibrary.materials", "DropDownCommandInput.selectedItem",
       "DropDownCommandInput.listItems"});

TABLE_TEST(MissingListObject, RaisesAndLeavesTheListAsItIs) {
  startDialog();
  host().gate().setFault({1, FaultAnswer::Nothing, row()});
  session().type("idFilterMaterial", "s");
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idFilterMaterial): std::exception:")));
  EXPECT_THAT(itemsOf("idMaterialList"), SizeIs(metals.size()));
}

class ListRoutines : public ItemLists, public WithRow<ListInputs> {};

TABLE(Inputs, ListRoutines,
      [](const auto& row) { return row.library + std::string("_") + row.filter + "_" + row.list; },
      {{"idFilterSelect", "idFilterMaterial", "idMaterialList"},
       {"idLibMaterials", "idLibMaterials", "idMaterialList"},
       {"idLibMaterials", "idFilterMaterial", "idFilterMaterial"},
       {"idLibMaterials", "idActMaterial", "idMaterialList"},
       {"idGroupMaterial", "idFilterMaterial", "idMaterialList"},
       {"idUnknown", "idFilterMaterial", "idMaterialList"},
       {"idLibMaterials", "idUnknown", "idMaterialList"},
       {"idLibMaterials", "idFilterMaterial", ""}});

TABLE_TEST(ListRoutines, DoNothingForInputsOfAnotherKindOrNone) {
  startDialog();
  const LinkedDialog dialog(host());
  session().choose("idMaterialList", "Foam");
  session().choose("idAppearanceList", "RAL 5015 Sky blue");
  EXPECT_NO_THROW(tintora::fillItemList(row().library, row().filter, row().list));
  EXPECT_EQ(shown("idMaterialList"), "Foam");
  EXPECT_EQ(shown("idAppearanceList"), "RAL 5015 Sky blue");
}

TEST_F(ItemLists, OfALibraryThatNobodyKnowsAreEmpty) {
  startDialog();
  const LinkedDialog dialog(host());
  EXPECT_THAT(tintora::listAppearanceNames("Nobody", ""), IsEmpty());
  EXPECT_THAT(tintora::listMaterialNames("Nobody", "x"), IsEmpty());
  EXPECT_THAT(tintora::listMaterialNames("metals", ""), IsEmpty());
}

TEST_F(ItemLists, OfAppearancesAndMaterialsReadTheirOwnPartOfALibrary) {
  startDialog();
  const LinkedDialog dialog(host());
  EXPECT_THAT(tintora::listAppearanceNames("RAL_COLORS", ""), ElementsAreArray(ralNames));
  EXPECT_THAT(tintora::listMaterialNames("RAL_COLORS", ""), IsEmpty());
  EXPECT_THAT(tintora::listMaterialNames("Metals", ""), SizeIs(metals.size()));
  EXPECT_THAT(tintora::listAppearanceNames("Metals", "steel"), ElementsAre("Steel 37 look"));
}

TEST(ItemListRoutines, RaiseWithoutAnApplication) {
  EXPECT_THROW(tintora::listAppearanceNames("RAL_COLORS", ""), std::exception);
  EXPECT_THROW(tintora::listMaterialNames("Metals", ""), std::exception);
}

}  // namespace
}  // namespace tests
