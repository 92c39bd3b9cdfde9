// Class ProgressDialog.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// A dialog that tells how far a long work is. Nothing stops by itself when the user cancels: who works has to ask. All
/// members are documented unless marked.
class ProgressDialog : public Base {
  ADSK_API_CLASS(ProgressDialog, Base)

  /// Shows the dialog at the minimum, after `delay` seconds, and forgets an earlier Cancel. False when the range is
  /// empty (the latter assumed).
  virtual bool show(const std::string& title, const std::string& message, int minimumValue, int maximumValue,
                    int delay = 0) = 0;
  /// Takes it away; false when it is not shown (the latter assumed).
  virtual bool hide() = 0;
  /// Goes back to the minimum.
  virtual bool reset() = 0;

  /// How far the work is. A value outside of the range is refused (assumed).
  virtual int progressValue() const = 0;
  virtual bool progressValue(int value) = 0;
  /// Where the work begins; with 0, "%m" shows the maximum.
  virtual int minimumValue() const = 0;
  virtual bool minimumValue(int value) = 0;
  /// Where the work ends.
  virtual int maximumValue() const = 0;
  virtual bool maximumValue(int value) = 0;
  /// The message shows "%p" as the percentage, "%v" as the value and "%m" as the number of steps.
  virtual std::string message() const = 0;
  virtual bool message(const std::string& value) = 0;
  /// Text of the title bar.
  virtual std::string title() const = 0;
  virtual bool title(const std::string& value) = 0;
  /// False by default; to be set before it is shown.
  virtual bool isCancelButtonShown() const = 0;
  virtual bool isCancelButtonShown(bool value) = 0;
  /// False by default; to be set before it is shown. Our host only keeps it.
  virtual bool isBackgroundTranslucent() const = 0;
  virtual bool isBackgroundTranslucent(bool value) = 0;
  /// "Cancel" by default.
  virtual std::string cancelButtonText() const = 0;
  virtual bool cancelButtonText(const std::string& value) = 0;

  /// True once the user pressed Cancel while it was shown the last time.
  virtual bool wasCancelled() const = 0;
  /// True from show() to hide().
  virtual bool isShowing() const = 0;
};

}  // namespace core
}  // namespace adsk
