#include "host/ui/command_definitions.h"

#include "tests/host/host_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace adsk::core;

class Definitions : public HostTest {
 protected:
  Ptr<CommandDefinitions> all() const { return ui()->commandDefinitions(); }
  Ptr<CommandDefinition> add(const std::string& id) const { return all()->addButtonDefinition(id, "Name", "Tip"); }
};

TEST_F(Definitions, AreFoundByIdAndInOrder) {
  const auto made = add("first");
  EXPECT_EQ(all()->itemById("first"), made);
  EXPECT_EQ(all()->item(all()->count() - 1), made);
  EXPECT_FALSE(all()->itemById("First"));
  EXPECT_FALSE(all()->item(all()->count()));
}

TEST_F(Definitions, KeepTheirTexts) {
  const auto made = all()->addButtonDefinition("id", "Name", "Tip", "icons");
  EXPECT_EQ(made->id() + made->name() + made->tooltip() + made->resourceFolder(), "idNameTipicons");
  EXPECT_TRUE(made->name("N") && made->tooltip("T") && made->resourceFolder("F"));
  EXPECT_EQ(made->name() + made->tooltip() + made->resourceFolder(), "NTF");
}

TEST_F(Definitions, HaveUniqueIds) {
  const auto first = add("id");
  EXPECT_FALSE(add("id"));
  EXPECT_EQ(all()->itemById("id"), first);
  EXPECT_FALSE(add("SelectCommand")) << "the host's own count as well";
  EXPECT_TRUE(first->deleteMe());
  EXPECT_TRUE(add("id"));
}

struct IdCase {
  std::string id;
  bool isAllowed;
};

class DefinitionId : public Definitions, public WithRow<IdCase> {};

TABLE(Characters, DefinitionId, byNumber,
      {{"azAZ09_", true},
       {"_", true},
       {"0", true},
       {"", false},
       {"a b", false},
       {"a-b", false},
       {"a.b", false},
       {"a/b", false},
       {"\xC3\xA4", false}});

TABLE_TEST(DefinitionId, HasLettersDigitsAndUnderscoresOnly) {
  EXPECT_EQ(static_cast<bool>(add(row().id)), row().isAllowed) << row().id;
}

TEST_F(Definitions, OfTheHostAreNotDeleted) {
  const auto native = all()->itemById("SelectCommand");
  EXPECT_TRUE(native->isNative());
  EXPECT_FALSE(native->deleteMe());
  EXPECT_TRUE(native->isValid());
  EXPECT_FALSE(add("id")->isNative());
}

TEST_F(Definitions, ThatAreDeletedAreGoneForEverybody) {
  const auto command = commandWithButton("Command");
  const auto definition = command->definition;
  const auto other = all()->itemById("Command");
  const auto event = definition->commandCreated();
  const auto look = definition->controlDefinition();
  EXPECT_TRUE(definition->deleteMe());
  EXPECT_FALSE(all()->itemById("Command"));
  EXPECT_FALSE(definition->isValid() || other->isValid() || event->isValid() || look->isValid());
  EXPECT_EQ(other->id() + other->name(), "");
  EXPECT_FALSE(definition->execute() || definition->deleteMe() || definition->name("x") ||
               definition->commandCreated());
  EXPECT_FALSE(event->add(&command->created));
}

TEST_F(Definitions, AreShownAsAButton) {
  const auto look = add("id")->controlDefinition();
  EXPECT_TRUE(Ptr<ButtonControlDefinition>(look));
  EXPECT_FALSE(Ptr<ListControlDefinition>(look));
  EXPECT_EQ(look->name(), "Name");
  EXPECT_TRUE(look->isEnabled() && look->isVisible());
  EXPECT_TRUE(look->name("Other"));
  EXPECT_EQ(look->name(), "Other");
}

TEST_F(Definitions, DecideWhetherTheirButtonCanBePressed) {
  const auto command = commandWithButton("Command");
  command->definition->controlDefinition()->isEnabled(false);
  EXPECT_THAT(refusalOf([this] { session().press("Command"); }), testing::HasSubstr("greyed out"));
  EXPECT_FALSE(session().toolbar().front().isEnabled);
  command->definition->controlDefinition()->isEnabled(true);
  command->definition->controlDefinition()->isVisible(false);
  EXPECT_THAT(refusalOf([this] { session().press("Command"); }), testing::HasSubstr("there is no button"));
  EXPECT_TRUE(session().toolbar().empty());
  EXPECT_EQ(log, Log({}));
}

TEST_F(Definitions, OfTheHostMayBeShownAsAList) {
  auto& native = host().ui().definitions().addNative("SelectionFilterCommand", "Filter");
  native.showAsList(CheckBoxListType, {"a", "b", "c"});
  const Ptr<ListControlDefinition> list = all()->itemById("SelectionFilterCommand")->controlDefinition();
  ASSERT_TRUE(list);
  EXPECT_EQ(list->listControlDisplayType(), CheckBoxListType);
  EXPECT_EQ(list->listItems()->count(), 3U);
  EXPECT_FALSE(list->lastSelected());
  EXPECT_TRUE(list->listItems()->item(2)->isSelected(true));
  EXPECT_TRUE(list->listItems()->item(1)->isSelected(true));
  EXPECT_TRUE(list->listItems()->item(2)->isSelected()) << "check boxes do not untick each other";
  EXPECT_EQ(list->lastSelected()->name(), "b");
}

TEST_F(Definitions, OfRadioButtonsHaveOneChoice) {
  auto& native = host().ui().definitions().addNative("Radio", "Radio");
  native.showAsList(RadioButtonlistType, {"a", "b"});
  const Ptr<ListControlDefinition> list = all()->itemById("Radio")->controlDefinition();
  list->listItems()->item(0)->isSelected(true);
  list->listItems()->item(1)->isSelected(true);
  EXPECT_FALSE(list->listItems()->item(0)->isSelected());
  EXPECT_EQ(list->lastSelected()->name(), "b");
}

TEST_F(Definitions, OutliveTheHostAndAnswerWithNothing) {
  host().ui().definitions().addNative("List", "List").showAsList(StandardListType, {"a"});
  const Ptr<ListControlDefinition> list = all()->itemById("List")->controlDefinition();
  const auto items = list->listItems();
  const auto definition = add("id");
  const auto definitions = all();
  const auto event = definition->commandCreated();
  end();
  EXPECT_FALSE(definition->isValid() || definitions->isValid() || list->isValid() || items->isValid());
  EXPECT_EQ(definition->name() + list->name(), "");
  EXPECT_FALSE(definition->execute() || definitions->itemById("id") || list->lastSelected() || event->sender());
  EXPECT_EQ(items->count() + definitions->count(), 0U);
}

}  // namespace
}  // namespace tests
