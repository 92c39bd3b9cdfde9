// Class User.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

/// The signed-in user. All members are documented.
class User : public Base {
  ADSK_API_CLASS(User, Base)

  /// Name as shown by the host; free text.
  virtual std::string displayName() const = 0;
  /// User name of the account.
  virtual std::string userName() const = 0;
  /// Internal name of the account; stable for one user.
  virtual std::string userId() const = 0;
  /// E-mail address of the account.
  virtual std::string email() const = 0;
};

}  // namespace core
}  // namespace adsk
