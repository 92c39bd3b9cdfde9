// Progress dialogs: what a module shows while it works, and the Cancel of whoever watches it.
#pragma once

#include <Core/CoreAll.h>

#include <string>

#include "host/runtime/object.h"

namespace headless {

class ProgressDialogObject final : public HostObject<adsk::core::ProgressDialog> {
 public:
  bool show(const std::string& title, const std::string& message, int minimumValue, int maximumValue,
            int delay) override;
  bool hide() override;
  bool reset() override;
  int progressValue() const override;
  bool progressValue(int value) override;
  int minimumValue() const override;
  bool minimumValue(int value) override;
  int maximumValue() const override;
  bool maximumValue(int value) override;
  std::string message() const override;
  bool message(const std::string& value) override;
  std::string title() const override;
  bool title(const std::string& value) override;
  bool isCancelButtonShown() const override;
  bool isCancelButtonShown(bool value) override;
  bool isBackgroundTranslucent() const override;
  bool isBackgroundTranslucent(bool value) override;
  std::string cancelButtonText() const override;
  bool cancelButtonText(const std::string& value) override;
  bool wasCancelled() const override;
  bool isShowing() const override;

  /// For the host's own use. What a person sees of it.
  bool isOnScreen() const { return showing; }
  const std::string& shownTitle() const { return titleText; }
  /// The message with its place-holders filled in.
  std::string shownMessage() const;
  int value() const { return current; }
  int minimum() const { return lowest; }
  int maximum() const { return highest; }
  /// A button that is asked for while the dialog is shown is not there before it is shown again.
  bool hasCancelButton() const { return showing && shownWithCancel; }
  const std::string& cancelText() const { return cancelLabel; }
  /// Presses Cancel, which must be there.
  void pressCancel() { cancelled = true; }
  void takeAway() { showing = false; }

 private:
  std::string titleText;
  std::string messageText;
  std::string cancelLabel = "Cancel";
  int lowest = 0;
  int highest = 100;
  int current = 0;
  bool cancelWanted = false;
  bool shownWithCancel = false;
  bool translucent = false;
  bool showing = false;
  bool cancelled = false;
};

}  // namespace headless
