// The module's path. The handle needed to ask for it is only told to DllMain, which is here for that reason alone.
#include "shell/module_path.h"

#include <windows.h>

#include "shell/text.h"

namespace {

HINSTANCE moduleHandle = nullptr;

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    moduleHandle = module;
  }
  return TRUE;
}

namespace tintora {

namespace {

constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

std::string getModulePath() {
  constexpr DWORD maximumLength = 260;
  // One more, since the system does not always end a path that it had to cut.
  wchar_t path[maximumLength + 1] = {};
  GetModuleFileNameW(moduleHandle, path, maximumLength);
  return toAnsi(path);
}

std::string addinFolder() {
  const std::string path = getModulePath();
  return path.substr(0, path.rfind(separator));
}

std::string pathBesideModule(const std::string& suffix) {
  constexpr std::string_view extension = ".dll";
  std::string path = getModulePath();
  return path.replace(path.find(extension), extension.size(), suffix);
}

std::string joinPath(std::initializer_list<std::string_view> parts) {
  std::string path;
  for (const std::string_view& part : parts) {
    if (&part != parts.begin()) {
      path += separator;
    }
    path += part;
  }
  return path;
}

std::filesystem::path toSystemPath(const std::string& ansiPath) {
  return {toWide(ansiPath)};
}

}  // namespace tintora
