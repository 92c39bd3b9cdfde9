// Class TextBoxCommandInput.
#pragma once

#include <string>

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

/// A text box. The last setter wins. All members are documented unless marked.
class TextBoxCommandInput : public CommandInput {
  ADSK_API_CLASS(TextBoxCommandInput, CommandInput)

  /// Text with simple HTML markup: "<b>", "<i>", "<br />", links, and "<sup>" (the last assumed). A tag that is not
  /// closed holds to the end of the text (assumed). Gives what was set last (assumed).
  virtual std::string formattedText() const = 0;
  virtual bool formattedText(const std::string& value) = 0;
  /// Text as shown: the getter strips markup, the setter takes every character as it is.
  virtual std::string text() const = 0;
  virtual bool text(const std::string& value) = 0;
  /// Height in rows. False for less than one (the latter assumed).
  virtual int numRows() const = 0;
  virtual bool numRows(int value) = 0;
  /// True when the user cannot type into it.
  virtual bool isReadOnly() const = 0;
  virtual bool isReadOnly(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
