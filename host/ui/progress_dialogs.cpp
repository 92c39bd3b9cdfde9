#include "host/ui/progress_dialogs.h"

#include <cstddef>
#include <utility>

namespace headless {

namespace {

void replaceAll(std::string& text, const std::string& mark, const std::string& by) {
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + by.size())) {
    text.replace(at, mark.size(), by);
  }
}

}  // namespace

bool ProgressDialogObject::show(const std::string& title, const std::string& message, int minimumValue,
                                int maximumValue, int delay) {
  return call(
      "show",
      [&] {
        if (minimumValue >= maximumValue) {
          return false;
        }
        titleText = title;
        messageText = message;
        lowest = minimumValue;
        highest = maximumValue;
        current = minimumValue;
        shownWithCancel = cancelWanted;
        cancelled = false;
        showing = true;
        return true;
      },
      title, message, minimumValue, maximumValue, delay);
}

bool ProgressDialogObject::hide() {
  return call("hide", [this] { return std::exchange(showing, false); });
}

bool ProgressDialogObject::reset() {
  return call("reset", [this] {
    current = lowest;
    return true;
  });
}

int ProgressDialogObject::progressValue() const {
  return call("progressValue", [this] { return current; });
}

bool ProgressDialogObject::progressValue(int value) {
  return call(
      "progressValue=",
      [&] {
        if (value < lowest || value > highest) {
          return false;
        }
        current = value;
        return true;
      },
      value);
}

int ProgressDialogObject::minimumValue() const {
  return call("minimumValue", [this] { return lowest; });
}

bool ProgressDialogObject::minimumValue(int value) {
  return call(
      "minimumValue=",
      [&] {
        lowest = value;
        return true;
      },
      value);
}

int ProgressDialogObject::maximumValue() const {
  return call("maximumValue", [this] { return highest; });
}

bool ProgressDialogObject::maximumValue(int value) {
  return call(
      "maximumValue=",
      [&] {
        highest = value;
        return true;
      },
      value);
}

std::string ProgressDialogObject::message() const {
  return call("message", [this] { return messageText; });
}

bool ProgressDialogObject::message(const std::string& value) {
  return call(
      "message=",
      [&] {
        messageText = value;
        return true;
      },
      value);
}

std::string ProgressDialogObject::title() const {
  return call("title", [this] { return titleText; });
}

bool ProgressDialogObject::title(const std::string& value) {
  return call(
      "title=",
      [&] {
        titleText = value;
        return true;
      },
      value);
}

bool ProgressDialogObject::isCancelButtonShown() const {
  return call("isCancelButtonShown", [this] { return cancelWanted; });
}

bool ProgressDialogObject::isCancelButtonShown(bool value) {
  return call(
      "isCancelButtonShown=",
      [&] {
        cancelWanted = value;
        return true;
      },
      value);
}

bool ProgressDialogObject::isBackgroundTranslucent() const {
  return call("isBackgroundTranslucent", [this] { return translucent; });
}

bool ProgressDialogObject::isBackgroundTranslucent(bool value) {
  return call(
      "isBackgroundTranslucent=",
      [&] {
        translucent = value;
        return true;
      },
      value);
}

std::string ProgressDialogObject::cancelButtonText() const {
  return call("cancelButtonText", [this] { return cancelLabel; });
}

bool ProgressDialogObject::cancelButtonText(const std::string& value) {
  return call(
      "cancelButtonText=",
      [&] {
        cancelLabel = value;
        return true;
      },
      value);
}

bool ProgressDialogObject::wasCancelled() const {
  return call("wasCancelled", [this] { return cancelled; });
}

bool ProgressDialogObject::isShowing() const {
  return call("isShowing", [this] { return showing; });
}

std::string ProgressDialogObject::shownMessage() const {
  std::string text = messageText;
  const int range = highest - lowest;
  replaceAll(text, "%p", std::to_string(range > 0 ? (current - lowest) * 100 / range : 0));
  replaceAll(text, "%v", std::to_string(current));
  replaceAll(text, "%m", std::to_string(range));
  return text;
}

}  // namespace headless
