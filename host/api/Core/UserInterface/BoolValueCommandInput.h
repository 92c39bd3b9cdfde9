// Class BoolValueCommandInput.
#pragma once

#include <string>

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

/// A check box or a push button. All members are documented unless marked.
class BoolValueCommandInput : public CommandInput {
  ADSK_API_CLASS(BoolValueCommandInput, CommandInput)

  /// Check box: ticked or not. Button: pressed in at the moment, which it is during the one event of a click and not
  /// after it (the latter assumed).
  virtual bool value() const = 0;
  virtual bool value(bool value) = 0;
  /// False for a button.
  virtual bool isCheckBox() const = 0;
  /// Icon folder of a button, relative to the folder of the module or full; empty when it has no icon.
  virtual std::string resourceFolder() const = 0;
  virtual bool resourceFolder(const std::string& value) = 0;
  /// Text on the button.
  virtual std::string text() const = 0;
  virtual bool text(const std::string& value) = 0;
};

}  // namespace core
}  // namespace adsk
