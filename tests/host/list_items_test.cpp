#include "host/ui/list_items.h"

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;

class Lists : public HostDialogTest {
 protected:
  void SetUp() override {
    open([](const Inputs& inputs) {
      inputs->addDropDownCommandInput("texts", "", TextListDropDownStyle);
      inputs->addDropDownCommandInput("icons", "", LabeledIconDropDownStyle);
      inputs->addDropDownCommandInput("boxes", "", CheckBoxDropDownStyle);
      inputs->addButtonRowCommandInput("row", "", false);
      inputs->addButtonRowCommandInput("rowOfMany", "", true);
    });
  }

  Ptr<ListItems> itemsOf(const std::string& id) const {
    const Ptr<DropDownCommandInput> dropDown = input<CommandInput>(id);
    return dropDown ? dropDown->listItems() : input<ButtonRowCommandInput>(id)->listItems();
  }
  /// Names in order, the selected ones in brackets.
  static Log namesIn(const Ptr<ListItems>& items) {
    Log names;
    for (const Ptr<ListItem>& each : items) {
      names.push_back(each->isSelected() ? "[" + each->name() + "]" : each->name());
    }
    return names;
  }
  Ptr<ListItems> filled(const std::string& id) const {
    const auto items = itemsOf(id);
    for (const char* name : {"a", "b", "c"}) {
      items->add(name, false, "icon");
    }
    return items;
  }
};

TEST_F(Lists, KeepTheOrderOfAdditionAndInsertBeforeAnIndex) {
  const auto items = filled("texts");
  EXPECT_EQ(items->add("first", false, "", 0)->index(), 0);
  EXPECT_EQ(items->add("last", false, "", 4)->index(), 4);
  EXPECT_EQ(namesIn(items), Log({"first", "a", "b", "c", "last"}));
  EXPECT_EQ(items->count(), 5U);
}

TEST_F(Lists, RefusePlacesThatAreNotThere) {
  const auto items = filled("texts");
  EXPECT_FALSE(items->add("x", true, "", 4));
  EXPECT_FALSE(items->add("x", true, "", -2));
  EXPECT_EQ(namesIn(items), Log({"a", "b", "c"}));
}

TEST_F(Lists, GiveNothingForABadIndex) {
  EXPECT_FALSE(filled("texts")->item(3));
  EXPECT_EQ(filled("icons")->item(2)->name(), "c");
}

TEST_F(Lists, SelectNothingByThemselves) {
  filled("texts");
  EXPECT_FALSE(input<DropDownCommandInput>("texts")->selectedItem());
}

TEST_F(Lists, OfASingleChoiceUnselectTheOthers) {
  const auto items = filled("texts");
  EXPECT_TRUE(items->item(0)->isSelected(true));
  EXPECT_TRUE(items->item(2)->isSelected(true));
  EXPECT_EQ(namesIn(items), Log({"a", "b", "[c]"}));
  EXPECT_EQ(input<DropDownCommandInput>("texts")->selectedItem()->index(), 2);
  items->add("d", true);
  EXPECT_EQ(namesIn(items), Log({"a", "b", "c", "[d]"}));
}

TEST_F(Lists, OfASingleChoiceMayLoseTheirSelection) {
  const auto items = filled("row");
  items->item(1)->isSelected(true);
  EXPECT_EQ(input<ButtonRowCommandInput>("row")->selectedItem()->index(), 1);
  items->item(1)->isSelected(false);
  EXPECT_FALSE(input<ButtonRowCommandInput>("row")->selectedItem());
}

TEST_F(Lists, OfManyChoicesKeepEach) {
  const auto items = filled("boxes");
  items->item(0)->isSelected(true);
  items->item(2)->isSelected(true);
  EXPECT_EQ(namesIn(items), Log({"[a]", "b", "[c]"}));
}

TEST_F(Lists, OfManyChoicesHaveASelectedItemAsLongAsOneIs) {
  const auto items = filled("rowOfMany");
  EXPECT_TRUE(input<ButtonRowCommandInput>("rowOfMany")->isMultiSelectEnabled());
  items->item(0)->isSelected(true);
  items->item(2)->isSelected(true);
  items->item(2)->isSelected(false);
  EXPECT_EQ(input<ButtonRowCommandInput>("rowOfMany")->selectedItem()->index(), 0);
  items->item(0)->isSelected(false);
  EXPECT_FALSE(input<ButtonRowCommandInput>("rowOfMany")->selectedItem());
}

TEST_F(Lists, OfAButtonRowNeedIconsAndShowNoNames) {
  const auto items = itemsOf("row");
  EXPECT_FALSE(items->add("a", false));
  const auto item = items->add("a", false, "icon");
  EXPECT_EQ(item->name(), "");
  EXPECT_FALSE(item->name("b"));
  EXPECT_EQ(item->icon(), "icon");
  EXPECT_EQ(session().input("row").items.at(0).name, "a") << "what a person reads in the tooltip";
}

TEST_F(Lists, KeepIconsWhereTheyAreShown) {
  EXPECT_EQ(itemsOf("icons")->add("a", false, "icon")->icon(), "icon");
  const auto textOnly = itemsOf("texts")->add("a", false, "icon");
  EXPECT_EQ(textOnly->icon(), "");
  EXPECT_FALSE(textOnly->icon("other"));
  EXPECT_TRUE(itemsOf("icons")->item(0)->icon("other"));
  EXPECT_EQ(itemsOf("icons")->item(0)->icon(), "other");
}

TEST_F(Lists, RenameTheirItems) {
  const auto items = filled("texts");
  EXPECT_TRUE(items->item(1)->name("B"));
  EXPECT_EQ(namesIn(items), Log({"a", "B", "c"}));
}

TEST_F(Lists, AreEmptyAfterClearingAndNothingIsSelected) {
  const auto items = filled("texts");
  const auto kept = items->item(1);
  kept->isSelected(true);
  EXPECT_TRUE(items->clear());
  EXPECT_EQ(items->count(), 0U);
  EXPECT_FALSE(input<DropDownCommandInput>("texts")->selectedItem());
  EXPECT_FALSE(kept->isValid());
  EXPECT_EQ(kept->name(), "");
  EXPECT_FALSE(kept->isSelected(true));
}

TEST_F(Lists, OfADropDownKeepTheActiveItem) {
  const auto items = filled("texts");
  items->item(1)->isSelected(true);
  EXPECT_FALSE(items->item(1)->deleteMe());
  const auto gone = items->item(0);
  EXPECT_TRUE(gone->deleteMe());
  EXPECT_FALSE(gone->isValid());
  EXPECT_FALSE(gone->deleteMe());
  EXPECT_EQ(namesIn(items), Log({"[b]", "c"}));
  EXPECT_EQ(items->item(0)->index(), 0);
}

TEST_F(Lists, OfButtonsAndCheckBoxesGiveSelectedItemsAway) {
  for (const char* id : {"row", "boxes"}) {
    const auto items = filled(id);
    items->item(1)->isSelected(true);
    EXPECT_TRUE(items->item(1)->deleteMe()) << id;
    EXPECT_EQ(items->count(), 2U) << id;
  }
  EXPECT_FALSE(input<ButtonRowCommandInput>("row")->selectedItem());
}

TEST_F(Lists, AreGoneWithTheirDialog) {
  const auto items = filled("texts");
  const auto item = items->item(0);
  session().pressCancel();
  EXPECT_FALSE(items->isValid() || item->isValid());
  EXPECT_EQ(items->count(), 0U);
  EXPECT_FALSE(items->add("d", false));
  EXPECT_EQ(item->index(), 0);
}

TEST_F(Lists, TellTheirStyle) {
  EXPECT_EQ(input<DropDownCommandInput>("texts")->dropDownStyle(), TextListDropDownStyle);
  EXPECT_EQ(input<DropDownCommandInput>("icons")->dropDownStyle(), LabeledIconDropDownStyle);
  EXPECT_FALSE(input<ButtonRowCommandInput>("row")->isMultiSelectEnabled());
}

}  // namespace
}  // namespace tests
