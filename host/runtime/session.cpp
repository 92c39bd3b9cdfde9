#include "host/runtime/session.h"

#include <utility>

namespace headless {

namespace {

// What the host tells the entry points.
constexpr const char* startContext = "{\"IsApplicationStartup\": false}";
constexpr const char* stopContext = "{\"IsApplicationClosing\": false}";

}  // namespace

Session::Session(Profile profile) : host_(std::make_unique<Host>(std::move(profile))) {}

Session::~Session() {
  unloadAddIn();
}

void Session::loadAddIn(const std::filesystem::path& moduleFile) {
  if (module_ != nullptr) {
    throw UserError("the add-in is loaded already: " + moduleFile_.string());
  }
  module_ = std::make_unique<Module>(moduleFile);
  moduleFile_ = moduleFile;
}

bool Session::runAddIn() {
  const Module& module = loadedModule();
  note("starts the add-in");
  bool result = false;
  host_->boundary().run("run", [&] { result = module.run(startContext); });
  checkHost();
  return result;
}

bool Session::stopAddIn() {
  const Module& module = loadedModule();
  note("stops the add-in");
  bool result = false;
  host_->boundary().run("stop", [&] { result = module.stop(stopContext); });
  if (host_->profile().attachedHandlersReported) {
    for (const std::string& sentence : host_->ui().attachedHandlers()) {
      host_->boundary().report("stop", sentence);
    }
  }
  checkHost();
  return result;
}

void Session::unloadAddIn() {
  if (module_ == nullptr) {
    return;
  }
  host_->ui().runner().withoutRestarts([this] {
    host_->ui().runner().end(adsk::core::SessionEndingTerminationReason);
    module_ = nullptr;
  });
  if (Module::isResident(moduleFile_)) {
    host_->boundary().report("unload", "something keeps the module in memory: " + moduleFile_.string());
  }
}

bool Session::runScript(const std::filesystem::path& moduleFile) {
  note("runs the script " + moduleFile.filename().u8string());
  bool result = false;
  {
    const Module module(moduleFile);
    host_->boundary().run("run", [&] { result = module.run(startContext); });
  }
  if (Module::isResident(moduleFile)) {
    host_->boundary().report("unload", "something keeps the script in memory: " + moduleFile.string());
  }
  if (isProgressShown()) {
    host_->boundary().report("run", "the script left its progress dialog behind: " + progress().title);
    progressDialog().takeAway();
  }
  checkHost();
  return result;
}

ProgressView Session::progress() const {
  progressDialog();
  return *viewProgress(host_->ui());
}

void Session::cancelProgress() {
  note("cancels the progress dialog");
  ProgressDialogObject& dialog = progressDialog();
  if (!dialog.hasCancelButton()) {
    throw UserError("the progress dialog has no Cancel button");
  }
  dialog.pressCancel();
}

ProgressDialogObject& Session::progressDialog() const {
  ProgressDialogObject* dialog = host_->ui().shownProgress();
  if (dialog == nullptr) {
    throw UserError("no progress dialog is shown");
  }
  return *dialog;
}

void Session::openDesign(std::unique_ptr<model::Design> design) {
  note("opens " + design->name);
  host_->open(std::move(design));
}

void Session::closeDocument() {
  note("closes the document");
  host_->closeDocument();
  checkHost();
}

model::Design& Session::design() {
  if (host_->document() == nullptr) {
    throw UserError("no document is open");
  }
  return *host_->document()->design;
}

void Session::press(const std::string& commandId) {
  note("presses " + commandId);
  DefinitionObject& definition = definitionOfButton(commandId);
  if (!definition.isUsable()) {
    throw UserError("the button " + commandId + " is greyed out");
  }
  host_->ui().runner().start(definition);
  checkHost();
}

// The first button that can be seen and is not dead.
DefinitionObject& Session::definitionOfButton(const std::string& commandId) const {
  bool isDead = false;
  for (const auto& workspace : host_->ui().workspaceList().all()) {
    for (const PanelObject* panel : workspace->panels()) {
      const ControlObject* control = panel->controlList().find(commandId);
      if (control == nullptr || !control->visible || !control->definition().isShown()) {
        continue;
      }
      if (control->definition().isAlive()) {
        return control->definition();
      }
      isDead = true;
    }
  }
  throw UserError(isDead ? "the button " + commandId + " is dead: its command definition was deleted"
                         : "there is no button " + commandId + " in the toolbar");
}

void Session::undo() {
  note("undoes");
  stepThrough(&model::History::undo, "there is nothing to undo");
}

void Session::redo() {
  note("redoes");
  stepThrough(&model::History::redo, "there is nothing to redo");
}

// With a dialog open, its transaction stands around what may be undone: nothing of its own is undone here.
void Session::stepThrough(bool (model::History::*step)(), const char* whenThereIsNone) {
  design();
  model::History& history = host_->document()->history;
  if (history.hasPendingChanges()) {
    throw UserError("the open command has changes that are not executed yet: close it first");
  }
  const bool wasOpen = history.isOpen();
  if (wasOpen) {
    history.rollback();
  }
  const bool isDone = (history.*step)();
  if (wasOpen) {
    history.begin();
  }
  if (!isDone) {
    throw UserError(whenThereIsNone);
  }
}

DialogView Session::dialog() const {
  auto view = viewDialog(host_->ui());
  if (!view) {
    throw UserError("no dialog is open");
  }
  return std::move(*view);
}

InputView Session::input(const std::string& inputId) const {
  const DialogView view = dialog();
  const InputView* found = view.find(inputId);
  if (found == nullptr) {
    throw UserError("the dialog has no input " + inputId);
  }
  return *found;
}

const Module& Session::loadedModule() const {
  if (module_ == nullptr) {
    throw UserError("no add-in is loaded");
  }
  return *module_;
}

void Session::note(const std::string& action) {
  host_->gate().note("the user " + action);
}

void Session::checkHost() {
  for (const std::string& sentence : host_->inconsistencies()) {
    host_->boundary().report("host", sentence);
  }
}

}  // namespace headless
