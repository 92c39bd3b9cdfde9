// Names, types, defaults and values that clients compile in. What has the type of a call is checked by the compiler: a
// difference does not build.
#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/tables.h"

namespace api_types {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

using Text = const std::string&;

// Collections: what counts are and what an index is.
template <class Collection, class Item, class Index>
constexpr bool isCollection = std::is_same_v<decltype(&Collection::count), std::size_t (Collection::*)() const>&&
    std::is_same_v<decltype(&Collection::item), Ptr<Item> (Collection::*)(Index) const>&&
        std::is_same_v<typename Collection::iterable_type, Item>;

static_assert(isCollection<MaterialLibraries, MaterialLibrary, int>);
static_assert(isCollection<Materials, Material, int>);
static_assert(isCollection<Appearances, Appearance, int>);
static_assert(isCollection<Properties, Property, int>);
static_assert(isCollection<BRepBodies, BRepBody, std::size_t>);
static_assert(isCollection<BRepFaces, BRepFace, std::size_t>);
static_assert(isCollection<OccurrenceList, Occurrence, std::size_t>);
static_assert(isCollection<Occurrences, Occurrence, std::size_t>);
static_assert(isCollection<ListItems, ListItem, std::size_t>);
static_assert(isCollection<CommandInputs, CommandInput, std::size_t>);
static_assert(isCollection<CommandDefinitions, CommandDefinition, std::size_t>);
static_assert(isCollection<ToolbarPanels, ToolbarPanel, std::size_t>);
static_assert(isCollection<ToolbarControls, ToolbarControl, std::size_t>);
static_assert(isCollection<ToolbarTabs, ToolbarTab, std::size_t>);
static_assert(isCollection<Workspaces, Workspace, std::size_t>);
static_assert(isCollection<Selections, Selection, std::size_t>);

template <auto Member, class Type>
constexpr bool isMember = std::is_same_v<decltype(Member), Type>;

static_assert(isMember<&ListItem::index, int (ListItem::*)() const>);
static_assert(isMember<&ToolbarControl::index, std::size_t (ToolbarControl::*)() const>);
static_assert(isMember<&ToolbarPanel::index, std::size_t (ToolbarPanel::*)() const>);
static_assert(isMember<&ToolbarTab::index, std::size_t (ToolbarTab::*)() const>);
static_assert(isMember<&SelectionCommandInput::selectionCount, std::size_t (SelectionCommandInput::*)() const>);
static_assert(
    isMember<&SelectionCommandInput::selection, Ptr<Selection> (SelectionCommandInput::*)(std::size_t) const>);

// Classes: text and validity.
static_assert(isMember<&Base::objectType, const char* (Base::*)() const>);
static_assert(isMember<&Base::isValid, bool (Base::*)() const>);
static_assert(isMember<&Base::classType, const char* (*)()>);

// Pairs: a getter that is const, and a setter of the same name that tells whether the value was accepted.
template <class Class, class Value, class Argument = Value>
constexpr bool isPair(Value (Class::*)() const, bool (Class::*)(Argument)) {
  return true;
}
#define FLAG(Class, member) static_assert(isPair<Class, bool>(&Class::member, &Class::member))
#define TEXT(Class, member) static_assert(isPair<Class, std::string, Text>(&Class::member, &Class::member))
#define HANDLE(Class, member, Held) \
  static_assert(isPair<Class, Ptr<Held>, const Ptr<Held>&>(&Class::member, &Class::member))

FLAG(ApplicationCommandEventArgs, isCanceled);
FLAG(BoolValueCommandInput, value);
TEXT(BoolValueCommandInput, resourceFolder);
TEXT(BoolValueCommandInput, text);
HANDLE(ColorProperty, value, Color);
FLAG(Command, isOKButtonVisible);
FLAG(Command, isExecutedWhenPreEmpted);
FLAG(Command, isAutoExecute);
FLAG(Command, isRepeatable);
TEXT(Command, okButtonText);
TEXT(Command, cancelButtonText);
FLAG(CommandControl, isPromoted);
FLAG(CommandControl, isPromotedByDefault);
TEXT(CommandDefinition, name);
TEXT(CommandDefinition, tooltip);
TEXT(CommandDefinition, resourceFolder);
FLAG(CommandEventArgs, executeFailed);
TEXT(CommandEventArgs, executeFailedMessage);
FLAG(CommandInput, isEnabled);
FLAG(CommandInput, isVisible);
TEXT(ControlDefinition, name);
FLAG(ControlDefinition, isEnabled);
FLAG(ControlDefinition, isVisible);
TEXT(Document, name);
static_assert(isPair<FloatProperty, double>(&FloatProperty::value, &FloatProperty::value));
FLAG(GroupCommandInput, isExpanded);
FLAG(GroupCommandInput, isEnabledCheckBoxDisplayed);
FLAG(GroupCommandInput, isEnabledCheckBoxChecked);
TEXT(ListItem, name);
TEXT(ListItem, icon);
FLAG(ListItem, isSelected);
TEXT(ProgressDialog, message);
TEXT(ProgressDialog, title);
TEXT(ProgressDialog, cancelButtonText);
FLAG(ProgressDialog, isCancelButtonShown);
FLAG(ProgressDialog, isBackgroundTranslucent);
static_assert(isPair<ProgressDialog, int>(&ProgressDialog::progressValue, &ProgressDialog::progressValue));
static_assert(isPair<ProgressDialog, int>(&ProgressDialog::minimumValue, &ProgressDialog::minimumValue));
static_assert(isPair<ProgressDialog, int>(&ProgressDialog::maximumValue, &ProgressDialog::maximumValue));
TEXT(SelectionCommandInput, commandPrompt);
FLAG(SelectionCommandInput, hasFocus);
static_assert(isPair<SelectionCommandInput, std::vector<std::string>, const std::vector<std::string>&>(
    &SelectionCommandInput::selectionFilters, &SelectionCommandInput::selectionFilters));
TEXT(StringValueCommandInput, value);
TEXT(TextBoxCommandInput, formattedText);
TEXT(TextBoxCommandInput, text);
static_assert(isPair<TextBoxCommandInput, int>(&TextBoxCommandInput::numRows, &TextBoxCommandInput::numRows));
FLAG(TextBoxCommandInput, isReadOnly);
FLAG(ToolbarControl, isVisible);
HANDLE(BRepBody, appearance, Appearance);
HANDLE(BRepBody, material, Material);
HANDLE(BRepFace, appearance, Appearance);
HANDLE(Component, material, Material);
HANDLE(Occurrence, appearance, Appearance);

static_assert(isPair<Color, short>(&Color::red, &Color::red) && isPair<Color, short>(&Color::green, &Color::green) &&
              isPair<Color, short>(&Color::blue, &Color::blue) &&
              isPair<Color, short>(&Color::opacity, &Color::opacity));

#undef FLAG
#undef TEXT
#undef HANDLE

// Calls with arguments.
static_assert(isMember<&Command::doExecute, bool (Command::*)(bool)>);
static_assert(isMember<&Command::setDialogInitialSize, bool (Command::*)(int, int)>);
static_assert(isMember<&Command::setDialogMinimumSize, bool (Command::*)(int, int)>);
static_assert(isMember<&CommandDefinition::execute, bool (CommandDefinition::*)(const Ptr<NamedValues>&) const>);
static_assert(isMember<&CommandDefinition::deleteMe, bool (CommandDefinition::*)()>);
static_assert(isMember<&CommandDefinitions::addButtonDefinition,
                       Ptr<CommandDefinition> (CommandDefinitions::*)(Text, Text, Text, Text)>);
static_assert(
    isMember<&CommandInputs::addSelectionInput, Ptr<SelectionCommandInput> (CommandInputs::*)(Text, Text, Text)>);
static_assert(isMember<&CommandInputs::addButtonRowCommandInput,
                       Ptr<ButtonRowCommandInput> (CommandInputs::*)(Text, Text, bool)>);
static_assert(isMember<&CommandInputs::addTextBoxCommandInput,
                       Ptr<TextBoxCommandInput> (CommandInputs::*)(Text, Text, Text, int, bool)>);
static_assert(isMember<&CommandInputs::addDropDownCommandInput,
                       Ptr<DropDownCommandInput> (CommandInputs::*)(Text, Text, DropDownStyles)>);
static_assert(
    isMember<&CommandInputs::addStringValueInput, Ptr<StringValueCommandInput> (CommandInputs::*)(Text, Text, Text)>);
static_assert(isMember<&CommandInputs::addBoolValueInput,
                       Ptr<BoolValueCommandInput> (CommandInputs::*)(Text, Text, bool, Text, bool)>);
static_assert(isMember<&ListItems::add, Ptr<ListItem> (ListItems::*)(Text, bool, Text, int)>);
static_assert(
    isMember<&SelectionCommandInput::setSelectionLimits, bool (SelectionCommandInput::*)(std::size_t, std::size_t)>);
static_assert(
    isMember<&SelectionCommandInput::getSelectionLimits, bool (SelectionCommandInput::*)(std::size_t&, std::size_t&)>);
static_assert(isMember<&ToolbarPanels::add, Ptr<ToolbarPanel> (ToolbarPanels::*)(Text, Text, Text, bool)>);
static_assert(isMember<&ToolbarControls::addCommand,
                       Ptr<CommandControl> (ToolbarControls::*)(const Ptr<CommandDefinition>&, Text, bool)>);
static_assert(isMember<&UserInterface::messageBox,
                       DialogResults (UserInterface::*)(Text, Text, MessageBoxButtonTypes, MessageBoxIconTypes) const>);
static_assert(isMember<&MaterialLibraries::load, Ptr<MaterialLibrary> (MaterialLibraries::*)(Text)>);
static_assert(isMember<&Appearances::addByCopy, Ptr<Appearance> (Appearances::*)(const Ptr<Appearance>&, Text)>);
static_assert(isMember<&Appearance::deleteMe, bool (Appearance::*)()>);
static_assert(isMember<&Color::create, Ptr<Color> (*)(short, short, short, short)>);
static_assert(isMember<&Documents::add, Ptr<Document> (Documents::*)(DocumentTypes, bool, const Ptr<NamedValues>&)>);
static_assert(isMember<&Document::close, bool (Document::*)(bool)>);
static_assert(isMember<&Products::itemByProductType, Ptr<Product> (Products::*)(Text) const>);
static_assert(isMember<&ProgressDialog::show, bool (ProgressDialog::*)(Text, Text, int, int, int)>);
static_assert(isMember<&UserInterface::createProgressDialog, Ptr<ProgressDialog> (UserInterface::*)()>);
static_assert(isMember<&Application::getLastError, int (Application::*)(std::string*) const>);
static_assert(isMember<&BRepBody::appearanceSourceType, AppearanceSourceTypes (BRepBody::*)() const>);
static_assert(isMember<&BRepFace::appearanceSourceType, AppearanceSourceTypes (BRepFace::*)() const>);

// Handlers: plain objects of the client that are given a handle to what happened.
static_assert(!std::is_base_of_v<Base, EventHandler> && !std::is_copy_constructible_v<EventHandler>);
static_assert(std::is_abstract_v<CommandCreatedEventHandler> && std::is_abstract_v<CommandEventHandler> &&
              std::is_abstract_v<InputChangedEventHandler> && std::is_abstract_v<ApplicationCommandEventHandler>);
static_assert(isMember<&CommandEventHandler::notify, void (CommandEventHandler::*)(const Ptr<CommandEventArgs>&)>);
static_assert(isMember<&CommandEvent::add, bool (CommandEvent::*)(CommandEventHandler*)>);
static_assert(isMember<&CommandEvent::remove, bool (CommandEvent::*)(CommandEventHandler*)>);

// Enumerators convert to numbers by themselves, and the numbers are part of the contract.
struct Enumerator {
  const char* name;
  int value;
  int expected;
};

#define VALUE(name, number) \
  Enumerator {              \
#name, name, number     \
  }

class EnumValue : public testing::Test, public tests::WithRow<Enumerator> {};

TABLE(Core, EnumValue, tests::byName,
      {VALUE(FusionDesignDocumentType, 0),
       VALUE(OKButtonType, 0),
       VALUE(OKCancelButtonType, 1),
       VALUE(RetryCancelButtonType, 2),
       VALUE(YesNoButtonType, 3),
       VALUE(YesNoCancelButtonType, 4),
       VALUE(NoIconIconType, 0),
       VALUE(QuestionIconType, 1),
       VALUE(InformationIconType, 2),
       VALUE(WarningIconType, 3),
       VALUE(CriticalIconType, 4),
       VALUE(DialogError, -1),
       VALUE(DialogOK, 0),
       VALUE(DialogCancel, 1),
       VALUE(DialogYes, 2),
       VALUE(DialogNo, 3),
       VALUE(LabeledIconDropDownStyle, 0),
       VALUE(TextListDropDownStyle, 1),
       VALUE(CheckBoxDropDownStyle, 2),
       VALUE(UnknownTerminationReason, 0),
       VALUE(CompletedTerminationReason, 1),
       VALUE(CancelledTerminationReason, 2),
       VALUE(AbortedTerminationReason, 3),
       VALUE(PreEmptedTerminationReason, 4),
       VALUE(SessionEndingTerminationReason, 5),
       VALUE(MaterialAppearanceSource, 0),
       VALUE(BodyAppearanceSource, 1),
       VALUE(OccurrenceAppearanceSource, 2),
       VALUE(FaceAppearanceSource, 3),
       VALUE(OverrideAppearanceSource, 4),
       VALUE(CheckBoxListType, 0),
       VALUE(RadioButtonlistType, 1),
       VALUE(StandardListType, 2),
       VALUE(Ok, 0),
       VALUE(UnexpectedError, 1),
       VALUE(InternalValidationError, 2),
       VALUE(BadApiCallError, 3),
       VALUE(UnderlyingObjectDeletedError, 4),
       VALUE(OperationFailed, 5),
       VALUE(ExpressionError, 6),
       VALUE(InvalidGeometryError, 7)});

TABLE_TEST(EnumValue, IsAsDocumented) {
  EXPECT_EQ(row().value, row().expected);
}

#undef VALUE

}  // namespace
}  // namespace api_types
