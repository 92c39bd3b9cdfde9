// Files of which an ordinary user may not do everything; an administrator may all the same.
#pragma once

#ifndef _WIN32
#include <unistd.h>
#endif

#include <cstdlib>
#include <stdexcept>

namespace tests {

/// Gives up the rights of the system's administrator, who may read and write everything, for as long as it lives. On
/// Windows nobody may write a file that is marked as read-only.
class OrdinaryUser {
 public:
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
#ifdef _WIN32
  OrdinaryUser() = default;
  ~OrdinaryUser() {}
#else
  OrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (isAdministrator && seteuid(nobody) != 0) {
      throw std::runtime_error("an administrator cannot become an ordinary user");
    }
  }
  ~OrdinaryUser() {
    if (isAdministrator && seteuid(0) != 0) {
      std::abort();
    }
  }

 private:
  bool isAdministrator = geteuid() == 0;
#endif
};

}  // namespace tests
