// Class GroupCommandInput.
#pragma once

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

class CommandInputs;

/// A group of inputs with a header. All members are documented unless marked.
class GroupCommandInput : public CommandInput {
  ADSK_API_CLASS(GroupCommandInput, CommandInput)

  /// Where inputs of the group are added.
  virtual Ptr<CommandInputs> children() const = 0;
  /// True by default (assumed).
  virtual bool isExpanded() const = 0;
  virtual bool isExpanded(bool value) = 0;
  /// A check box in the header that enables or disables the group; false by default (assumed).
  virtual bool isEnabledCheckBoxDisplayed() const = 0;
  virtual bool isEnabledCheckBoxDisplayed(bool value) = 0;
  /// Valid only while the check box is displayed: hosts may ignore the setter before (assumed: stored). True by default
  /// (assumed).
  virtual bool isEnabledCheckBoxChecked() const = 0;
  virtual bool isEnabledCheckBoxChecked(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
