// The two entry points that the host calls on its user-interface thread: `run` when the add-in starts, `stop` when it
// ends. They report failure through their result; what they raise is the host's to report.
#include <Core/CoreAll.h>

#include "shell/globals.h"
#include "shell/toolbar.h"

/// True when the user interface was registered completely.
extern "C" XI_EXPORT bool run(const char* /*context*/) {
  using namespace tintora;

  appHandle = core::Application::get();
  if (!appHandle) {
    return false;
  }
  uiHandle = appHandle->userInterface();
  if (!uiHandle) {
    return false;
  }
  return setupUserInterface();
}

/// False when the workspace that holds the user interface is missing; the handle is kept then, for another attempt.
/// True otherwise, also when nothing was registered.
extern "C" XI_EXPORT bool stop(const char* /*context*/) {
  using namespace tintora;

  if (!uiHandle) {
    return true;
  }
  if (!removeUserInterface()) {
    return false;
  }
  appliedAppearances = AppliedAppearances();
  uiHandle = nullptr;
  return true;
}
