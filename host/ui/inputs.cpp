#include "host/ui/inputs.h"

#include <algorithm>

#include "host/ui/markup.h"

namespace headless {

using adsk::core::ListItem;
using adsk::core::ListItems;
using adsk::core::Ptr;

GroupInput::GroupInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)),
      children_(makeObject<InputCollection>(inputOwner, this)) {}

Ptr<adsk::core::CommandInputs> GroupInput::children() const {
  return call("children", [this] { return children_->handle(); });
}

bool GroupInput::isExpanded() const {
  return call("isExpanded", [this] { return expanded; });
}

bool GroupInput::isExpanded(bool value) {
  return store("isExpanded=", expanded, value);
}

bool GroupInput::isEnabledCheckBoxDisplayed() const {
  return call("isEnabledCheckBoxDisplayed", [this] { return tickDisplayed; });
}

bool GroupInput::isEnabledCheckBoxDisplayed(bool value) {
  return store("isEnabledCheckBoxDisplayed=", tickDisplayed, value);
}

bool GroupInput::isEnabledCheckBoxChecked() const {
  return call("isEnabledCheckBoxChecked", [this] { return ticked; });
}

bool GroupInput::isEnabledCheckBoxChecked(bool value) {
  if (!tickDisplayed && owner.hostProfile().hiddenTickIgnored) {
    return call(
        "isEnabledCheckBoxChecked=", [] { return false; }, value);
  }
  return store("isEnabledCheckBoxChecked=", ticked, value);
}

void GroupInput::markGone() {
  children_->markAllGone();
  markDeleted();
}

ButtonRowInput::ButtonRowInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId,
                               std::string inputLabel, bool isMultiSelect)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)), isMultiSelect_(isMultiSelect) {
  ListRules rules;
  rules.isSingleChoice = !isMultiSelect;
  rules.isButtonRow = true;
  rules.keepsActiveItem = false;
  list_ = makeObject<ListItemsObject>(this->inputId(), rules, [this](bool isOther) { reportSet(isOther); });
}

Ptr<ListItems> ButtonRowInput::listItems() const {
  return call("listItems", [this] { return Ptr<ListItems>(list_); });
}

Ptr<ListItem> ButtonRowInput::selectedItem() const {
  return call("selectedItem", [this] { return Ptr<ListItem>(list_->selected()); });
}

bool ButtonRowInput::isMultiSelectEnabled() const {
  return call("isMultiSelectEnabled", [this] { return isMultiSelect_; });
}

void ButtonRowInput::markGone() {
  list_->markAllDeleted();
  markDeleted();
}

DropDownInput::DropDownInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId,
                             std::string inputLabel, adsk::core::DropDownStyles dropDownStyle)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)), style_(dropDownStyle) {
  ListRules rules;
  rules.isSingleChoice = dropDownStyle != adsk::core::CheckBoxDropDownStyle;
  rules.hasIcons = dropDownStyle == adsk::core::LabeledIconDropDownStyle;
  rules.keepsActiveItem = rules.isSingleChoice;
  list_ = makeObject<ListItemsObject>(this->inputId(), rules, [this](bool isOther) { reportSet(isOther); });
}

adsk::core::DropDownStyles DropDownInput::dropDownStyle() const {
  return call("dropDownStyle", [this] { return style_; });
}

Ptr<ListItems> DropDownInput::listItems() const {
  return call("listItems", [this] { return Ptr<ListItems>(list_); });
}

Ptr<ListItem> DropDownInput::selectedItem() const {
  return call("selectedItem", [this] { return Ptr<ListItem>(list_->selected()); });
}

void DropDownInput::markGone() {
  list_->markAllDeleted();
  markDeleted();
}

TextBoxInput::TextBoxInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId,
                           std::string inputLabel, std::string formattedText, int rows, bool isReadOnly)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)),
      content(std::move(formattedText)),
      rows_(rows),
      isReadOnly_(isReadOnly) {}

std::string TextBoxInput::formattedText() const {
  return call("formattedText", [this] { return content; });
}

bool TextBoxInput::formattedText(const std::string& value) {
  return setContent("formattedText=", value, true);
}

std::string TextBoxInput::text() const {
  return call("text", [this] { return shownText(); });
}

bool TextBoxInput::text(const std::string& value) {
  return setContent("text=", value, false);
}

bool TextBoxInput::setContent(const char* member, const std::string& value, bool asMarkup) {
  return call(
      member,
      [&] {
        const bool isOther = content != value || isMarkup != asMarkup;
        content = value;
        isMarkup = asMarkup;
        reportSet(isOther);
        return true;
      },
      value);
}

std::string TextBoxInput::shownText() const {
  return isMarkup ? withoutMarkup(content) : content;
}

void TextBoxInput::type(const std::string& typed) {
  content = typed;
  isMarkup = false;
}

int TextBoxInput::numRows() const {
  return call("numRows", [this] { return rows_; });
}

bool TextBoxInput::numRows(int value) {
  return call(
      "numRows=",
      [&] {
        rows_ = value > 0 ? value : rows_;
        return value > 0;
      },
      value);
}

bool TextBoxInput::isReadOnly() const {
  return call("isReadOnly", [this] { return isReadOnly_; });
}

bool TextBoxInput::isReadOnly(bool value) {
  return call(
      "isReadOnly=",
      [&] {
        isReadOnly_ = value;
        return true;
      },
      value);
}

StringInput::StringInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId,
                         std::string inputLabel, std::string initialValue)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)), current(std::move(initialValue)) {}

std::string StringInput::value() const {
  return call("value", [this] { return current; });
}

bool StringInput::value(const std::string& value) {
  return store("value=", current, value);
}

BoolInput::BoolInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
                     bool isCheckBox, std::string resourceFolder, bool initialValue)
    : Input(inputOwner, collection, std::move(inputId), std::move(inputLabel)),
      current(initialValue),
      isCheckBox_(isCheckBox),
      resourceFolder_(std::move(resourceFolder)) {}

bool BoolInput::value() const {
  return call("value", [this] { return current; });
}

bool BoolInput::value(bool value) {
  return store("value=", current, value);
}

bool BoolInput::isCheckBox() const {
  return call("isCheckBox", [this] { return isCheckBox_; });
}

std::string BoolInput::resourceFolder() const {
  return call("resourceFolder", [this] { return resourceFolder_; });
}

bool BoolInput::resourceFolder(const std::string& value) {
  return call(
      "resourceFolder=",
      [&] {
        resourceFolder_ = value;
        return true;
      },
      value);
}

std::string BoolInput::text() const {
  return call("text", [this] { return text_; });
}

bool BoolInput::text(const std::string& value) {
  return call(
      "text=",
      [&] {
        text_ = value;
        return true;
      },
      value);
}

}  // namespace headless
