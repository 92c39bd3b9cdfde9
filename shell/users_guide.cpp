// Opening the user guide through the system's shell.
#include "shell/users_guide.h"

#include <windows.h>

#include <string>

#include "shell/module_path.h"

namespace tintora {

void openUsersGuide() {
  const std::string guide = pathBesideModule("_UsersGuide.pdf");
  if (guide.empty()) {
    return;
  }
  ShellExecuteA(nullptr, "open", guide.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace tintora
