// The inputs of a dialog. Each class does what its API interface says; what a person does with an input comes through
// command_runner.h and uses the plain members marked as the host's own.
#pragma once

#include <Core/CoreAll.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/runtime/object.h"
#include "host/runtime/profile.h"
#include "host/ui/list_items.h"

namespace headless {

class GroupInput;
class InputCore;
class InputCollection;

/// What inputs need of the command that they belong to.
class InputOwner {
 public:
  virtual const Profile& hostProfile() const = 0;
  virtual adsk::core::Ptr<adsk::core::Command> commandHandle() = 0;
  /// Called after a program changed the value of an input.
  virtual void inputChangedByProgram(InputCore& input) = 0;
  /// Called after a program emptied a selection input.
  virtual void selectionClearedByProgram(InputCore& input) = 0;
  /// False while the dialog is being built, when nothing may be selected yet.
  virtual bool canSelectByProgram() const = 0;
  /// All inputs of the command by id, those in groups included.
  virtual std::map<std::string, InputCore*>& inputsById() = 0;

 protected:
  ~InputOwner() = default;
};

/// The host's side of every input.
class InputCore {
 public:
  InputCore(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel)
      : owner(inputOwner), home(collection), id_(std::move(inputId)), label_(std::move(inputLabel)) {}
  InputCore(const InputCore&) = delete;
  InputCore& operator=(const InputCore&) = delete;

  virtual adsk::core::Ptr<adsk::core::CommandInput> handle() = 0;
  /// The input and everything in it answer with nothing from now on.
  virtual void markGone() = 0;

  const std::string& inputId() const { return id_; }
  const std::string& label() const { return label_; }
  InputCollection& homeCollection() const { return home; }
  bool enabled = true;
  bool visible = true;

 protected:
  virtual ~InputCore() = default;
  /// Reports that a program set the value, if the profile takes that for a change.
  void reportSet(bool isOtherValue) {
    if (isOtherValue || owner.hostProfile().unchangedValuesReported) {
      owner.inputChangedByProgram(*this);
    }
  }

  InputOwner& owner;
  InputCollection& home;

 private:
  std::string id_;
  std::string label_;
};

/// The command's collection of inputs, or a group's.
class InputCollection final : public HostObject<adsk::core::CommandInputs> {
 public:
  /// `group` is nullptr for the command's own collection.
  InputCollection(InputOwner& inputOwner, GroupInput* group) : owner(inputOwner), group_(group) {}

  adsk::core::Ptr<adsk::core::CommandInput> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::CommandInput> itemById(const std::string& id) const override;
  adsk::core::Ptr<adsk::core::Command> command() const override;
  adsk::core::Ptr<adsk::core::GroupCommandInput> addGroupCommandInput(const std::string& id,
                                                                      const std::string& name) override;
  adsk::core::Ptr<adsk::core::SelectionCommandInput> addSelectionInput(const std::string& id, const std::string& name,
                                                                       const std::string& commandPrompt) override;
  adsk::core::Ptr<adsk::core::ButtonRowCommandInput> addButtonRowCommandInput(const std::string& id,
                                                                              const std::string& name,
                                                                              bool isMultiSelectEnabled) override;
  adsk::core::Ptr<adsk::core::TextBoxCommandInput> addTextBoxCommandInput(const std::string& id,
                                                                          const std::string& name,
                                                                          const std::string& formattedText, int numRows,
                                                                          bool isReadOnly) override;
  adsk::core::Ptr<adsk::core::DropDownCommandInput> addDropDownCommandInput(
      const std::string& id, const std::string& name, adsk::core::DropDownStyles dropDownStyle) override;
  adsk::core::Ptr<adsk::core::StringValueCommandInput> addStringValueInput(const std::string& id,
                                                                           const std::string& name,
                                                                           const std::string& initialValue) override;
  adsk::core::Ptr<adsk::core::BoolValueCommandInput> addBoolValueInput(const std::string& id, const std::string& name,
                                                                       bool isCheckBox,
                                                                       const std::string& resourceFolder,
                                                                       bool initialValue) override;

  /// For the host's own use.
  const std::vector<InputCore*>& all() const { return inputs; }
  GroupInput* group() const { return group_; }
  adsk::core::Ptr<adsk::core::CommandInputs> handle() { return {this, false}; }
  void markAllGone();

 protected:
  std::string traceDetail() const override;

 private:
  template <class Interface, class Input, class... Arguments>
  adsk::core::Ptr<Interface> addInput(const std::string& id, const std::string& name, const Arguments&... arguments);

  InputOwner& owner;
  GroupInput* group_;
  std::vector<InputCore*> inputs;
  std::vector<adsk::core::Ptr<adsk::core::CommandInput>> owned;
};

/// The members that all kinds of inputs share.
template <class Interface>
class Input : public HostObject<Interface>, public InputCore {
 public:
  using InputCore::InputCore;

  std::string id() const override {
    return this->call("id", [this] { return inputId(); });
  }
  std::string name() const override {
    return this->call("name", [this] { return label(); });
  }
  bool isEnabled() const override {
    return this->call("isEnabled", [this] { return enabled; });
  }
  bool isEnabled(bool value) override {
    return this->call(
        "isEnabled=",
        [this, value] {
          enabled = value;
          return true;
        },
        value);
  }
  bool isVisible() const override {
    return this->call("isVisible", [this] { return visible; });
  }
  bool isVisible(bool value) override {
    return this->call(
        "isVisible=",
        [this, value] {
          visible = value;
          visibilityChanged();
          return true;
        },
        value);
  }
  adsk::core::Ptr<adsk::core::CommandInputs> commandInputs() const override {
    return this->call("commandInputs", [this] { return home.handle(); });
  }
  adsk::core::Ptr<adsk::core::Command> parentCommand() const override {
    return this->call("parentCommand", [this] { return owner.commandHandle(); });
  }
  adsk::core::Ptr<adsk::core::CommandInput> parentCommandInput() const override;

  adsk::core::Ptr<adsk::core::CommandInput> handle() override {
    return adsk::core::Ptr<adsk::core::CommandInput>(this, false);
  }
  void markGone() override { this->markDeleted(); }

 protected:
  std::string traceDetail() const override { return inputId(); }
  virtual void visibilityChanged() {}

  /// Stores a new value and reports the change; whether the same value again is one is the profile's choice.
  template <class Value>
  bool store(const char* member, Value& field, const Value& value) {
    return this->call(
        member,
        [&] {
          reportSet(std::exchange(field, value) != value);
          return true;
        },
        value);
  }
};

class GroupInput final : public Input<adsk::core::GroupCommandInput> {
 public:
  GroupInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel);

  adsk::core::Ptr<adsk::core::CommandInputs> children() const override;
  bool isExpanded() const override;
  bool isExpanded(bool value) override;
  bool isEnabledCheckBoxDisplayed() const override;
  bool isEnabledCheckBoxDisplayed(bool value) override;
  bool isEnabledCheckBoxChecked() const override;
  bool isEnabledCheckBoxChecked(bool value) override;

  void markGone() override;

  /// For the host's own use.
  InputCollection& childInputs() const { return *children_.get(); }
  bool expanded = true;
  bool tickDisplayed = false;
  bool ticked = true;

 private:
  adsk::core::Ptr<InputCollection> children_;
};

/// One picked entity.
class SelectionObject final : public HostObject<adsk::core::Selection> {
 public:
  explicit SelectionObject(const adsk::core::Ptr<adsk::core::Base>& picked) : entity_(picked) {}
  adsk::core::Ptr<adsk::core::Base> entity() const override {
    return call("entity", [this] { return entity_; });
  }
  const adsk::core::Ptr<adsk::core::Base>& picked() const { return entity_; }

 private:
  adsk::core::Ptr<adsk::core::Base> entity_;
};

class SelectionInput final : public Input<adsk::core::SelectionCommandInput> {
 public:
  SelectionInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
                 std::string prompt);

  // For a selection input, being enabled means having the focus.
  using Input::isEnabled;
  bool isEnabled(bool value) override;
  bool setSelectionLimits(size_t minimum, size_t maximum) override;
  bool getSelectionLimits(size_t& minimum, size_t& maximum) override;
  size_t selectionCount() const override;
  adsk::core::Ptr<adsk::core::Selection> selection(size_t index) const override;
  bool addSelection(const adsk::core::Ptr<adsk::core::Base>& selection) override;
  bool clearSelection() override;
  bool addSelectionFilter(const std::string& filter) override;
  bool clearSelectionFilter() override;
  std::vector<std::string> selectionFilters() const override;
  bool selectionFilters(const std::vector<std::string>& value) override;
  std::string commandPrompt() const override;
  bool commandPrompt(const std::string& value) override;
  bool hasFocus() const override;
  bool hasFocus(bool value) override;

  void markGone() override;

  /// For the host's own use. An empty answer of whyRefused means that the entity may be picked.
  std::string whyRefused(const adsk::core::Ptr<adsk::core::Base>& entity) const;
  bool isPicked(const adsk::core::Ptr<adsk::core::Base>& entity) const;
  void pick(const adsk::core::Ptr<adsk::core::Base>& entity);
  /// False when the entity is not selected.
  bool unpick(const adsk::core::Ptr<adsk::core::Base>& entity);
  /// Empties the selection; its Selection objects are no longer valid. False when there was none.
  bool dropAll();
  bool isBelowMinimum() const { return selections.size() < minimum_; }
  const std::vector<adsk::core::Ptr<SelectionObject>>& picked() const { return selections; }
  const std::vector<std::string>& filters() const { return filters_; }
  const std::string& prompt() const { return prompt_; }

 protected:
  void visibilityChanged() override;

 private:
  bool setFocus(const char* member, bool value);

  std::string prompt_;
  std::size_t minimum_ = 1;
  std::size_t maximum_ = 1;
  std::vector<std::string> filters_;
  std::vector<adsk::core::Ptr<SelectionObject>> selections;
  /// Identities of what is selected, to know quickly what is.
  std::set<std::pair<const void*, const void*>> identities;
};

class ButtonRowInput final : public Input<adsk::core::ButtonRowCommandInput> {
 public:
  ButtonRowInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
                 bool isMultiSelect);

  adsk::core::Ptr<adsk::core::ListItems> listItems() const override;
  adsk::core::Ptr<adsk::core::ListItem> selectedItem() const override;
  bool isMultiSelectEnabled() const override;
  void markGone() override;

  ListItemsObject& list() const { return *list_.get(); }

 private:
  bool isMultiSelect_;
  adsk::core::Ptr<ListItemsObject> list_;
};

class DropDownInput final : public Input<adsk::core::DropDownCommandInput> {
 public:
  DropDownInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
                adsk::core::DropDownStyles dropDownStyle);

  adsk::core::DropDownStyles dropDownStyle() const override;
  adsk::core::Ptr<adsk::core::ListItems> listItems() const override;
  adsk::core::Ptr<adsk::core::ListItem> selectedItem() const override;
  void markGone() override;

  ListItemsObject& list() const { return *list_.get(); }
  adsk::core::DropDownStyles style() const { return style_; }

 private:
  adsk::core::DropDownStyles style_;
  adsk::core::Ptr<ListItemsObject> list_;
};

class TextBoxInput final : public Input<adsk::core::TextBoxCommandInput> {
 public:
  TextBoxInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
               std::string formattedText, int rows, bool isReadOnly);

  std::string formattedText() const override;
  bool formattedText(const std::string& value) override;
  std::string text() const override;
  bool text(const std::string& value) override;
  int numRows() const override;
  bool numRows(int value) override;
  bool isReadOnly() const override;
  bool isReadOnly(bool value) override;

  /// What was set last, markup included.
  const std::string& contentSet() const { return content; }
  /// The text as a person sees it.
  std::string shownText() const;
  bool readOnly() const { return isReadOnly_; }
  int rowCount() const { return rows_; }
  /// What a person typed.
  void type(const std::string& typed);

 private:
  bool setContent(const char* member, const std::string& value, bool asMarkup);

  std::string content;
  bool isMarkup = true;
  int rows_;
  bool isReadOnly_;
};

class StringInput final : public Input<adsk::core::StringValueCommandInput> {
 public:
  StringInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
              std::string initialValue);

  std::string value() const override;
  bool value(const std::string& value) override;

  std::string current;
};

class BoolInput final : public Input<adsk::core::BoolValueCommandInput> {
 public:
  BoolInput(InputOwner& inputOwner, InputCollection& collection, std::string inputId, std::string inputLabel,
            bool isCheckBox, std::string resourceFolder, bool initialValue);

  bool value() const override;
  bool value(bool value) override;
  bool isCheckBox() const override;
  std::string resourceFolder() const override;
  bool resourceFolder(const std::string& value) override;
  std::string text() const override;
  bool text(const std::string& value) override;

  bool current;
  bool checkBox() const { return isCheckBox_; }
  const std::string& iconFolder() const { return resourceFolder_; }
  const std::string& buttonText() const { return text_; }

 private:
  bool isCheckBox_;
  std::string resourceFolder_;
  std::string text_;
};

template <class Interface>
adsk::core::Ptr<adsk::core::CommandInput> Input<Interface>::parentCommandInput() const {
  return this->call("parentCommandInput", [this]() -> adsk::core::Ptr<adsk::core::CommandInput> {
    return home.group() != nullptr ? home.group()->handle() : nullptr;
  });
}

}  // namespace headless
