// Files of which the add-in may not do everything.
#pragma once

#ifdef _WIN32
#include "tests/support/windows_calls.h"
#else
#include <unistd.h>
#endif

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tests {

#ifdef _WIN32
/// Keeps everybody from writing a file for as long as it lives: somebody else has it open.
class ReadOnlyFile {
 public:
  explicit ReadOnlyFile(const std::filesystem::path& file)
      : handle(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)) {
    if (handle == INVALID_HANDLE_VALUE) {
      throw std::runtime_error("cannot open " + file.string());
    }
  }
  ReadOnlyFile(const ReadOnlyFile&) = delete;
  ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;
  ~ReadOnlyFile() { CloseHandle(handle); }

 private:
  HANDLE handle;
};
#else
/// Gives up the rights of the system's administrator, who may read and write everything, for as long as it lives.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (isAdministrator && seteuid(nobody) != 0) {
      throw std::runtime_error("an administrator cannot become an ordinary user");
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (isAdministrator && seteuid(0) != 0) {
      std::abort();
    }
  }

 private:
  bool isAdministrator = geteuid() == 0;
};

/// Keeps everybody from writing a file for as long as it lives.
class ReadOnlyFile {
 public:
  explicit ReadOnlyFile(const std::filesystem::path& file) : user(withoutWriting(file)) {}

 private:
  static OrdinaryUser withoutWriting(const std::filesystem::path& file) {
    std::filesystem::permissions(file, std::filesystem::perms(0444));
    return OrdinaryUser();
  }

  OrdinaryUser user;
};
#endif

}  // namespace tests
