#include "host/ui/screen.h"

namespace headless {

namespace {

void describeList(const ListItemsObject& list, InputView& view) {
  for (const auto& item : list.all()) {
    if (item->selected) {
      view.selectedItem = static_cast<int>(view.items.size());
    }
    view.items.push_back({item->label(), item->iconFolder(), item->selected});
  }
}

void describeSelection(const SelectionInput& input, InputView& view) {
  view.kind = InputKind::Selection;
  view.text = input.prompt();
  view.filters = input.filters();
  for (const auto& each : input.picked()) {
    view.selection.push_back(each->picked());
  }
}

void describeTextBox(const TextBoxInput& input, InputView& view) {
  view.kind = InputKind::TextBox;
  view.text = input.shownText();
  view.content = input.contentSet();
  view.isReadOnly = input.readOnly();
  view.rows = input.rowCount();
}

void describeBool(const BoolInput& input, InputView& view) {
  view.kind = input.checkBox() ? InputKind::CheckBox : InputKind::Button;
  view.isTicked = input.current;
  view.icon = input.iconFolder();
  view.text = input.buttonText();
}

std::vector<InputView> viewInputs(const InputCollection& inputs);

void describeGroup(const GroupInput& input, InputView& view) {
  view.kind = InputKind::Group;
  view.isExpanded = input.expanded;
  view.hasTick = input.tickDisplayed;
  view.isTicked = input.ticked;
  view.children = viewInputs(input.childInputs());
}

InputView viewInput(const InputCore& input) {
  InputView view;
  view.id = input.inputId();
  view.label = input.label();
  view.isEnabled = input.enabled;
  view.isVisible = input.visible;
  if (const auto* group = dynamic_cast<const GroupInput*>(&input)) {
    describeGroup(*group, view);
  } else if (const auto* selection = dynamic_cast<const SelectionInput*>(&input)) {
    describeSelection(*selection, view);
  } else if (const auto* row = dynamic_cast<const ButtonRowInput*>(&input)) {
    view.kind = InputKind::ButtonRow;
    describeList(row->list(), view);
  } else if (const auto* dropDown = dynamic_cast<const DropDownInput*>(&input)) {
    view.kind = InputKind::DropDown;
    view.style = static_cast<int>(dropDown->style());
    describeList(dropDown->list(), view);
  } else if (const auto* textBox = dynamic_cast<const TextBoxInput*>(&input)) {
    describeTextBox(*textBox, view);
  } else if (const auto* text = dynamic_cast<const StringInput*>(&input)) {
    view.kind = InputKind::Text;
    view.text = text->current;
  } else if (const auto* boolean = dynamic_cast<const BoolInput*>(&input)) {
    describeBool(*boolean, view);
  }
  return view;
}

std::vector<InputView> viewInputs(const InputCollection& inputs) {
  std::vector<InputView> views;
  for (const InputCore* input : inputs.all()) {
    views.push_back(viewInput(*input));
  }
  return views;
}

const InputView* findIn(const std::vector<InputView>& views, const std::string& id) {
  for (const InputView& view : views) {
    if (view.id == id) {
      return &view;
    }
    if (const InputView* found = findIn(view.children, id)) {
      return found;
    }
  }
  return nullptr;
}

}  // namespace

std::string InputView::selectedName() const {
  return selectedItem < 0 ? std::string() : items[static_cast<std::size_t>(selectedItem)].name;
}

const InputView* DialogView::find(const std::string& id) const {
  return findIn(inputs, id);
}

std::optional<DialogView> viewDialog(const UserInterfaceObject& ui) {
  const auto& command = ui.runner().active();
  if (!command || !command->isShown) {
    return std::nullopt;
  }
  const CommandOptions& options = command->options();
  DialogView view;
  view.commandId = command->definition().texts().id;
  view.title = command->definition().texts().name;
  view.hasOkButton = options.isOKButtonVisible;
  view.okText = options.okButtonText;
  // The host's own text of the only button.
  const std::string standardCancel = options.isOKButtonVisible ? "Cancel" : "CLOSE";
  view.cancelText = options.cancelButtonText.empty() ? standardCancel : options.cancelButtonText;
  view.width = options.initialSize.width;
  view.height = options.initialSize.height;
  view.inputs = viewInputs(command->inputs());
  return view;
}

std::optional<ProgressView> viewProgress(const UserInterfaceObject& ui) {
  const ProgressDialogObject* dialog = ui.shownProgress();
  if (dialog == nullptr) {
    return std::nullopt;
  }
  return ProgressView{dialog->shownTitle(), dialog->shownMessage(),    dialog->value(),     dialog->minimum(),
                      dialog->maximum(),    dialog->hasCancelButton(), dialog->cancelText()};
}

std::vector<ButtonView> viewToolbar(const UserInterfaceObject& ui) {
  std::vector<ButtonView> buttons;
  for (const auto& workspace : ui.workspaceList().all()) {
    for (const auto& tab : workspace->tabs()) {
      for (const auto& panel : tab->panels()) {
        for (const auto& control : panel->controlList().all()) {
          const DefinitionObject& definition = control->definition();
          if (control->visible && definition.isShown()) {
            buttons.push_back({tab->tabName(), panel->panelId(), panel->panelName(), control->controlId(),
                               definition.texts().name, definition.texts().tooltip, definition.texts().resourceFolder,
                               control->promoted, !definition.isAlive(), definition.isUsable()});
          }
        }
      }
    }
  }
  return buttons;
}

}  // namespace headless
