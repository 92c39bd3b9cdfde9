// What a person would notice of the system's part of the desktop: the mouse cursor, and the files that were opened.
#pragma once

#include <string>
#include <vector>

namespace headless::desktop {

/// Shapes of the mouse cursor that can be told apart.
enum class CursorShape { Arrow, Wait, Other };

struct Cursor {
  CursorShape shape = CursorShape::Arrow;
  /// The system's display count; the cursor shows while it is not negative.
  int displayCount = 0;
};

/// The cursor as it is now.
Cursor cursor();

/// Paths of the files that were opened, in a window of normal size, with the program that belongs to them. A file that
/// is not there opens nothing. Here and below, raises std::runtime_error when one of those programs does not end.
std::vector<std::string> openedFiles();

/// Arrow, count 0, nothing opened.
void reset();

}  // namespace headless::desktop
