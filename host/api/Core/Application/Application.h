// Class Application.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Documents;
class MaterialLibraries;
class Product;
class User;
class UserInterface;

/// The running CAD program; there is one. All members are documented unless marked.
class Application : public Base {
  ADSK_API_CLASS(Application, Base)

  /// The running application; empty when there is none.
  static Ptr<Application> get();
  /// Everything on screen; empty when the host runs without an interface.
  virtual Ptr<UserInterface> userInterface() const = 0;
  /// What is being edited, a Design or something else; empty when no document is open.
  virtual Ptr<Product> activeProduct() const = 0;
  /// All documents that are open.
  virtual Ptr<Documents> documents() const = 0;
  /// All material libraries available now.
  virtual Ptr<MaterialLibraries> materialLibraries() const = 0;
  /// The signed-in user; empty when nobody is signed in (the latter assumed).
  virtual Ptr<User> currentUser() const = 0;
  /// Account name of the signed-in user; empty text when nobody is signed in (the latter assumed).
  virtual std::string userName() const = 0;
  /// Internal account name of that user; empty text when nobody is signed in (the latter assumed).
  virtual std::string userId() const = 0;
  /// Number of the last error (GenericErrors) and, on request, its text in English; 0 and no text when there was none.
  /// It stays until the next error (assumed).
  virtual int getLastError(std::string* description = nullptr) const = 0;
};

}  // namespace core
}  // namespace adsk
