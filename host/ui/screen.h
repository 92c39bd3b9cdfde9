// What a person sees on screen, as plain data: the dialog that is open, the progress of a long work, and the buttons of
// the toolbar.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/ui/command.h"
#include "host/ui/user_interface.h"

namespace headless {

/// The kinds of inputs that look different.
enum class InputKind { Group, Selection, ButtonRow, TextBox, DropDown, Text, CheckBox, Button };

/// An item of a list; `icon` is its folder.
struct ItemView {
  std::string name;
  std::string icon;
  bool isSelected = false;
};

/// An input as shown.
struct InputView {
  InputKind kind = InputKind::Text;
  std::string id;
  std::string label;
  bool isEnabled = true;
  bool isVisible = true;
  /// The text shown: a text box's without markup, a selection input's prompt.
  std::string text;
  /// A text box's content as it was set, markup included.
  std::string content;
  /// Check box: ticked. Button: pressed in. Group: its header box is ticked.
  bool isTicked = false;
  bool hasTick = false;
  bool isExpanded = true;
  bool isReadOnly = false;
  std::string icon;
  std::vector<ItemView> items;
  /// Index of the selected item; -1 when there is none.
  int selectedItem = -1;
  /// How a drop-down looks: 0 with icons, 1 text only.
  int style = 0;
  int rows = 0;
  std::vector<std::string> filters;
  std::vector<adsk::core::Ptr<adsk::core::Base>> selection;
  std::vector<InputView> children;

  /// Name of the selected item; empty when there is none.
  std::string selectedName() const;
};

/// An open dialog.
struct DialogView {
  std::string commandId;
  std::string title;
  bool hasOkButton = true;
  std::string okText;
  std::string cancelText;
  int width = 0;
  int height = 0;
  std::vector<InputView> inputs;

  /// The input of that id, in groups too; nullptr when there is none.
  const InputView* find(const std::string& id) const;
};

/// A progress dialog as shown.
struct ProgressView {
  std::string title;
  /// With the numbers in it.
  std::string message;
  int value = 0;
  int minimum = 0;
  int maximum = 0;
  bool hasCancelButton = false;
  std::string cancelText;
};

/// A button in the toolbar.
struct ButtonView {
  std::string tab;
  std::string panelId;
  std::string panel;
  std::string id;
  std::string name;
  std::string tooltip;
  std::string icon;
  bool isPromoted = false;
  /// Its definition was deleted: a click does nothing.
  bool isDead = false;
  /// False when it is greyed out.
  bool isEnabled = true;
};

/// The dialog as it stands; nothing when no dialog is open.
std::optional<DialogView> viewDialog(const UserInterfaceObject& ui);

/// The progress dialog as it stands; nothing when none is shown.
std::optional<ProgressView> viewProgress(const UserInterfaceObject& ui);

/// All visible buttons that a client put into the toolbar, in order.
std::vector<ButtonView> viewToolbar(const UserInterfaceObject& ui);

}  // namespace headless
