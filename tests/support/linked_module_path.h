// The path of the module as the routines see it that are linked into the test program: that of the test program, unless
// they are told otherwise.
#pragma once

#include <filesystem>
#include <stdexcept>

#ifndef _WIN32
#include <dlfcn.h>
#endif

#include "tests/support/windows_calls.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

namespace tests {

/// Makes a module that is loaded already the one whose path they find, for as long as it lives.
class LinkedModulePath {
 public:
  explicit LinkedModulePath(const std::filesystem::path& loadedModule) {
    DllMain(instanceOf(loadedModule), DLL_PROCESS_ATTACH, nullptr);
  }
  LinkedModulePath(const LinkedModulePath&) = delete;
  LinkedModulePath& operator=(const LinkedModulePath&) = delete;
  ~LinkedModulePath() { DllMain(nullptr, DLL_PROCESS_ATTACH, nullptr); }

 private:
  static HINSTANCE instanceOf(const std::filesystem::path& module) {
#ifdef _WIN32
    const HINSTANCE instance = GetModuleHandleW(module.c_str());
#else
    void* const handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    void* const entry = handle != nullptr ? dlsym(handle, "run") : nullptr;
    Dl_info found{};
    const HINSTANCE instance =
        entry != nullptr && dladdr(entry, &found) != 0 ? static_cast<HINSTANCE>(found.dli_fbase) : nullptr;
    if (handle != nullptr) {
      dlclose(handle);
    }
#endif
    if (instance == nullptr) {
      throw std::runtime_error(module.string() + " is not loaded");
    }
    return instance;
  }
};

}  // namespace tests
