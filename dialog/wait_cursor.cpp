// Win32 cursor calls. The display count is raised meanwhile, so that the cursor is seen even where the host hides it.
#include "dialog/wait_cursor.h"

#include <windows.h>

namespace tintora {

void* showWaitCursor() {
  void* const previousCursor = SetCursor(LoadCursorA(nullptr, IDC_WAIT));
  ShowCursor(TRUE);
  return previousCursor;
}

void restoreCursor(void* previousCursor) {
  ShowCursor(FALSE);
  SetCursor(static_cast<HCURSOR>(previousCursor));
}

}  // namespace tintora
