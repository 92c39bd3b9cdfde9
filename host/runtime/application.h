// The application object and the signed-in user.
#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <utility>

#include "host/runtime/host.h"
#include "host/runtime/object.h"

namespace headless {

class UserObject final : public HostObject<adsk::core::User> {
 public:
  explicit UserObject(Account signedIn) : account(std::move(signedIn)) {}
  std::string displayName() const override;
  std::string userName() const override;
  std::string userId() const override;
  std::string email() const override;

 private:
  Account account;
};

/// A product that is no design.
class OtherProduct final : public HostObject<adsk::core::Product> {};

/// Answers for one host; marked as deleted when the host goes.
class ApplicationObject final : public HostObject<adsk::core::Application> {
 public:
  explicit ApplicationObject(Host& owner) : host(owner) {}

  adsk::core::Ptr<adsk::core::UserInterface> userInterface() const override;
  adsk::core::Ptr<adsk::core::Product> activeProduct() const override;
  adsk::core::Ptr<adsk::core::Documents> documents() const override;
  adsk::core::Ptr<adsk::core::MaterialLibraries> materialLibraries() const override;
  adsk::core::Ptr<adsk::core::User> currentUser() const override;
  std::string userName() const override;
  std::string userId() const override;
  int getLastError(std::string* description) const override;

 private:
  Host& host;
};

}  // namespace headless
