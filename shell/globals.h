// Everything that outlives one event: the application's handles, the dialog's inputs, the recorded appearances. Plain
// globals, because the host calls the add-in on its user-interface thread only, one event at a time. An empty handle
// means "none"; using one raises the null-access exception.
#pragma once

#include <array>
#include <functional>
#include <map>

#include "shell/host_objects.h"

namespace tintora {

// The application, set by `run`.

extern Ptr<core::Application> appHandle;   ///< the application; kept over `stop` until the library is unloaded
extern Ptr<core::UserInterface> uiHandle;  ///< its user interface; emptied by `stop`

// The dialog's inputs in its own order, set each time it is built and kept until it is built again: after the command
// has ended they hold the inputs of a closed dialog.

extern Ptr<core::CommandInputs> commandInputs;  ///< the command's input collection

extern Ptr<core::GroupCommandInput> groupSelectInput;       ///< group "idGroupSelect"
extern Ptr<core::CommandInputs> groupSelectChildren;        ///< the inputs inside it
extern Ptr<core::SelectionCommandInput> selectionInput;     ///< "idSelection", the picked entities
extern Ptr<core::ButtonRowCommandInput> filterSelectInput;  ///< "idFilterSelect", what can be picked

extern Ptr<core::GroupCommandInput> groupAppearanceInput;         ///< group "idGroupAppearance"
extern Ptr<core::CommandInputs> groupAppearanceChildren;          ///< the inputs inside it
extern Ptr<core::TextBoxCommandInput> actAppearanceInput;         ///< "idActAppearance", the selection's appearance
extern Ptr<core::DropDownCommandInput> libAssetsInput;            ///< "idLibAssets", the appearance libraries
extern Ptr<core::DropDownCommandInput> appearanceListInput;       ///< "idAppearanceList", the chosen library's names
extern Ptr<core::StringValueCommandInput> filterAppearanceInput;  ///< "idFilterAppearance", narrows that list
extern Ptr<core::BoolValueCommandInput> removeAppearanceButton;   ///< button "idRemoveAssignAppearance"

extern Ptr<core::GroupCommandInput> groupMaterialInput;         ///< group "idGroupMaterial"
extern Ptr<core::CommandInputs> groupMaterialChildren;          ///< the inputs inside it
extern Ptr<core::TextBoxCommandInput> actMaterialInput;         ///< "idActMaterial", the selection's material
extern Ptr<core::BoolValueCommandInput> keepAppearanceInput;    ///< check box "idKeepAppearance"
extern Ptr<core::DropDownCommandInput> libMaterialsInput;       ///< "idLibMaterials", the material libraries
extern Ptr<core::DropDownCommandInput> materialListInput;       ///< "idMaterialList", the chosen library's names
extern Ptr<core::StringValueCommandInput> filterMaterialInput;  ///< "idFilterMaterial", narrows that list

extern Ptr<core::BoolValueCommandInput> applyButton;  ///< button "idBtnApply"

/// The two information texts: the appearance's first, the material's second. One that is not set stays in its place.
std::array<Ptr<core::TextBoxCommandInput>, 2> infoTextInputs();

/// Index of the selected item of "idFilterSelect".
enum FilterMode : int { componentFilterMode = 0, bodyFilterMode = 1, faceFilterMode = 2 };

/// The chosen `FilterMode`, or another index if the host should report one. Raises when no item is selected.
int selectedFilterMode();

// The record of applied appearances, rebuilt whenever the selection changes.

/// Orders handles by the address of their object, which is the object's identity while a handle to it is held.
struct ByAddress {
  template <class T>
  bool operator()(const Ptr<T>& left, const Ptr<T>& right) const {
    return std::less<const T*>()(left.get(), right.get());
  }
};

/// Entities that carry an appearance of their own, each with that appearance.
template <class Entity>
using AppearanceOverrides = std::map<Ptr<Entity>, Ptr<core::Appearance>, ByAddress>;

/// The appearances applied to the selected entities and to everything below them.
struct AppliedAppearances {
  AppearanceOverrides<fusion::Occurrence> occurrenceOverrides;
  AppearanceOverrides<fusion::BRepBody> bodyOverrides;
  AppearanceOverrides<fusion::BRepFace> faceOverrides;

  bool empty() const { return occurrenceOverrides.empty() && bodyOverrides.empty() && faceOverrides.empty(); }
};

extern AppliedAppearances appliedAppearances;  ///< those of the current selection; emptied by `stop`

/// The active product if it is a design, otherwise empty. Raises without an application.
Ptr<fusion::Design> activeDesign();

}  // namespace tintora
