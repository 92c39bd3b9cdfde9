// The text that names each API class, at one address for all modules.
#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

namespace adsk {
namespace core {

const char* Base::classType() {
  return "adsk::core::Base";
}
const char* Appearance::classType() {
  return "adsk::core::Appearance";
}
const char* Appearances::classType() {
  return "adsk::core::Appearances";
}
const char* Application::classType() {
  return "adsk::core::Application";
}
const char* ApplicationCommandEvent::classType() {
  return "adsk::core::ApplicationCommandEvent";
}
const char* ApplicationCommandEventArgs::classType() {
  return "adsk::core::ApplicationCommandEventArgs";
}
const char* BoolValueCommandInput::classType() {
  return "adsk::core::BoolValueCommandInput";
}
const char* ButtonControlDefinition::classType() {
  return "adsk::core::ButtonControlDefinition";
}
const char* ButtonRowCommandInput::classType() {
  return "adsk::core::ButtonRowCommandInput";
}
const char* Color::classType() {
  return "adsk::core::Color";
}
const char* ColorProperty::classType() {
  return "adsk::core::ColorProperty";
}
const char* Command::classType() {
  return "adsk::core::Command";
}
const char* CommandControl::classType() {
  return "adsk::core::CommandControl";
}
const char* CommandCreatedEvent::classType() {
  return "adsk::core::CommandCreatedEvent";
}
const char* CommandCreatedEventArgs::classType() {
  return "adsk::core::CommandCreatedEventArgs";
}
const char* CommandDefinition::classType() {
  return "adsk::core::CommandDefinition";
}
const char* CommandDefinitions::classType() {
  return "adsk::core::CommandDefinitions";
}
const char* CommandEvent::classType() {
  return "adsk::core::CommandEvent";
}
const char* CommandEventArgs::classType() {
  return "adsk::core::CommandEventArgs";
}
const char* CommandInput::classType() {
  return "adsk::core::CommandInput";
}
const char* CommandInputs::classType() {
  return "adsk::core::CommandInputs";
}
const char* ControlDefinition::classType() {
  return "adsk::core::ControlDefinition";
}
const char* Document::classType() {
  return "adsk::core::Document";
}
const char* Documents::classType() {
  return "adsk::core::Documents";
}
const char* DropDownCommandInput::classType() {
  return "adsk::core::DropDownCommandInput";
}
const char* Event::classType() {
  return "adsk::core::Event";
}
const char* EventArgs::classType() {
  return "adsk::core::EventArgs";
}
const char* FloatProperty::classType() {
  return "adsk::core::FloatProperty";
}
const char* GroupCommandInput::classType() {
  return "adsk::core::GroupCommandInput";
}
const char* InputChangedEvent::classType() {
  return "adsk::core::InputChangedEvent";
}
const char* InputChangedEventArgs::classType() {
  return "adsk::core::InputChangedEventArgs";
}
const char* ListControlDefinition::classType() {
  return "adsk::core::ListControlDefinition";
}
const char* ListItem::classType() {
  return "adsk::core::ListItem";
}
const char* ListItems::classType() {
  return "adsk::core::ListItems";
}
const char* Material::classType() {
  return "adsk::core::Material";
}
const char* MaterialLibraries::classType() {
  return "adsk::core::MaterialLibraries";
}
const char* MaterialLibrary::classType() {
  return "adsk::core::MaterialLibrary";
}
const char* Materials::classType() {
  return "adsk::core::Materials";
}
const char* NamedValues::classType() {
  return "adsk::core::NamedValues";
}
const char* Product::classType() {
  return "adsk::core::Product";
}
const char* Products::classType() {
  return "adsk::core::Products";
}
const char* ProgressDialog::classType() {
  return "adsk::core::ProgressDialog";
}
const char* Properties::classType() {
  return "adsk::core::Properties";
}
const char* Property::classType() {
  return "adsk::core::Property";
}
const char* Selection::classType() {
  return "adsk::core::Selection";
}
const char* SelectionCommandInput::classType() {
  return "adsk::core::SelectionCommandInput";
}
const char* Selections::classType() {
  return "adsk::core::Selections";
}
const char* StringProperty::classType() {
  return "adsk::core::StringProperty";
}
const char* StringValueCommandInput::classType() {
  return "adsk::core::StringValueCommandInput";
}
const char* TextBoxCommandInput::classType() {
  return "adsk::core::TextBoxCommandInput";
}
const char* ToolbarControl::classType() {
  return "adsk::core::ToolbarControl";
}
const char* ToolbarControls::classType() {
  return "adsk::core::ToolbarControls";
}
const char* ToolbarPanel::classType() {
  return "adsk::core::ToolbarPanel";
}
const char* ToolbarPanels::classType() {
  return "adsk::core::ToolbarPanels";
}
const char* ToolbarTab::classType() {
  return "adsk::core::ToolbarTab";
}
const char* ToolbarTabs::classType() {
  return "adsk::core::ToolbarTabs";
}
const char* User::classType() {
  return "adsk::core::User";
}
const char* UserInterface::classType() {
  return "adsk::core::UserInterface";
}
const char* Workspace::classType() {
  return "adsk::core::Workspace";
}
const char* Workspaces::classType() {
  return "adsk::core::Workspaces";
}

}  // namespace core

namespace fusion {

const char* BRepBodies::classType() {
  return "adsk::fusion::BRepBodies";
}
const char* BRepBody::classType() {
  return "adsk::fusion::BRepBody";
}
const char* BRepFace::classType() {
  return "adsk::fusion::BRepFace";
}
const char* BRepFaces::classType() {
  return "adsk::fusion::BRepFaces";
}
const char* Component::classType() {
  return "adsk::fusion::Component";
}
const char* Design::classType() {
  return "adsk::fusion::Design";
}
const char* Occurrence::classType() {
  return "adsk::fusion::Occurrence";
}
const char* OccurrenceList::classType() {
  return "adsk::fusion::OccurrenceList";
}
const char* Occurrences::classType() {
  return "adsk::fusion::Occurrences";
}

}  // namespace fusion
}  // namespace adsk
