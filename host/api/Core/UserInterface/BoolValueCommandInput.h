// Class BoolValueCommandInput.
#pragma once

#include <string>

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

/// A check box or a push button. All members are documented.
class BoolValueCommandInput : public CommandInput {
  ADSK_API_CLASS(BoolValueCommandInput, CommandInput)

  /// Check box: ticked or not. Button: pressed in at the moment.
  virtual bool value() const = 0;
  virtual bool value(bool value) = 0;
  virtual bool isCheckBox() const = 0;
  virtual std::string resourceFolder() const = 0;
  virtual bool resourceFolder(const std::string& value) = 0;
  /// Text on the button.
  virtual std::string text() const = 0;
  virtual bool text(const std::string& value) = 0;
};

}  // namespace core
}  // namespace adsk
