// Class StringValueCommandInput.
#pragma once

#include <string>

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

/// A line of text that the user types. All members are documented unless marked.
class StringValueCommandInput : public CommandInput {
  ADSK_API_CLASS(StringValueCommandInput, CommandInput)

  /// What stands in the line. Typing raises one event for each key (assumed).
  virtual std::string value() const = 0;
  virtual bool value(const std::string& value) = 0;
};

}  // namespace core
}  // namespace adsk
