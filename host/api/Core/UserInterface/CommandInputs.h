// Class CommandInputs.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"
#include "../CoreTypeDefs.h"

namespace adsk {
namespace core {

class BoolValueCommandInput;
class ButtonRowCommandInput;
class Command;
class CommandInput;
class DropDownCommandInput;
class GroupCommandInput;
class SelectionCommandInput;
class StringValueCommandInput;
class TextBoxCommandInput;

/// The inputs of a command or of a group. Ids are unique in the whole command; every add gives nothing when the id is
/// taken. All members are documented unless marked.
class CommandInputs : public Base {
  ADSK_API_CLASS(CommandInputs, Base)

  using iterable_type = CommandInput;
  /// Empty for a bad index.
  virtual Ptr<CommandInput> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Finds inputs in groups as well (assumed); empty when there is none of that id.
  virtual Ptr<CommandInput> itemById(const std::string& id) const = 0;
  /// The command that the collection belongs to.
  virtual Ptr<Command> command() const = 0;
  /// A group, open at first (the latter assumed); inputs are added to its children().
  virtual Ptr<GroupCommandInput> addGroupCommandInput(const std::string& id, const std::string& name) = 0;
  /// Accepts exactly one entity of any kind until limits and filters are set.
  virtual Ptr<SelectionCommandInput> addSelectionInput(const std::string& id, const std::string& name,
                                                       const std::string& commandPrompt) = 0;
  /// A row of buttons without any yet; each needs an icon folder.
  virtual Ptr<ButtonRowCommandInput> addButtonRowCommandInput(const std::string& id, const std::string& name,
                                                              bool isMultiSelectEnabled) = 0;
  /// A text box of `numRows` rows, at first with a text in simple HTML; without `name` it takes the dialog's width.
  virtual Ptr<TextBoxCommandInput> addTextBoxCommandInput(const std::string& id, const std::string& name,
                                                          const std::string& formattedText, int numRows,
                                                          bool isReadOnly) = 0;
  /// A drop-down without items; nothing is selected in it.
  virtual Ptr<DropDownCommandInput> addDropDownCommandInput(const std::string& id, const std::string& name,
                                                            DropDownStyles dropDownStyle) = 0;
  /// A line to type into, at first with `initialValue`.
  virtual Ptr<StringValueCommandInput> addStringValueInput(const std::string& id, const std::string& name,
                                                           const std::string& initialValue = "") = 0;
  /// A check box (with an icon: a button that stays pressed), or, when `isCheckBox` is false, a button that is only
  /// clicked. `resourceFolder` holds the icon, relative to the module's folder or full.
  virtual Ptr<BoolValueCommandInput> addBoolValueInput(const std::string& id, const std::string& name, bool isCheckBox,
                                                       const std::string& resourceFolder = "",
                                                       bool initialValue = false) = 0;
};

}  // namespace core
}  // namespace adsk
