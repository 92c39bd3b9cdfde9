#include "host/cli/sitting.h"

#include <cstdio>
#include <fstream>
#include <utility>

#include "host/cli/design_files.h"
#include "host/cli/dialog_ids.h"
#include "host/cli/failure.h"
#include "host/files/error.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* materialsFolder = "resources/Libs/Materials";

std::shared_ptr<const model::Material> materialNamed(const MaterialStore& store, const std::string& name) {
  std::shared_ptr<const model::Material> found;
  store.firstLibrary([&](const model::Library& library) {
    for (const auto& material : library.materials) {
      if (material->name == name) {
        found = material;
        return true;
      }
    }
    return false;
  });
  return found;
}

std::string describe(const BoundaryError& error) {
  std::string text = "  in " + error.where + ": " + error.kind;
  return error.what.empty() || error.what == error.kind ? text : text + ": " + error.what;
}

void printCounts(const CallGate& gate) {
  std::fprintf(stderr, "%zu calls of the host\n", gate.callCount());
  for (const auto& [name, count] : gate.countsByName()) {
    std::fprintf(stderr, "%10zu  %s\n", count, name.c_str());
  }
}

}  // namespace

Sitting::Sitting(const SittingOptions& sittingOptions)
    : options(sittingOptions),
      addIn_(options.addInFolder.empty() ? addInFolderBesideProgram() : options.addInFolder,
             options.keepsSettings ? AddInCopy::Settings::Kept : AddInCopy::Settings::Fresh) {
  if (!options.traceFile.empty()) {
    traceOutput.emplace(options.traceFile);
    isTraceDue = true;
  }
  session_ = std::make_unique<Session>(profileNamed(options.profile));
  if (traceOutput) {
    session_->host().gate().startJournal();
  }
  loadMaterialLibraries();
}

Sitting::~Sitting() {
  if (isRunning) {
    session_->stopAddIn();
  }
  if (options.countsCalls) {
    printCounts(session_->host().gate());
  }
  try {
    finish();
  } catch (const std::exception& error) {
    // Goes no further when the program is being ended from outside, and nothing went wrong.
    traceOutput.reset();
    std::fprintf(stderr, "The calls were not recorded: %s\n", error.what());
  }
}

// Loaded before the design is read, so that its materials and those that the add-in will assign are the same objects.
void Sitting::loadMaterialLibraries() {
  std::error_code isMissing;
  for (const auto& entry : fs::directory_iterator(addIn_.folder() / materialsFolder, isMissing)) {
    if (entry.is_regular_file()) {
      session_->host().materials().load(entry.path().u8string());
    }
  }
}

void Sitting::open(const fs::path& file) {
  const MaterialStore& store = session_->host().materials();
  ProgressLine line(progress(), "Reading", file.u8string());
  auto design = readDesign(
      file, [&](const std::string& name) { return materialNamed(store, name); }, line.reporter());
  session_->openDesign(std::move(design));
  openFile = file;
}

void Sitting::startAddIn() {
  session_->loadAddIn(addIn_.module());
  isRunning = true;
  const bool isStarted = session_->runAddIn();
  requireNoErrors("the add-in was starting");
  if (!isStarted) {
    throw Failure("The add-in " + addIn_.module().u8string() + " did not start.");
  }
}

void Sitting::stopAddIn() {
  isRunning = false;
  session_->stopAddIn();
  session_->unloadAddIn();
  requireNoErrors("the add-in was stopping");
}

void Sitting::openDialog() {
  session_->press(ids::mainButton);
  requireNoErrors("the dialog was being built");
  if (!session_->isDialogOpen()) {
    throw Failure("The add-in's button was pressed, but no dialog opened.");
  }
}

void Sitting::closeDialog() {
  if (session_->isDialogOpen()) {
    session_->pressCancel();
  }
  requireNoErrors("the dialog was closing");
}

void Sitting::requireNoErrors(const std::string& doing) {
  const std::vector<BoundaryError> errors = session_->takeErrors();
  if (errors.empty()) {
    return;
  }
  std::string message = "Something was raised while " + doing + ":";
  for (const BoundaryError& error : errors) {
    message += "\n" + describe(error);
  }
  for (const std::string& problem : session_->host().materials().loadProblems()) {
    message += "\n  not loaded: " + problem;
  }
  throw Failure(message);
}

void Sitting::finish() {
  if (!std::exchange(isTraceDue, false)) {
    return;
  }
  std::ofstream stream(traceOutput->path(), std::ios::binary);
  stream << session_->host().gate().journalText();
  stream.close();
  if (!stream) {
    throw files::Error("Cannot write \"" + options.traceFile.u8string() + "\": the disk may be full.");
  }
  traceOutput->commit();
}

}  // namespace headless::cli
