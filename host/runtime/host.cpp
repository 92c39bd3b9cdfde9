#include "host/runtime/host.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

#include "host/libraries/native_library.h"
#include "host/runtime/application.h"
#include "host/runtime/documents.h"

namespace headless {

using adsk::core::Ptr;

namespace {

Host* currentHost = nullptr;

class Findings {
 public:
  void require(bool holds, const std::string& sentence) {
    if (!holds) {
      sentences.push_back(sentence);
    }
  }
  std::vector<std::string> sentences;
};

void checkList(const ListItemsObject& list, Findings& findings) {
  std::size_t selected = 0;
  for (const auto& item : list.all()) {
    selected += item->selected ? 1 : 0;
    findings.require(item->isAlive(), "the list " + list.owner() + " holds an item that was deleted");
  }
  findings.require(!list.rules().isSingleChoice || selected <= 1,
                   "the single-choice list " + list.owner() + " has several selected items");
}

void checkCommand(CommandObject& command, Findings& findings) {
  for (const auto& [id, input] : command.inputsById()) {
    if (const auto* dropDown = dynamic_cast<const DropDownInput*>(input)) {
      checkList(dropDown->list(), findings);
    } else if (const auto* row = dynamic_cast<const ButtonRowInput*>(input)) {
      checkList(row->list(), findings);
    } else if (const auto* selection = dynamic_cast<const SelectionInput*>(input)) {
      for (const auto& each : selection->picked()) {
        findings.require(each->isAlive(), "the input " + id + " holds a selection that was cleared");
      }
    }
  }
}

void checkToolbar(const UserInterfaceObject& ui, Findings& findings) {
  for (const auto& workspace : ui.workspaceList().all()) {
    std::set<std::string> panelIds;
    for (const PanelObject* panel : workspace->panels()) {
      findings.require(panelIds.insert(panel->panelId()).second, "two panels have the id " + panel->panelId());
      std::set<std::string> controlIds;
      for (const auto& control : panel->controlList().all()) {
        findings.require(controlIds.insert(control->controlId()).second,
                         "two controls of the panel " + panel->panelId() + " have the id " + control->controlId());
      }
    }
  }
  std::set<std::string> definitionIds;
  for (const auto& definition : ui.definitions().all()) {
    findings.require(definitionIds.insert(definition->texts().id).second,
                     "two command definitions have the id " + definition->texts().id);
  }
}

}  // namespace

Host::Host(Profile hostProfile)
    : profile_(std::move(hostProfile)),
      ui_(makeObject<UserInterfaceObject>(profile_, boundary_)),
      materials_(std::make_unique<MaterialStore>(profile_)),
      application_(makeObject<ApplicationObject>(*this)),
      documentList(makeObject<DocumentsObject>(*this)) {
  if (currentHost != nullptr) {
    throw std::logic_error("there is a host already; only one can live at a time");
  }
  currentHost = this;
  materials_->setNative({libraries::nativeLibrary()});
  WorkspaceObject& workspace = ui_->workspaceList().add("FusionSolidEnvironment", "DESIGN", profile_);
  workspace.addTab("SolidTab", "SOLID");
  workspace.toolsTab();
  ui_->definitions().addNative("SelectCommand", "Select");
}

Host::~Host() {
  ui_->close();
  leaveDocument(adsk::core::SessionEndingTerminationReason);
  documents_.clear();
  documentList->markDeleted();
  application_->markDeleted();
  currentHost = nullptr;
}

Host* Host::current() {
  return currentHost;
}

Ptr<adsk::core::Application> Host::application() const {
  return Ptr<adsk::core::Application>(application_);
}

void Host::open(std::unique_ptr<model::Design> design) {
  ui_->runner().withoutRestarts([&] {
    Document* before = active_;
    leaveDocument(adsk::core::SessionEndingTerminationReason);
    forget(before);
    activate(keep(std::move(design)));
  });
}

Document& Host::openNew(std::unique_ptr<model::Design> design) {
  ui_->runner().withoutRestarts([&] {
    leaveDocument(adsk::core::PreEmptedTerminationReason);
    Document& made = keep(std::move(design));
    made.isSaved = false;
    activate(made);
  });
  return *active_;
}

void Host::closeDocument() {
  ui_->runner().withoutRestarts([this] {
    Document* closed = active_;
    leaveDocument(adsk::core::SessionEndingTerminationReason);
    forget(closed);
    if (!documents_.empty()) {
      activate(*documents_.back());
    }
  });
}

void Host::close(Document& document) {
  if (&document == active_) {
    closeDocument();
  } else {
    forget(&document);
  }
}

Ptr<adsk::core::Documents> Host::documents() const {
  return Ptr<adsk::core::Documents>(documentList);
}

void Host::workOffEvents() {
  if (whileBusy) {
    boundary_.run("doEvents", whileBusy);
  }
}

void Host::leaveDocument(adsk::core::CommandTerminationReason reason) {
  ui_->runner().end(reason);
  ui_->runner().useHistory(nullptr);
  ui_->idleSelection().drop();
  active_ = nullptr;
}

// The handles to a document and to all that is in it end here. None is forgotten for nullptr.
void Host::forget(const Document* document) {
  documents_.erase(
      std::remove_if(documents_.begin(), documents_.end(), [&](const auto& each) { return each.get() == document; }),
      documents_.end());
}

Document& Host::keep(std::unique_ptr<model::Design> design) {
  // Expanding now shows a design that is too large here, and not inside a call of the add-in.
  design->root().occurrences();
  auto kept = std::make_unique<Document>();
  kept->name = design->name;
  kept->design = std::move(design);
  kept->entities = std::make_unique<EntityStore>(*kept->design, kept->history, *materials_, profile_);
  kept->handle = makeObject<DocumentObject>(*this, *kept);
  kept->history.onChange = [this] {
    ui_->idleSelection().drop();
    ui_->runner().modelEdited();
  };
  return *documents_.emplace_back(std::move(kept));
}

void Host::activate(Document& document) {
  active_ = &document;
  ui_->runner().useHistory(&document.history);
}

std::vector<std::string> Host::inconsistencies() const {
  Findings findings;
  checkToolbar(*ui_.get(), findings);
  if (ui_->runner().active()) {
    checkCommand(*ui_->runner().active().get(), findings);
  }
  return std::move(findings.sentences);
}

}  // namespace headless
