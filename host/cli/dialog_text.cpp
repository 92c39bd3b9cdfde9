#include "host/cli/dialog_text.h"

#include <algorithm>

#include "host/cli/text_layout.h"
#include "host/runtime/pickable.h"

namespace headless::cli {

namespace {

constexpr std::size_t labelColumns = 26;
constexpr std::size_t indentColumns = 2;
constexpr const char* greyedOut = " (greyed out)";

std::string repeated(const char* text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i) {
    result += text;
  }
  return result;
}

/// A frame that lines are put into.
class Frame {
 public:
  Frame(const std::string& title, std::size_t columns) : inner(columns - 4) {
    const std::string head = clipped(title, inner - 4);
    text = "┌─ " + head + " " + repeated("─", inner - widthOf(head) - 1) + "┐\n";
  }

  std::size_t columns() const { return inner; }
  void line(const std::string& content) { text += "│ " + padded(clipped(content, inner), inner) + " │\n"; }
  void separator() { text += "├" + repeated("─", inner + 2) + "┤\n"; }
  std::string closed() const { return text + "└" + repeated("─", inner + 2) + "┘\n"; }

 private:
  std::size_t inner;
  std::string text;
};

/// The last part of an icon folder's name, which is all that tells a button without text from another.
std::string iconName(const std::string& folder) {
  const std::size_t separator = folder.find_last_of("/\\");
  return separator == std::string::npos ? folder : folder.substr(separator + 1);
}

std::string tickText(bool isTicked) {
  return isTicked ? "[x] " : "[ ] ";
}

std::string buttonFace(const InputView& button) {
  if (!button.label.empty()) {
    return button.label;
  }
  return button.text.empty() ? iconName(button.icon) : button.text;
}

/// Draws the inputs of one dialog.
class DialogPainter {
 public:
  DialogPainter(const std::string& title, const DialogTextStyle& drawingStyle)
      : style(drawingStyle), frame(title, drawingStyle.columns) {}

  void drawAll(const std::vector<InputView>& inputs) {
    for (const InputView& input : inputs) {
      draw(input, 0, true);
    }
  }

  void drawSome(const std::vector<InputView>& inputs, const std::vector<std::string>& ids) {
    for (const InputView& input : inputs) {
      if (std::find(ids.begin(), ids.end(), input.id) != ids.end()) {
        draw(input, 0, true);
      } else {
        drawSome(input.children, ids);
      }
    }
  }

  void drawButtons(const DialogView& dialog) {
    frame.separator();
    std::string buttons = "[ " + dialog.cancelText + " ]";
    if (dialog.hasOkButton) {
      buttons = "[ " + (dialog.okText.empty() ? "OK" : dialog.okText) + " ]  " + buttons;
    }
    frame.line(std::string(frame.columns() - std::min(frame.columns(), widthOf(buttons)), ' ') + buttons);
  }

  std::string text() const { return frame.closed(); }

 private:
  void draw(const InputView& input, std::size_t indent, bool isReachable) {
    if (!input.isVisible) {
      return;
    }
    const std::string mark = input.isEnabled && isReachable ? "" : greyedOut;
    switch (input.kind) {
      case InputKind::Group:
        drawGroup(input, indent, mark);
        break;
      case InputKind::Selection:
        drawSelection(input, indent, mark);
        break;
      case InputKind::ButtonRow:
        labelled(input, indent, rowText(input) + mark);
        break;
      case InputKind::TextBox:
        drawTextBox(input, indent, mark);
        break;
      case InputKind::DropDown:
        drawDropDown(input, indent, mark);
        break;
      case InputKind::Text:
        labelled(input, indent, "[ " + padded(input.text, 30) + " ]" + mark);
        break;
      case InputKind::CheckBox:
        frame.line(std::string(indent, ' ') + tickText(input.isTicked) + input.label + mark);
        break;
      case InputKind::Button:
        frame.line(std::string(indent, ' ') + "( " + buttonFace(input) + " )" + mark);
        break;
    }
  }

  void drawGroup(const InputView& group, std::size_t indent, const std::string& mark) {
    const std::string box = group.hasTick ? tickText(group.isTicked) : "";
    frame.line(std::string(indent, ' ') + (group.isExpanded ? "▾ " : "▸ ") + box + group.label + mark);
    if (!group.isExpanded) {
      return;
    }
    const bool isReachable = group.isEnabled && (!group.hasTick || group.isTicked);
    for (const InputView& child : group.children) {
      draw(child, indent + indentColumns, isReachable);
    }
  }

  void drawSelection(const InputView& input, std::size_t indent, const std::string& mark) {
    const std::string count =
        input.selection.empty() ? "nothing picked" : std::to_string(input.selection.size()) + " picked";
    labelled(input, indent, "< " + input.text + " >  " + count + mark);
    const std::size_t named = std::min(style.namedPicks, input.selection.size());
    for (std::size_t i = 0; i < named; ++i) {
      const std::size_t room = frame.columns() - labelColumns - 2;
      labelled({}, indent, "- " + clippedAtStart(pathOf(input.selection[i]), room));
    }
    if (named < input.selection.size()) {
      labelled({}, indent, "- and " + std::to_string(input.selection.size() - named) + " more");
    }
  }

  static std::string rowText(const InputView& row) {
    std::string text;
    for (const ItemView& item : row.items) {
      text += text.empty() ? "" : " ";
      text += item.isSelected ? "[" + item.name + "]" : " " + item.name + " ";
    }
    return text;
  }

  void drawTextBox(const InputView& input, std::size_t indent, const std::string& mark) {
    bool isFirst = true;
    for (const std::string& line : wrapped(input.text, frame.columns() - labelColumns)) {
      labelled(isFirst ? input : InputView(), indent, line + (isFirst ? mark : ""));
      isFirst = false;
    }
  }

  void drawDropDown(const InputView& input, std::size_t indent, const std::string& mark) {
    const std::size_t count = input.items.size();
    const std::string chosen = input.selectedItem < 0 ? "" : input.selectedName();
    const std::string place = input.selectedItem < 0
                                  ? counted(count, "item")
                                  : std::to_string(input.selectedItem + 1) + " of " + std::to_string(count);
    labelled(input, indent, "[ " + padded(clipped(chosen, 30), 30) + "▼]" + (mark.empty() ? "  " + place : mark));
    if (count < 2) {
      return;
    }
    const std::size_t middle = input.selectedItem < 0 ? 0 : static_cast<std::size_t>(input.selectedItem);
    const std::size_t first = middle - std::min(middle, style.neighbours);
    const std::size_t last = std::min(count - 1, middle + style.neighbours);
    for (std::size_t i = first; i <= last; ++i) {
      const bool isChosen = static_cast<int>(i) == input.selectedItem;
      labelled({}, indent, (isChosen ? "  > " : "    ") + input.items[i].name);
    }
  }

  void labelled(const InputView& input, std::size_t indent, const std::string& content) {
    const std::size_t columns = labelColumns - indent;
    frame.line(std::string(indent, ' ') + padded(clipped(input.label, columns - 1), columns) + content);
  }

  const DialogTextStyle& style;
  Frame frame;
};

}  // namespace

std::string dialogText(const DialogView& dialog, const DialogTextStyle& style) {
  DialogPainter painter(dialog.title, style);
  painter.drawAll(dialog.inputs);
  painter.drawButtons(dialog);
  return painter.text();
}

std::string dialogExcerpt(const DialogView& dialog, const std::vector<std::string>& inputIds,
                          const DialogTextStyle& style) {
  DialogPainter painter(dialog.title, style);
  painter.drawSome(dialog.inputs, inputIds);
  return painter.text();
}

std::string toolbarText(const std::vector<ButtonView>& buttons) {
  std::string text;
  std::string place;
  for (const ButtonView& button : buttons) {
    const std::string panel = button.tab + " > " + button.panel;
    if (panel != place) {
      text += panel + "\n";
      place = panel;
    }
    text += "  ( " + button.name + " )  " + button.tooltip;
    text += std::string(button.isPromoted ? "" : "  (in the panel's menu)") + (button.isDead ? greyedOut : "") + "\n";
  }
  return text;
}

std::string messageBoxText(const MessageBox& box, const DialogTextStyle& style) {
  Frame frame(box.title, style.columns);
  for (const std::string& line : wrapped(box.text, frame.columns())) {
    frame.line(line);
  }
  frame.separator();
  const std::string answer = answerText(box.answer);
  frame.line(answer.empty() ? "nobody answered" : "answered: [ " + answer + " ]");
  return frame.closed();
}

std::string answerText(adsk::core::DialogResults answer) {
  switch (answer) {
    case adsk::core::DialogOK:
      return "OK";
    case adsk::core::DialogCancel:
      return "Cancel";
    case adsk::core::DialogYes:
      return "Yes";
    case adsk::core::DialogNo:
      return "No";
    default:
      return "";
  }
}

}  // namespace headless::cli
