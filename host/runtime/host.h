// The headless host: one application with its user interface, its material libraries and the documents that are open.
// There is one at a time; while it lives, Application::get() gives its application.
#pragma once

#include <Core/CoreAll.h>

#include <functional>
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

class ApplicationObject;
class DocumentObject;
class DocumentsObject;

/// An open document: the design, its history and the handles to its entities.
struct Document {
  /// As shown on its tab.
  std::string name;
  /// False for one that a program made and that was never a file.
  bool isSaved = true;
  std::unique_ptr<model::Design> design;
  model::History history;
  std::unique_ptr<EntityStore> entities;
  adsk::core::Ptr<DocumentObject> handle;
};

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

  /// The document that is worked on; nullptr when none is open.
  Document* document() const { return active_; }
  /// Opens a design; the document that was worked on is closed.
  void open(std::unique_ptr<model::Design> design);
  /// Opens a design that was never saved; the other documents stay open behind it.
  Document& openNew(std::unique_ptr<model::Design> design);
  /// Ends the running command and closes the document that is worked on, if there is one. The one that was opened last
  /// among the others is worked on then.
  void closeDocument();
  /// Closes a document of this host.
  void close(Document& document);
  /// The API's collection of them.
  adsk::core::Ptr<adsk::core::Documents> documents() const;

  /// What a person does each time a module lets the host work off its events; may be empty.
  std::function<void()> whileBusy = nullptr;
  /// Lets the person act. What goes wrong in that is reported, and does not disturb the module.
  void workOffEvents();

  /// What is wrong with the host itself, as sentences: ids that are not unique, several selected items in a
  /// single-choice list, and the like. Empty when all is well.
  std::vector<std::string> inconsistencies() const;

 private:
  void leaveDocument(adsk::core::CommandTerminationReason reason);
  void forget(const Document* document);
  Document& keep(std::unique_ptr<model::Design> design);
  void activate(Document& document);

  Profile profile_;
  CallGate gate_;
  Boundary boundary_;
  ApplicationState state_;
  adsk::core::Ptr<UserInterfaceObject> ui_;
  std::unique_ptr<MaterialStore> materials_;
  // In the order in which they were opened.
  std::vector<std::unique_ptr<Document>> documents_;
  Document* active_ = nullptr;
  adsk::core::Ptr<ApplicationObject> application_;
  adsk::core::Ptr<DocumentsObject> documentList;
};

}  // namespace headless
