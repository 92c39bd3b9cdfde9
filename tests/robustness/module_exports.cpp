// Each system keeps the names in a table of its own: Windows in the image as loaded, others where the linker's own tool
// finds them.
#include "tests/robustness/module_exports.h"

#include <algorithm>
#include <stdexcept>

#ifdef _WIN32
#include "tests/support/windows_calls.h"
#else
#include <array>
#include <cstdio>
#endif

namespace tests {

#ifdef _WIN32

namespace {

template <class Part>
const Part* partAt(HMODULE image, DWORD offset) {
  return reinterpret_cast<const Part*>(reinterpret_cast<const char*>(image) + offset);
}

}  // namespace

std::vector<std::string> exportedNames(const std::filesystem::path& module) {
  const HMODULE image = LoadLibraryW(module.c_str());
  if (image == nullptr) {
    throw std::runtime_error("cannot load " + module.string());
  }
  const auto* header = partAt<IMAGE_DOS_HEADER>(image, 0);
  const auto* headers = partAt<IMAGE_NT_HEADERS>(image, static_cast<DWORD>(header->e_lfanew));
  const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  const auto* exports = partAt<IMAGE_EXPORT_DIRECTORY>(image, directory.VirtualAddress);
  const auto* offsets = partAt<DWORD>(image, exports->AddressOfNames);
  std::vector<std::string> names;
  for (DWORD i = 0; directory.Size != 0 && i < exports->NumberOfNames; ++i) {
    names.emplace_back(partAt<char>(image, offsets[i]));
  }
  FreeLibrary(image);
  std::sort(names.begin(), names.end());
  return names;
}

#else

std::vector<std::string> exportedNames(const std::filesystem::path& module) {
  // Each line begins with a name.
  const std::string command = "nm --dynamic --defined-only --format=posix '" + module.string() + "' 2>&1";
  std::FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) {
    throw std::runtime_error("cannot run " + command);
  }
  std::vector<std::string> names;
  for (std::array<char, 4096> line{}; std::fgets(line.data(), static_cast<int>(line.size()), pipe) != nullptr;) {
    const std::string text = line.data();
    names.push_back(text.substr(0, text.find(' ')));
  }
  if (pclose(pipe) != 0) {
    throw std::runtime_error("failed: " + command);
  }
  std::sort(names.begin(), names.end());
  return names;
}

#endif

}  // namespace tests
