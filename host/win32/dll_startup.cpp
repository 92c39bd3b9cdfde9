// Linked into every module that is no Windows module: calls the module's DllMain when it is loaded and unloaded, as the
// start-up code of Windows modules does. The instance is the address that the module was loaded at.
#include <dlfcn.h>

#include "host/win32/windows.h"

namespace {

HINSTANCE ownInstance() {
  Dl_info found{};
  dladdr(reinterpret_cast<const void*>(&ownInstance), &found);
  return static_cast<HINSTANCE>(found.dli_fbase);
}

class ModuleStartup {
 public:
  ModuleStartup() { DllMain(ownInstance(), DLL_PROCESS_ATTACH, nullptr); }
  ~ModuleStartup() { DllMain(ownInstance(), DLL_PROCESS_DETACH, nullptr); }
  ModuleStartup(const ModuleStartup&) = delete;
  ModuleStartup& operator=(const ModuleStartup&) = delete;
};

const ModuleStartup startup;

}  // namespace
