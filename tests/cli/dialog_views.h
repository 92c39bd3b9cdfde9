// Made-up dialogs for the tests of what is written and drawn of a dialog.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/runtime/session.h"

namespace headless::cli {

inline InputView inputView(InputKind kind, const std::string& label) {
  InputView view;
  view.kind = kind;
  view.id = "id" + label;
  view.label = label;
  return view;
}

inline InputView groupView(std::vector<InputView> children) {
  InputView view = inputView(InputKind::Group, "Group");
  view.children = std::move(children);
  return view;
}

inline DialogView dialogWith(InputView content) {
  DialogView dialog;
  dialog.title = "Title";
  dialog.cancelText = "Close";
  dialog.hasOkButton = false;
  dialog.inputs.push_back(std::move(content));
  return dialog;
}

}  // namespace headless::cli
