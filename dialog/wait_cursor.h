// The system's wait cursor, shown while the dialog is built. Showing and restoring are two calls, not one object's
// life: a build that ends early leaves the wait cursor as it is.
#pragma once

namespace tintora {

/// Makes the wait cursor current. Returns the cursor that was current before, a Win32 HCURSOR.
void* showWaitCursor();

/// Makes the cursor current that `showWaitCursor` returned.
void restoreCursor(void* previousCursor);

}  // namespace tintora
