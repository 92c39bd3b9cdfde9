// The globals themselves.
#include "shell/globals.h"

namespace tintora {

Ptr<core::Application> appHandle;
Ptr<core::UserInterface> uiHandle;

Ptr<core::CommandInputs> commandInputs;

Ptr<core::GroupCommandInput> groupSelectInput;
Ptr<core::CommandInputs> groupSelectChildren;
Ptr<core::SelectionCommandInput> selectionInput;
Ptr<core::ButtonRowCommandInput> filterSelectInput;

Ptr<core::GroupCommandInput> groupAppearanceInput;
Ptr<core::CommandInputs> groupAppearanceChildren;
Ptr<core::TextBoxCommandInput> actAppearanceInput;
Ptr<core::DropDownCommandInput> libAssetsInput;
Ptr<core::DropDownCommandInput> appearanceListInput;
Ptr<core::StringValueCommandInput> filterAppearanceInput;
Ptr<core::BoolValueCommandInput> removeAppearanceButton;

Ptr<core::GroupCommandInput> groupMaterialInput;
Ptr<core::CommandInputs> groupMaterialChildren;
Ptr<core::TextBoxCommandInput> actMaterialInput;
Ptr<core::BoolValueCommandInput> keepAppearanceInput;
Ptr<core::DropDownCommandInput> libMaterialsInput;
Ptr<core::DropDownCommandInput> materialListInput;
Ptr<core::StringValueCommandInput> filterMaterialInput;

Ptr<core::BoolValueCommandInput> applyButton;

AppliedAppearances appliedAppearances;

std::array<Ptr<core::TextBoxCommandInput>, 2> infoTextInputs() {
  return {actAppearanceInput, actMaterialInput};
}

int selectedFilterMode() {
  return filterSelectInput->selectedItem()->index();
}

Ptr<fusion::Design> activeDesign() {
  return hostCast<fusion::Design>(appHandle->activeProduct());
}

}  // namespace tintora
