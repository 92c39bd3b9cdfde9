#include "host/cli/dialog_picture.h"

#include <algorithm>
#include <optional>

#include "host/cli/svg.h"

namespace headless::cli {

namespace {

constexpr double margin = 14;
constexpr double defaultWidth = 425;
constexpr double labelWidth = 178;
constexpr double titleHeight = 32;
constexpr double groupHeight = 28;
constexpr double controlHeight = 26;
constexpr double rowGap = 7;
constexpr double lineHeight = 17;
constexpr double indentWidth = 10;
constexpr double textSize = 12;
constexpr double iconSize = 16;
constexpr double baseLine = 4.3;
constexpr double corner = 3;

const std::string background = "#f6f7f9";
const std::string band = "#e3e7ec";
const std::string frameColour = "#b3bac4";
const std::string ink = "#23282e";
const std::string paleInk = "#5d6671";
const std::string accent = "#0a6ebd";
const std::string accentPale = "#d8eafa";
const std::string titleColour = "#39414b";
const Paint field{"#ffffff", frameColour, 1};

/// Draws the icon of a folder, or a question mark, as the CAD program does for what is missing.
void drawIcon(Svg& svg, const Box& box, const std::string& folder, const IconSource& source) {
  const std::string address = source ? source(folder) : std::string();
  if (!address.empty()) {
    svg.image(box, address);
    return;
  }
  svg.rectangle(box, {"", paleInk, 1}, corner);
  TextStyle style{box.height * 0.7, paleInk, true, TextAnchor::Middle};
  svg.text(box.x + box.width / 2, box.y + box.height * 0.75, "?", style);
}

/// Where a path starts, on whole pixels, which keeps its lines sharp.
std::string startAt(double x, double y) {
  return "M" + std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y));
}

void drawArrowDown(Svg& svg, double x, double y) {
  svg.path(startAt(x - 4, y - 2) + "l4 4l4 -4", {"", paleInk, 1.6});
}

void drawTriangle(Svg& svg, double x, double y, bool isDown) {
  svg.path(startAt(x, y) + (isDown ? "m-4 -2.5h8l-4 5.5z" : "m-2.5 -4v8l5.5 -4z"), {ink, "", 1});
}

void drawTickBox(Svg& svg, double x, double middle, bool isTicked) {
  svg.rectangle({x, middle - 7, 14, 14}, isTicked ? Paint{accent, accent, 1} : field, 2);
  if (isTicked) {
    svg.path(startAt(x + 3, middle) + "l3 3l5 -6", {"", "#ffffff", 2});
  }
}

/// Background and title bar of a window, under its content.
Svg windowFrame(double width, double height, const std::string& title) {
  Svg frame;
  frame.rectangle({0.5, 0.5, width - 1, height - 1}, {background, "#8d96a1", 1});
  frame.rectangle({0, 0, width, titleHeight}, {titleColour, "", 1});
  frame.text(margin, titleHeight / 2 + 4.8, title, {13, "#ffffff", true, TextAnchor::Start});
  return frame;
}

/// A button with a text; gives the place left of it.
double drawPushButton(Svg& svg, double right, double y, const std::string& text, bool isDefault) {
  const double width = std::max(78.0, textWidth(text, textSize) + 30);
  const Box box{right - width, y, width, controlHeight};
  svg.rectangle(box, isDefault ? Paint{accent, accent, 1} : field, corner);
  TextStyle style{textSize, isDefault ? "#ffffff" : ink, false, TextAnchor::Middle};
  svg.text(box.x + width / 2, y + controlHeight / 2 + baseLine, text, style);
  return box.x - 8;
}

/// Draws the inputs of one dialog from top to bottom.
class DialogDrawer {
 public:
  DialogDrawer(const DialogView& shownDialog, const PictureStyle& drawingStyle)
      : dialog(shownDialog), style(drawingStyle), width(dialog.width > 0 ? dialog.width : defaultWidth) {}

  std::string picture() {
    y = titleHeight + rowGap;
    for (const InputView& input : dialog.inputs) {
      draw(input, 0, true);
    }
    drawButtons();
    const double dialogHeight = y;
    Svg all = windowFrame(width, dialogHeight, dialog.title);
    all.add(svg);
    all.add(above);
    return all.document(width, std::max(dialogHeight, aboveBottom), dialog.title);
  }

 private:
  void draw(const InputView& input, double indent, bool isReachable) {
    if (!input.isVisible) {
      return;
    }
    const bool isDisabled = !input.isEnabled || !isReachable;
    if (input.kind == InputKind::Group) {
      drawGroup(input, indent, isDisabled);
      return;
    }
    svg.openGroup(input.label.empty() ? input.id : input.label, isDisabled);
    drawInput(input, indent);
    svg.closeGroup();
    y += rowGap;
  }

  void drawGroup(const InputView& group, double indent, bool isDisabled) {
    svg.openGroup(group.label, isDisabled);
    svg.rectangle({1, y, width - 2, groupHeight}, {band, "", 1});
    const double middle = y + groupHeight / 2;
    drawTriangle(svg, margin + indent + 4, middle, group.isExpanded);
    double x = margin + indent + 18;
    if (group.hasTick) {
      drawTickBox(svg, x, middle, group.isTicked);
      x += 22;
    }
    svg.text(x, middle + baseLine, group.label, {textSize, ink, true, TextAnchor::Start});
    svg.closeGroup();
    y += groupHeight + rowGap;
    if (!group.isExpanded) {
      return;
    }
    const bool isReachable = !isDisabled && (!group.hasTick || group.isTicked);
    for (const InputView& child : group.children) {
      draw(child, indent + indentWidth, isReachable);
    }
    y += 2;
  }

  void drawInput(const InputView& input, double indent) {
    switch (input.kind) {
      case InputKind::Selection:
        drawLabel(input, indent);
        drawSelection(input);
        break;
      case InputKind::ButtonRow:
        drawLabel(input, indent);
        drawButtonRow(input);
        break;
      case InputKind::TextBox:
        drawLabel(input, indent);
        drawTextBox(input);
        break;
      case InputKind::DropDown:
        drawLabel(input, indent);
        drawDropDown(input);
        break;
      case InputKind::Text:
        drawLabel(input, indent);
        svg.rectangle(control(), field, corner);
        svg.text(control().x + 8, lineOfText(), clippedToWidth(input.text, control().width - 16, textSize));
        break;
      case InputKind::CheckBox:
        drawLabel(input, indent);
        drawTickBox(svg, control().x, y + controlHeight / 2, input.isTicked);
        break;
      case InputKind::Button:
        drawLabel(input, indent);
        drawButton(input);
        break;
      case InputKind::Group:
        return;
    }
    y += heightDrawn;
    heightDrawn = controlHeight;
  }

  /// Where the control of the present row is.
  Box control() const { return {margin + labelWidth, y, width - 2 * margin - labelWidth, controlHeight}; }
  double lineOfText() const { return y + controlHeight / 2 + baseLine; }

  void drawLabel(const InputView& input, double indent) {
    const double room = labelWidth - indent - 6;
    svg.text(margin + indent, lineOfText(), clippedToWidth(input.label, room, textSize));
  }

  void drawSelection(const InputView& input) {
    const Box box = control();
    const bool isEmpty = input.selection.empty();
    svg.rectangle(box, {isEmpty ? "#ffffff" : accentPale, accent, 1}, corner);
    svg.path(startAt(box.x + 9, y + 6) + "v12l3 -3l2.4 4.6l2 -1l-2.4 -4.5h4z", {ink, "", 1});
    const std::string text = isEmpty ? input.text : std::to_string(input.selection.size()) + " selected";
    svg.text(box.x + 28, lineOfText(), text, {textSize, isEmpty ? paleInk : ink, false, TextAnchor::Start});
    if (!isEmpty) {
      svg.path(startAt(box.right() - 18, y + 9) + "l8 8m0 -8l-8 8", {"", paleInk, 1.4});
    }
  }

  void drawButtonRow(const InputView& input) {
    double x = control().x;
    for (const ItemView& item : input.items) {
      const Box box{x, y, controlHeight + 6, controlHeight};
      svg.openGroup(item.name);
      svg.rectangle(box, item.isSelected ? Paint{accentPale, accent, 1.4} : field, corner);
      drawIcon(svg, middleOf(box), item.icon, style.icon);
      svg.closeGroup();
      x = box.right() + 5;
    }
  }

  void drawTextBox(const InputView& input) {
    const bool isFormatted = input.content != input.text;
    const std::vector<TextRun> runs = isFormatted ? textRuns(input.content) : std::vector<TextRun>{TextRun{input.text}};
    const Box box = control();
    const auto lines = wrappedRuns(runs, box.width - 16, textSize);
    const std::size_t rows = std::max(lines.size(), static_cast<std::size_t>(std::max(1, input.rows)));
    const double height = static_cast<double>(rows) * lineHeight + 9;
    svg.rectangle({box.x, y, box.width, height}, input.isReadOnly ? Paint{"#edf0f3", "#cdd3da", 1} : field, corner);
    double line = y + lineHeight;
    for (const auto& pieces : lines) {
      svg.text(box.x + 8, line, pieces, {textSize, ink, false, TextAnchor::Start});
      line += lineHeight;
    }
    heightDrawn = height;
  }

  std::optional<model::Colour> swatchOf(const InputView& list, const std::string& item) const {
    const auto found = style.swatches.find(item);
    const bool showsIcons = list.style == adsk::core::LabeledIconDropDownStyle;
    return showsIcons && found != style.swatches.end() ? std::optional<model::Colour>(found->second) : std::nullopt;
  }

  void drawItem(Svg& target, const Box& box, const InputView& list, const std::string& name) const {
    double x = box.x + 8;
    if (const auto colour = swatchOf(list, name)) {
      target.rectangle({x, box.y + (box.height - iconSize) / 2, iconSize, iconSize},
                       {model::hexText({colour->red, colour->green, colour->blue}), "#7a828c", 0.8});
      x += iconSize + 7;
    }
    target.text(x, box.y + box.height / 2 + baseLine, clippedToWidth(name, box.right() - 22 - x, textSize));
  }

  void drawDropDown(const InputView& list) {
    const Box box = control();
    const bool isOpen = list.id == style.openList;
    svg.rectangle(box, isOpen ? Paint{"#ffffff", accent, 1.4} : field, corner);
    drawItem(svg, box, list, list.selectedName());
    drawArrowDown(svg, box.right() - 13, y + controlHeight / 2);
    if (isOpen && !list.items.empty()) {
      drawOpenList(list);
    }
  }

  void drawOpenList(const InputView& list) {
    const std::size_t count = list.items.size();
    const std::size_t shown = std::min(count, style.openItems);
    const std::size_t chosen = static_cast<std::size_t>(std::max(0, list.selectedItem));
    const std::size_t first = std::min(chosen, count - shown);
    const double itemHeight = 24;
    const Box box{control().x, y + controlHeight + 1, control().width, static_cast<double>(shown) * itemHeight + 4};
    above.rectangle({box.x + 2, box.y + 3, box.width, box.height}, {"#c9ced6", "", 1}, corner);
    above.rectangle(box, field, corner);
    for (std::size_t i = 0; i < shown; ++i) {
      const Box row{box.x + 1, box.y + 2 + static_cast<double>(i) * itemHeight, box.width - 2, itemHeight};
      if (static_cast<int>(first + i) == list.selectedItem) {
        above.rectangle(row, {accentPale, "", 1});
      }
      drawItem(above, row, list, list.items[first + i].name);
    }
    if (shown < count) {
      const double track = box.height - 6;
      const double thumb = std::max(18.0, track * static_cast<double>(shown) / static_cast<double>(count));
      const double place = static_cast<double>(first) / static_cast<double>(count - shown) * (track - thumb);
      above.rectangle({box.right() - 10, box.y + 3 + place, 6, thumb}, {"#b8bfc8", "", 1}, corner);
    }
    aboveBottom = box.bottom() + 6;
  }

  Box middleOf(const Box& box) const {
    return {box.x + (box.width - iconSize) / 2, box.y + (box.height - iconSize) / 2, iconSize, iconSize};
  }

  void drawButton(const InputView& button) {
    const Box box{control().x, y, std::max(40.0, textWidth(button.text, textSize) + 30), controlHeight};
    svg.rectangle(box, button.isTicked ? Paint{accentPale, accent, 1.4} : field, corner);
    if (!button.icon.empty()) {
      drawIcon(svg, middleOf(box), button.icon, style.icon);
    } else {
      svg.text(box.x + box.width / 2, lineOfText(), button.text, {textSize, ink, false, TextAnchor::Middle});
    }
  }

  void drawButtons() {
    y += 3;
    svg.rectangle({1, y, width - 2, 1}, {"#cdd3da", "", 1});
    y += 10;
    const double left = drawPushButton(svg, width - margin, y, dialog.cancelText, false);
    if (dialog.hasOkButton) {
      drawPushButton(svg, left, y, dialog.okText.empty() ? "OK" : dialog.okText, true);
    }
    y += controlHeight + 10;
  }

  const DialogView& dialog;
  const PictureStyle& style;
  double width;
  double y = 0;
  double heightDrawn = controlHeight;
  Svg svg;
  // Open lists cover what is below them.
  Svg above;
  double aboveBottom = 0;
};

std::vector<std::string> buttonTexts(adsk::core::MessageBoxButtonTypes buttons) {
  switch (buttons) {
    case adsk::core::OKCancelButtonType:
      return {"OK", "Cancel"};
    case adsk::core::RetryCancelButtonType:
      return {"Retry", "Cancel"};
    case adsk::core::YesNoButtonType:
      return {"Yes", "No"};
    case adsk::core::YesNoCancelButtonType:
      return {"Yes", "No", "Cancel"};
    default:
      return {"OK"};
  }
}

struct MessageSign {
  std::string text;
  std::string colour;
};

std::optional<MessageSign> signOf(adsk::core::MessageBoxIconTypes icon) {
  switch (icon) {
    case adsk::core::QuestionIconType:
      return MessageSign{"?", accent};
    case adsk::core::InformationIconType:
      return MessageSign{"i", accent};
    case adsk::core::WarningIconType:
      return MessageSign{"!", "#d08a00"};
    case adsk::core::CriticalIconType:
      return MessageSign{"×", "#c0392b"};
    default:
      return std::nullopt;
  }
}

/// The tooltip, its tip at the given place; gives its bottom.
double drawTooltip(Svg& svg, double x, double y, const ButtonView& button) {
  const double width = 270;
  const auto lines = wrappedRuns({TextRun{button.tooltip}}, width - 24, 11.5);
  const Box box{x, y, width, 32 + static_cast<double>(lines.size()) * 16};
  svg.openGroup("Tooltip");
  svg.rectangle({box.x + 2, box.y + 3, box.width, box.height}, {"#c9ced6", "", 1}, corner);
  svg.rectangle(box, field, corner);
  svg.text(x + 12, y + 20, button.name, {textSize, ink, true, TextAnchor::Start});
  double line = y + 38;
  for (const auto& pieces : lines) {
    svg.text(x + 12, line, pieces, {11.5, paleInk, false, TextAnchor::Start});
    line += 16;
  }
  svg.closeGroup();
  return box.bottom() + 6;
}

/// Draws the toolbar from left to right.
class ToolbarDrawer {
 public:
  ToolbarDrawer(const std::vector<ButtonView>& shownButtons, const IconSource& iconSource)
      : buttons(shownButtons), icons(iconSource) {}

  std::string picture() {
    drawTabs();
    drawFrontTab();
    double bottom = tabHeight + 74;
    if (!buttons.empty()) {
      bottom = std::max(bottom, drawTooltip(svg, x + 4, tabHeight + 8, buttons.front()));
    }
    Svg all;
    all.rectangle({0, 0, width, bottom}, {background, "", 1});
    all.rectangle({0, tabHeight, width, 1}, {"#cdd3da", "", 1});
    all.add(svg);
    return all.document(width, bottom, "Toolbar");
  }

 private:
  static constexpr double width = 425;
  static constexpr double tabHeight = 29;
  static constexpr double tabTextSize = 11;

  bool isInFront(const ButtonView& button) const { return button.tab == buttons.front().tab; }

  void drawTabs() {
    double left = 16;
    std::string drawn;
    for (const ButtonView& button : buttons) {
      if (button.tab == drawn) {
        continue;
      }
      drawn = button.tab;
      const bool isFront = isInFront(button);
      const double tabWidth = textWidth(drawn, tabTextSize, isFront) + 26;
      svg.text(left + tabWidth / 2, 19, drawn, {tabTextSize, isFront ? accent : paleInk, isFront, TextAnchor::Middle});
      if (isFront) {
        svg.rectangle({left, tabHeight - 3, tabWidth, 3}, {accent, "", 1});
      }
      left += tabWidth + 8;
    }
  }

  void drawFrontTab() {
    double panelLeft = x;
    for (std::size_t i = 0; i < buttons.size() && isInFront(buttons[i]); ++i) {
      if (buttons[i].isPromoted) {
        drawButton(buttons[i], i == 0);
      }
      const bool isLast = i + 1 == buttons.size() || !isInFront(buttons[i + 1]);
      if (isLast || buttons[i + 1].panelId != buttons[i].panelId) {
        drawPanelName(buttons[i].panel, (panelLeft + x - 14) / 2);
        svg.rectangle({x + 2, tabHeight + 8, 1, 58}, {frameColour, "", 1});
        x += 18;
        panelLeft = x;
      }
    }
  }

  void drawButton(const ButtonView& button, bool isPointedAt) {
    svg.openGroup(button.name, button.isDead || !button.isEnabled);
    if (isPointedAt) {
      svg.rectangle({x - 4, tabHeight + 7, 40, 40}, {accentPale, accent, 1}, corner);
    }
    drawIcon(svg, {x, tabHeight + 11, 32, 32}, button.icon, icons);
    svg.closeGroup();
    x += 46;
  }

  void drawPanelName(const std::string& name, double middle) {
    svg.text(middle - 5, tabHeight + 64, name, {tabTextSize, ink, false, TextAnchor::Middle});
    drawTriangle(svg, middle + textWidth(name, tabTextSize) / 2 + 6, tabHeight + 60, true);
  }

  const std::vector<ButtonView>& buttons;
  const IconSource& icons;
  double x = 24;
  Svg svg;
};

}  // namespace

std::string dialogPicture(const DialogView& dialog, const PictureStyle& style) {
  return DialogDrawer(dialog, style).picture();
}

std::string messageBoxPicture(const MessageBox& box) {
  const double width = 400;
  const auto sign = signOf(box.icon);
  const double textLeft = sign ? 68 : 20;
  const auto lines = wrappedRuns({TextRun{box.text}}, width - textLeft - 20, textSize);
  Svg content;
  double line = titleHeight + 34;
  for (const auto& pieces : lines) {
    content.text(textLeft, line, pieces);
    line += lineHeight + 1;
  }
  if (sign) {
    content.circle(38, titleHeight + 32, 15, {sign->colour, "", 1});
    content.text(38, titleHeight + 38.5, sign->text, {19, "#ffffff", true, TextAnchor::Middle});
  }
  double y = std::max(line, titleHeight + 58.0) + 6;
  content.rectangle({1, y, width - 2, 1}, {"#cdd3da", "", 1});
  y += 10;
  const std::vector<std::string> texts = buttonTexts(box.buttons);
  double right = width - margin;
  for (std::size_t i = texts.size(); i-- > 0;) {
    right = drawPushButton(content, right, y, texts[i], i == 0);
  }
  const double height = y + controlHeight + 11;
  Svg all = windowFrame(width, height, box.title);
  all.add(content);
  return all.document(width, height, box.title);
}

std::string toolbarPicture(const std::vector<ButtonView>& buttons, const IconSource& icon) {
  return ToolbarDrawer(buttons, icon).picture();
}

}  // namespace headless::cli
