#include "tests/support/addin_fixture.h"

#include <utility>

#include "host/win32/desktop.h"
#include "tests/support/journal.h"

namespace tests {

using headless::Profile;
using headless::Session;

AddInTest::AddInTest() {
  headless::desktop::reset();
  addAppearanceLibrary("RAL_COLORS.adsklib", "RAL_COLORS", ralNames);
  addMaterialLibrary("Metals.adsklib", "Metals", metals);
}

AddInTest::~AddInTest() {
  if (session_ != nullptr) {
    finish();
  }
}

bool AddInTest::keepsOwnJournal() const {
  return hasJournal && keepsJournals();
}

void AddInTest::listAsElsewhere() const {
  if (session_ != nullptr && keepsOwnJournal()) {
    folder.listLibrariesByName();
  }
}

void AddInTest::load(Profile profile) {
  session_ = std::make_unique<Session>(std::move(profile));
  if (keepsOwnJournal()) {
    listAsElsewhere();
    host().gate().startJournal();
  }
  session_->loadAddIn(folder.module());
}

void AddInTest::start(Profile profile) {
  start(machine(), std::move(profile));
}

void AddInTest::start(std::unique_ptr<headless::model::Design> design, Profile profile) {
  load(std::move(profile));
  session_->openDesign(std::move(design));
  ASSERT_TRUE(session_->runAddIn());
  expectNoErrors();
}

void AddInTest::finish() {
  if (session_->isAddInLoaded()) {
    session_->stopAddIn();
    session_->unloadAddIn();
  }
  if (keepsOwnJournal()) {
    keepJournal(host().gate().journalText(), folder.path());
  }
  expectNoErrors();
  session_ = nullptr;
}

void AddInTest::openDialog() {
  session().press("idAssetsMatMng");
  ASSERT_TRUE(session().isDialogOpen());
  expectNoErrors();
}

void AddInTest::startDialog(Profile profile) {
  start(std::move(profile));
  openDialog();
}

Session& AddInTest::session() {
  if (session_ == nullptr) {
    throw std::logic_error("the test has not started a host");
  }
  return *session_;
}

std::string AddInTest::shown(const std::string& inputId) {
  const headless::InputView view = session().input(inputId);
  return view.items.empty() ? view.text : view.selectedName();
}

std::vector<std::string> AddInTest::itemsOf(const std::string& inputId) {
  std::vector<std::string> names;
  for (const headless::ItemView& item : session().input(inputId).items) {
    names.push_back(item.name);
  }
  return names;
}

std::shared_ptr<const headless::model::Appearance> AddInTest::look(const std::string& name) {
  return std::make_shared<const headless::model::Appearance>(
      headless::model::Appearance{"look-" + name, name, {10, 20, 30, 255}});
}

std::vector<std::string> AddInTest::takeErrors() {
  std::vector<std::string> texts;
  for (const headless::BoundaryError& error : session().takeErrors()) {
    texts.push_back(error.where + ": " + error.kind + ": " + error.what);
  }
  return texts;
}

std::vector<std::string> AddInTest::takeErrorKinds() {
  std::vector<std::string> kinds;
  for (const headless::BoundaryError& error : session().takeErrors()) {
    kinds.push_back(error.kind);
  }
  return kinds;
}

void AddInTest::expectNoErrors() {
  for (const std::string& error : takeErrors()) {
    ADD_FAILURE() << error;
  }
}

void AddInTest::removeLibraries(const std::string& kind) {
  folder.remove("resources/Libs/" + kind);
  folder.makeFolder("resources/Libs/" + kind);
}

void AddInTest::addAppearanceLibrary(const std::string& fileName, const std::string& libraryName,
                                     const std::vector<std::string>& appearances) {
  folder.write(appearancesFolder / fileName, appearanceLibrary(libraryName, appearances));
  listAsElsewhere();
}

void AddInTest::addMaterialLibrary(const std::string& fileName, const std::string& libraryName,
                                   const std::vector<TestMaterial>& materials) {
  folder.write(materialsFolder / fileName, materialLibrary(libraryName, materials));
  listAsElsewhere();
}

}  // namespace tests
