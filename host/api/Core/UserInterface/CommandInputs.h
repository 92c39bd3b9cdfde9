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
  virtual size_t count() const = 0;
  /// Finds inputs in groups as well (assumed); empty when there is none of that id.
  virtual Ptr<CommandInput> itemById(const std::string& id) const = 0;
  /// The command that the collection belongs to.
  virtual Ptr<Command> command() const = 0;
  virtual Ptr<GroupCommandInput> addGroupCommandInput(const std::string& id, const std::string& name) = 0;
  /// Accepts exactly one entity of any kind until limits and filters are set.
  virtual Ptr<SelectionCommandInput> addSelectionInput(const std::string& id, const std::string& name,
                                                       const std::string& commandPrompt) = 0;
  virtual Ptr<ButtonRowCommandInput> addButtonRowCommandInput(const std::string& id, const std::string& name,
                                                              bool isMultiSelectEnabled) = 0;
  virtual Ptr<TextBoxCommandInput> addTextBoxCommandInput(const std::string& id, const std::string& name,
                                                          const std::string& formattedText, int numRows,
                                                          bool isReadOnly) = 0;
  virtual Ptr<DropDownCommandInput> addDropDownCommandInput(const std::string& id, const std::string& name,
                                                            DropDownStyles dropDownStyle) = 0;
  virtual Ptr<StringValueCommandInput> addStringValueInput(const std::string& id, const std::string& name,
                                                           const std::string& initialValue = "") = 0;
  virtual Ptr<BoolValueCommandInput> addBoolValueInput(const std::string& id, const std::string& name, bool isCheckBox,
                                                       const std::string& resourceFolder = "",
                                                       bool initialValue = false) = 0;
};

}  // namespace core
}  // namespace adsk
