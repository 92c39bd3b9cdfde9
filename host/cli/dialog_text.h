// What is on screen, drawn with text: the open dialog, the toolbar and message boxes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/ui/message_boxes.h"
#include "host/ui/screen.h"

namespace headless::cli {

/// How much is drawn.
struct DialogTextStyle {
  std::size_t columns = 78;
  /// Items of a list that are drawn before and after the selected one.
  std::size_t neighbours = 2;
  /// Objects of the selection that are named before the rest is only counted.
  std::size_t namedPicks = 4;
};

/// The dialog in a frame: groups open ("▾") and closed ("▸") with their boxes, labels, the chosen item of each list
/// with its neighbours, texts, what is picked, and the buttons. What cannot be used is marked "(greyed out)". Ends with
/// a line break.
std::string dialogText(const DialogView& dialog, const DialogTextStyle& style = {});

/// Only those inputs, groups among them with all that is in them, drawn in the same way. Ids that the dialog does not
/// have are passed over.
std::string dialogExcerpt(const DialogView& dialog, const std::vector<std::string>& inputIds,
                          const DialogTextStyle& style = {});

/// The buttons, panel by panel.
std::string toolbarText(const std::vector<ButtonView>& buttons);

/// The message box in a frame, with the button that was pressed, if one was.
std::string messageBoxText(const MessageBox& box, const DialogTextStyle& style = {});

/// The name of the answer's button: "Yes", "No", "OK", "Cancel"; empty for none.
std::string answerText(adsk::core::DialogResults answer);

}  // namespace headless::cli
