#include <windows.h>

#include <stdexcept>
#include <system_error>

#include "host/runtime/module.h"

namespace headless {

namespace {

template <class EntryPoint>
EntryPoint entryPoint(HMODULE module, const char* name) {
  // The system hands out every entry point under one type.
  return reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace

Module::Module(const std::filesystem::path& file) {
  HMODULE module = LoadLibraryW(std::filesystem::absolute(file).c_str());
  if (module == nullptr) {
    const std::error_code reason(static_cast<int>(GetLastError()), std::system_category());
    throw std::runtime_error("the module " + file.u8string() + " cannot be loaded: " + reason.message());
  }
  runEntry = entryPoint<EntryPoint>(module, "run");
  stopEntry = entryPoint<EntryPoint>(module, "stop");
  if (runEntry == nullptr) {
    FreeLibrary(module);
    throw std::runtime_error("the module " + file.u8string() + " is no add-in: it has no entry point \"run\"");
  }
  handle = module;
}

Module::~Module() {
  FreeLibrary(static_cast<HMODULE>(handle));
}

bool Module::run(const std::string& context) const {
  return runEntry(context.c_str());
}

bool Module::stop(const std::string& context) const {
  return stopEntry == nullptr || stopEntry(context.c_str());
}

bool Module::isResident(const std::filesystem::path& file) {
  HMODULE found = nullptr;
  return GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, std::filesystem::absolute(file).c_str(),
                            &found) != FALSE;
}

}  // namespace headless
