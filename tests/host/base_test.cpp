#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <set>
#include <string>
#include <type_traits>

#include "tests/host/host_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

struct ApiClass {
  std::string text;
  const char* type;
  const char* interfaceId;
  bool isBase;
};

#define CLASS(area, name)                                                                      \
  ApiClass {                                                                                   \
    "adsk::" #area "::" #name, adsk::area::name::classType(), adsk::area::name::interfaceId(), \
        std::is_base_of_v<Base, adsk::area::name>                                              \
  }

const std::vector<ApiClass> apiClasses = {
    CLASS(core, Base),
    CLASS(core, Appearance),
    CLASS(core, Appearances),
    CLASS(core, Application),
    CLASS(core, ApplicationCommandEvent),
    CLASS(core, ApplicationCommandEventArgs),
    CLASS(core, BoolValueCommandInput),
    CLASS(core, ButtonControlDefinition),
    CLASS(core, ButtonRowCommandInput),
    CLASS(core, Command),
    CLASS(core, CommandControl),
    CLASS(core, CommandCreatedEvent),
    CLASS(core, CommandCreatedEventArgs),
    CLASS(core, CommandDefinition),
    CLASS(core, CommandDefinitions),
    CLASS(core, CommandEvent),
    CLASS(core, CommandEventArgs),
    CLASS(core, CommandInput),
    CLASS(core, CommandInputs),
    CLASS(core, ControlDefinition),
    CLASS(core, DropDownCommandInput),
    CLASS(core, Event),
    CLASS(core, EventArgs),
    CLASS(core, FloatProperty),
    CLASS(core, GroupCommandInput),
    CLASS(core, InputChangedEvent),
    CLASS(core, InputChangedEventArgs),
    CLASS(core, ListControlDefinition),
    CLASS(core, ListItem),
    CLASS(core, ListItems),
    CLASS(core, Material),
    CLASS(core, MaterialLibraries),
    CLASS(core, MaterialLibrary),
    CLASS(core, Materials),
    CLASS(core, NamedValues),
    CLASS(core, Product),
    CLASS(core, Properties),
    CLASS(core, Property),
    CLASS(core, Selection),
    CLASS(core, SelectionCommandInput),
    CLASS(core, Selections),
    CLASS(core, StringProperty),
    CLASS(core, StringValueCommandInput),
    CLASS(core, TextBoxCommandInput),
    CLASS(core, ToolbarControl),
    CLASS(core, ToolbarControls),
    CLASS(core, ToolbarPanel),
    CLASS(core, ToolbarPanels),
    CLASS(core, ToolbarTab),
    CLASS(core, ToolbarTabs),
    CLASS(core, User),
    CLASS(core, UserInterface),
    CLASS(core, Workspace),
    CLASS(core, Workspaces),
    CLASS(fusion, BRepBodies),
    CLASS(fusion, BRepBody),
    CLASS(fusion, BRepFace),
    CLASS(fusion, BRepFaces),
    CLASS(fusion, Component),
    CLASS(fusion, Design),
    CLASS(fusion, Occurrence),
    CLASS(fusion, OccurrenceList),
    CLASS(fusion, Occurrences),
};

#undef CLASS

class ClassText : public testing::Test, public WithRow<ApiClass> {};

TABLE(
    OfEveryClass, ClassText, [](const auto& row) { return std::string(row.text); }, apiClasses);

TABLE_TEST(ClassText, IsTheFullNameOfTheClass) {
  EXPECT_EQ(row().type, row().text);
  EXPECT_TRUE(row().interfaceId == row().type) << "one address for both";
  EXPECT_TRUE(row().isBase);
}

TEST(ClassTexts, HaveAnAddressOfTheirOwn) {
  std::set<const void*> addresses;
  for (const ApiClass& each : apiClasses) {
    addresses.insert(each.type);
  }
  EXPECT_EQ(addresses.size(), apiClasses.size());
}

class Objects : public HostDialogTest {
 protected:
  Ptr<Component> root() const {
    return Ptr<adsk::fusion::Design>(Application::get()->activeProduct())->rootComponent();
  }

  /// One living object of each kind that a client meets, by the class that it is of.
  std::vector<std::pair<const char*, Ptr<Base>>> all() {
    open([](const Inputs& inputs) {
      inputs->addGroupCommandInput("group", "")->children()->addSelectionInput("selection", "", "");
      inputs->addButtonRowCommandInput("row", "", false)->listItems()->add("a", true, "icon");
      inputs->addTextBoxCommandInput("box", "", "", 1, true);
      inputs->addDropDownCommandInput("list", "", TextListDropDownStyle);
      inputs->addStringValueInput("line", "");
      inputs->addBoolValueInput("button", "", false);
    });
    session().pick("Frame:1");
    const Ptr<Application> application = Application::get();
    const auto row = input<ButtonRowCommandInput>("row");
    const auto body = root()->bRepBodies()->item(0);
    return {
        {Application::classType(), application},
        {User::classType(), application->currentUser()},
        {UserInterface::classType(), ui()},
        {Workspaces::classType(), ui()->workspaces()},
        {Workspace::classType(), workspace()},
        {ToolbarTabs::classType(), workspace()->toolbarTabs()},
        {ToolbarTab::classType(), workspace()->toolbarTabs()->item(0)},
        {ToolbarPanels::classType(), workspace()->toolbarPanels()},
        {ToolbarPanel::classType(), panel()},
        {ToolbarControls::classType(), panel()->controls()},
        {CommandControl::classType(), panel()->controls()->item(0)},
        {CommandDefinitions::classType(), ui()->commandDefinitions()},
        {CommandDefinition::classType(), dialog->definition},
        {ButtonControlDefinition::classType(), dialog->definition->controlDefinition()},
        {CommandCreatedEvent::classType(), dialog->definition->commandCreated()},
        {ApplicationCommandEvent::classType(), ui()->commandTerminated()},
        {Selections::classType(), ui()->activeSelections()},
        {Command::classType(), dialog->command},
        {CommandEvent::classType(), dialog->command->execute()},
        {InputChangedEvent::classType(), dialog->command->inputChanged()},
        {CommandInputs::classType(), dialog->command->commandInputs()},
        {GroupCommandInput::classType(), input<CommandInput>("group")},
        {SelectionCommandInput::classType(), input<CommandInput>("selection")},
        {Selection::classType(), input<SelectionCommandInput>("selection")->selection(0)},
        {ButtonRowCommandInput::classType(), input<CommandInput>("row")},
        {ListItems::classType(), row->listItems()},
        {ListItem::classType(), row->selectedItem()},
        {TextBoxCommandInput::classType(), input<CommandInput>("box")},
        {DropDownCommandInput::classType(), input<CommandInput>("list")},
        {StringValueCommandInput::classType(), input<CommandInput>("line")},
        {BoolValueCommandInput::classType(), input<CommandInput>("button")},
        {MaterialLibraries::classType(), application->materialLibraries()},
        {adsk::fusion::Design::classType(), application->activeProduct()},
        {Component::classType(), root()},
        {Occurrences::classType(), root()->occurrences()},
        {OccurrenceList::classType(), root()->allOccurrences()},
        {Occurrence::classType(), root()->allOccurrences()->item(0)},
        {BRepBodies::classType(), root()->bRepBodies()},
        {BRepBody::classType(), body},
        {BRepFaces::classType(), body->faces()},
        {BRepFace::classType(), body->faces()->item(0)},
        {Material::classType(), body->material()},
        {Properties::classType(), body->material()->materialProperties()},
        {FloatProperty::classType(), body->material()->materialProperties()->item(0)},
        {Appearance::classType(), body->appearance()},
        {NamedValues::classType(), NamedValues::create()},
    };
  }
};

TEST_F(Objects, TellTheirOwnClassByTextAndByAddress) {
  for (const auto& [type, object] : all()) {
    ASSERT_TRUE(object) << type;
    EXPECT_STREQ(object->objectType(), type);
    EXPECT_TRUE(object->objectType() == type) << type << " has another address";
  }
}

TEST_F(Objects, AreValidAndConvertToNothingElse) {
  for (const auto& [type, object] : all()) {
    ASSERT_TRUE(object) << type;
    EXPECT_TRUE(object->isValid()) << type;
    EXPECT_EQ(static_cast<bool>(Ptr<CommandInput>(object)),
              std::string(type).find("CommandInput") != std::string::npos && type != CommandInputs::classType())
        << type;
  }
}

TEST_F(Objects, AnswerForAllTheirBaseClasses) {
  open([](const Inputs& inputs) { inputs->addBoolValueInput("button", "", false); });
  const Ptr<Base> button = dialog->command->commandInputs()->itemById("button");
  EXPECT_TRUE(Ptr<CommandInput>(button));
  EXPECT_TRUE(Ptr<BoolValueCommandInput>(button));
  EXPECT_FALSE(Ptr<StringValueCommandInput>(button));
  const Ptr<Base> control = panel()->controls()->item(0);
  EXPECT_TRUE(Ptr<ToolbarControl>(control) && Ptr<CommandControl>(control));
  const Ptr<Base> design = Application::get()->activeProduct();
  EXPECT_TRUE(Ptr<Product>(design) && Ptr<adsk::fusion::Design>(design));
  const Ptr<Base> event = dialog->command->execute();
  EXPECT_TRUE(Ptr<Event>(event) && Ptr<CommandEvent>(event));
  EXPECT_FALSE(Ptr<InputChangedEvent>(event));
  const Ptr<Base> density = root()->bRepBodies()->item(0)->material()->materialProperties()->item(0);
  EXPECT_TRUE(Ptr<Property>(density) && Ptr<FloatProperty>(density));
  EXPECT_FALSE(Ptr<StringProperty>(density));
}

TEST_F(Objects, AreCountedByTheirHandles) {
  const Ptr<Application> application = Application::get();
  const int before = application->refcount();
  {
    const Ptr<Base> more = Application::get();
    EXPECT_EQ(application->refcount(), before + 1);
  }
  EXPECT_EQ(application->refcount(), before);
}

}  // namespace
}  // namespace tests
