// The headless host: one application with its user interface, its material libraries and the document that is open.
// There is one at a time; while it lives, Application::get() gives its application.
#pragma once

#include <Core/CoreAll.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/entities/entity_store.h"
#include "host/entities/material_store.h"
#include "host/model/design.h"
#include "host/model/history.h"
#include "host/runtime/boundary.h"
#include "host/runtime/call_gate.h"
#include "host/runtime/profile.h"
#include "host/ui/user_interface.h"

namespace headless {

/// The account that is signed in.
struct Account {
  std::string userId = "USER";
  std::string userName = "user";
  std::string displayName = "User";
  std::string email = "user@example.com";
};

/// What the application object answers with; tests empty parts of it.
struct ApplicationState {
  bool hasUserInterface = true;
  std::optional<Account> account = Account{};
  /// Something other than a design is active, such as a drawing.
  bool isOtherProductActive = false;
};

/// An open document: the design, its history and the handles to its entities.
struct Document {
  std::unique_ptr<model::Design> design;
  model::History history;
  std::unique_ptr<EntityStore> entities;
};

class ApplicationObject;

class Host {
 public:
  explicit Host(Profile hostProfile);
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  /// The host that lives; nullptr when there is none.
  static Host* current();

  const Profile& profile() const { return profile_; }
  CallGate& gate() { return gate_; }
  Boundary& boundary() { return boundary_; }
  UserInterfaceObject& ui() const { return *ui_.get(); }
  MaterialStore& materials() { return *materials_; }
  ApplicationState& state() { return state_; }
  adsk::core::Ptr<adsk::core::Application> application() const;

  /// The open document; nullptr when there is none.
  Document* document() const { return document_.get(); }
  /// Opens a design; the document that was open is closed.
  void open(std::unique_ptr<model::Design> design);
  /// Ends the running command and closes the document, if there is one.
  void closeDocument();

  /// What is wrong with the host itself, as sentences: ids that are not unique, several selected items in a
  /// single-choice list, and the like. Empty when all is well.
  std::vector<std::string> inconsistencies() const;

 private:
  // Empty for none.
  void replaceDocument(std::unique_ptr<model::Design> design);

  Profile profile_;
  CallGate gate_;
  Boundary boundary_;
  ApplicationState state_;
  adsk::core::Ptr<UserInterfaceObject> ui_;
  std::unique_ptr<MaterialStore> materials_;
  std::unique_ptr<Document> document_;
  adsk::core::Ptr<ApplicationObject> application_;
};

}  // namespace headless
