#include <dlfcn.h>

#include <stdexcept>

#include "host/runtime/module.h"

namespace headless {

namespace {

std::string lastError() {
  const char* text = dlerror();
  return text != nullptr ? text : "no reason was given";
}

}  // namespace

Module::Module(const std::filesystem::path& file)
    : handle(dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (handle == nullptr) {
    throw std::runtime_error("the module " + file.string() + " cannot be loaded: " + lastError());
  }
  runEntry = reinterpret_cast<EntryPoint>(dlsym(handle, "run"));
  stopEntry = reinterpret_cast<EntryPoint>(dlsym(handle, "stop"));
  if (runEntry == nullptr) {
    dlclose(handle);
    throw std::runtime_error("the module " + file.string() + " is no add-in: it has no entry point \"run\"");
  }
}

Module::~Module() {
  dlclose(handle);
}

bool Module::run(const std::string& context) const {
  return runEntry(context.c_str());
}

bool Module::stop(const std::string& context) const {
  return stopEntry == nullptr || stopEntry(context.c_str());
}

bool Module::isResident(const std::filesystem::path& file) {
  void* found = dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (found == nullptr) {
    return false;
  }
  dlclose(found);
  return true;
}

}  // namespace headless
