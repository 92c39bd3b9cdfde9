#include "host/runtime/application.h"

namespace headless {

using adsk::core::Ptr;

std::string UserObject::displayName() const {
  return call("displayName", [this] { return account.displayName; });
}

std::string UserObject::userName() const {
  return call("userName", [this] { return account.userName; });
}

std::string UserObject::userId() const {
  return call("userId", [this] { return account.userId; });
}

std::string UserObject::email() const {
  return call("email", [this] { return account.email; });
}

Ptr<adsk::core::UserInterface> ApplicationObject::userInterface() const {
  return call("userInterface", [this]() -> Ptr<adsk::core::UserInterface> {
    return host.state().hasUserInterface ? Ptr<adsk::core::UserInterface>(&host.ui(), false) : nullptr;
  });
}

Ptr<adsk::core::Product> ApplicationObject::activeProduct() const {
  return call("activeProduct", [this]() -> Ptr<adsk::core::Product> {
    if (host.state().isOtherProductActive) {
      return makeObject<OtherProduct>();
    }
    return host.document() != nullptr ? Ptr<adsk::core::Product>(host.document()->entities->design()) : nullptr;
  });
}

Ptr<adsk::core::Documents> ApplicationObject::documents() const {
  return call("documents", [this] { return host.documents(); });
}

Ptr<adsk::core::MaterialLibraries> ApplicationObject::materialLibraries() const {
  return call("materialLibraries", [this] { return host.materials().libraries(); });
}

Ptr<adsk::core::User> ApplicationObject::currentUser() const {
  return call("currentUser", [this]() -> Ptr<adsk::core::User> {
    const auto& account = host.state().account;
    return account ? Ptr<adsk::core::User>(makeObject<UserObject>(*account)) : nullptr;
  });
}

std::string ApplicationObject::userName() const {
  return call("userName", [this] { return host.state().account ? host.state().account->userName : std::string(); });
}

std::string ApplicationObject::userId() const {
  return call("userId", [this] { return host.state().account ? host.state().account->userId : std::string(); });
}

int ApplicationObject::getLastError(std::string* description) const {
  return call("getLastError", [this, description]() -> int {
    const auto& misuses = host.gate().misuses();
    if (description != nullptr) {
      *description = misuses.empty() ? "" : misuses.back().reason;
    }
    return misuses.empty() ? adsk::core::Ok : adsk::core::UnderlyingObjectDeletedError;
  });
}

namespace {

class NamedValuesObject final : public HostObject<adsk::core::NamedValues> {};

}  // namespace

}  // namespace headless

namespace adsk {

void doEvents() {
  headless::CallGate::pass("adsk", nullptr, headless::Host::current() != nullptr, "doEvents", [] {
    headless::Host::current()->workOffEvents();
    return true;
  });
}

namespace core {

Ptr<Application> Application::get() {
  return headless::CallGate::pass(classType(), nullptr, headless::Host::current() != nullptr, "get",
                                  [] { return headless::Host::current()->application(); });
}

Ptr<NamedValues> NamedValues::create() {
  return headless::CallGate::pass(classType(), nullptr, true, "create",
                                  [] { return Ptr<NamedValues>(headless::makeObject<headless::NamedValuesObject>()); });
}

}  // namespace core
}  // namespace adsk
