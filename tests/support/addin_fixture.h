// The fixture that all tests of the add-in share: a fresh host with a fresh module in a folder of its own, driven as a
// person drives it. When the test ends, nothing may have been raised that was not taken with takeErrors(), the host
// must be consistent, and the module must have left the process.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/runtime/session.h"
#include "tests/support/addin_folder.h"
#include "tests/support/designs.h"
#include "tests/support/libraries.h"
#include "tests/support/tables.h"
#include "tests/support/usual_profile.h"

namespace tests {

/// What is in the libraries that the fixture puts beside the module.
inline const std::vector<std::string> ralNames = {"RAL 1000 Green beige", "RAL 3000 Flame red", "RAL 3001 Signal red",
                                                  "RAL 5015 Sky blue", "RAL 9005 Jet black"};
inline const std::vector<TestMaterial> metals = {
    {"Steel 37", 7850},          {"Aluminium 6061", 2700},         {"Foam", 999.99},  {"Aerogel", 0.25},
    {"Unknown alloy", 0, false}, {"Odd alloy", 0, false, "heavy"}, {"Antimatter", -1}};

class AddInTest : public ::testing::Test {
 protected:
  /// The folder holds the library RAL_COLORS (ralNames) and the material library "Metals" (metals).
  AddInTest();
  ~AddInTest() override;

  /// Starts a host with that profile, opens the machine of designs.h, and loads and runs the add-in, which must
  /// succeed.
  void start(headless::Profile profile = usualProfile());
  /// The same with another design.
  void start(std::unique_ptr<headless::model::Design> design, headless::Profile profile = usualProfile());
  /// The same without opening anything or running the add-in: it is only loaded.
  void load(headless::Profile profile = usualProfile());
  /// Ends the session, as when the host is closed: the module is stopped and unloaded. start() may follow.
  void finish();

  /// Presses the main button. With start(), the dialog must open without anything being raised.
  void openDialog();
  /// start() and openDialog() in one.
  void startDialog(headless::Profile profile = usualProfile());

  headless::Session& session();
  headless::Host& host() { return session().host(); }
  headless::model::Design& design() { return session().design(); }
  headless::model::History& history() { return host().document()->history; }

  /// What the dialog shows in an input: the text of a text box, the value of a line, the selected name of a list.
  std::string shown(const std::string& inputId);
  /// A text box's content with its markup.
  std::string markup(const std::string& inputId) { return session().input(inputId).content; }
  bool isEnabled(const std::string& inputId) { return session().input(inputId).isEnabled; }
  /// Names of the items of a list, in order.
  std::vector<std::string> itemsOf(const std::string& inputId);

  /// The look that is applied to an object itself; empty text when there is none.
  std::string ownLook(const headless::model::Body& body) const { return nameOf(body.appearance); }
  std::string ownLook(const headless::model::Face& face) const { return nameOf(face.appearance); }
  std::string ownLook(const headless::model::Occurrence& occurrence) const { return nameOf(occurrence.appearance); }
  headless::model::Body& body(const std::string& component, const std::string& name) {
    return bodyNamed(design(), component, name);
  }
  headless::model::Occurrence& occurrence(const std::string& fullPath) { return occurrenceAt(design(), fullPath); }

  /// Applies a look to an object before the dialog is opened, as if it had been done long ago: no undo step.
  static std::shared_ptr<const headless::model::Appearance> look(const std::string& name);

  /// The errors so far, as "where: kind: what"; they no longer fail the test.
  std::vector<std::string> takeErrors();
  /// The kinds of the errors so far, such as "std::out_of_range".
  std::vector<std::string> takeErrorKinds();

  /// Name of the settings file of the signed-in user.
  static std::string settingsFile(const std::string& userId = "USER") { return "Tintora_" + userId + "_CmdSet.txt"; }
  /// Replaces the fixture's libraries of a kind ("Appearances" or "Materials") by none.
  void removeLibraries(const std::string& kind);
  void addAppearanceLibrary(const std::string& fileName, const std::string& libraryName,
                            const std::vector<std::string>& appearances);
  void addMaterialLibrary(const std::string& fileName, const std::string& libraryName,
                          const std::vector<TestMaterial>& materials);

  AddInFolder folder;
  /// Whether the calls are kept where journals are. Of a very deep design they are too long to write down.
  bool hasJournal = true;

 private:
  bool keepsOwnJournal() const;
  /// From the start of a journal on, libraries are to be found in the same order on every system.
  void listAsElsewhere() const;
  static std::string nameOf(const std::shared_ptr<const headless::model::Appearance>& appearance) {
    return appearance ? appearance->name : std::string();
  }
  void expectNoErrors();

  std::unique_ptr<headless::Session> session_;
};

/// The same under each of the three host profiles: TABLE_OF_PROFILES(MyTest).
class AddInUnderProfile : public AddInTest, public WithRow<std::string> {
 protected:
  headless::Profile profile() const { return headless::profileNamed(row()); }
};

}  // namespace tests

#define TABLE_OF_PROFILES(Fixture) TABLE(Profiles, Fixture, ::tests::byText, headless::profileNames())
