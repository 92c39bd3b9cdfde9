// What is on screen, drawn as SVG in the general manner of a CAD program: the open dialog, message boxes, the toolbar.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/model/materials.h"
#include "host/ui/message_boxes.h"
#include "host/ui/screen.h"

namespace headless::cli {

/// The address of the picture in an icon folder; empty when there is none, for which a question mark is drawn.
using IconSource = std::function<std::string(const std::string& folder)>;

/// What a drawing shows beside what a dialog says of itself.
struct PictureStyle {
  /// Finds icons; empty for none.
  IconSource icon;
  /// Colours drawn before the names of items, in lists that show icons.
  std::map<std::string, model::Colour> swatches;
  /// Id of the drop-down that is drawn open; empty for none.
  std::string openList;
  /// Items that an open list shows at most; the rest is scrolled to.
  std::size_t openItems = 9;
};

/// The dialog with the width that it asked for and as high as its inputs need. What cannot be used is pale.
std::string dialogPicture(const DialogView& dialog, const PictureStyle& style = {});

/// The message box with its buttons.
std::string messageBoxPicture(const MessageBox& box);

/// The tabs and, of the first one, the panels with their promoted buttons; the tooltip of the first button is open.
std::string toolbarPicture(const std::vector<ButtonView>& buttons, const IconSource& icon = {});

}  // namespace headless::cli
