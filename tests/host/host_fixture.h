// The fixture of the headless host's own tests: a session without any add-in, in which the test itself is the client
// that calls the API. When the test ends, nothing may have been reported that was not taken with takeErrors().
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/runtime/session.h"
#include "tests/print_handles.h"
#include "tests/support/designs.h"
#include "tests/support/recording_handlers.h"

namespace tests {

class HostTest : public ::testing::Test {
 protected:
  HostTest() : session_(std::make_unique<headless::Session>()) {}
  ~HostTest() override {
    if (session_ != nullptr) {
      end();
    }
  }

  /// Starts anew with that profile.
  void start(headless::Profile profile) {
    end();
    session_ = std::make_unique<headless::Session>(std::move(profile));
  }
  /// The host ends; start() may follow.
  void end() {
    EXPECT_THAT(takeErrors(), testing::IsEmpty());
    session_ = nullptr;
  }

  headless::Session& session() { return *session_; }
  headless::Host& host() { return session().host(); }
  static headless::Profile profileWith(void (*change)(headless::Profile&)) {
    headless::Profile profile;
    change(profile);
    return profile;
  }
  adsk::core::Ptr<adsk::core::UserInterface> ui() const { return adsk::core::Application::get()->userInterface(); }
  adsk::core::Ptr<adsk::core::Workspace> workspace() const {
    return ui()->workspaces()->itemById("FusionSolidEnvironment");
  }
  /// The panel "Panel" of the tab "SolidTab", made on first use.
  adsk::core::Ptr<adsk::core::ToolbarPanel> panel() const {
    const auto panels = workspace()->toolbarTabs()->itemById("SolidTab")->toolbarPanels();
    const auto made = panels->add("Panel", "PANEL");
    return made ? made : panels->itemById("Panel");
  }
  /// A command with a button on the panel.
  std::unique_ptr<RecordedCommand> commandWithButton(const std::string& id) {
    auto command = std::make_unique<RecordedCommand>(ui(), id, log);
    panel()->controls()->addCommand(command->definition);
    return command;
  }
  /// What it said, or empty text when nothing was refused.
  static std::string refusalOf(const std::function<void()>& action) {
    try {
      action();
      return {};
    } catch (const headless::UserError& error) {
      return error.what();
    }
  }
  /// The errors so far, as "where: what"; they no longer fail the test.
  std::vector<std::string> takeErrors() {
    std::vector<std::string> texts;
    for (const headless::BoundaryError& error : session().takeErrors()) {
      texts.push_back(error.where + ": " + error.what);
    }
    return texts;
  }
  Log takeLog() { return std::exchange(log, {}); }

  Log log;

 private:
  std::unique_ptr<headless::Session> session_;
};

/// A host with the machine of designs.h open and a command "Dialog" whose dialog every test builds for itself.
class HostDialogTest : public HostTest {
 protected:
  HostDialogTest() { prepare(); }

  /// Starts anew with that profile.
  void start(headless::Profile profile) {
    dialog = nullptr;
    HostTest::start(std::move(profile));
    prepare();
  }

  using Inputs = adsk::core::Ptr<adsk::core::CommandInputs>;

  /// Opens a dialog with the inputs that `build` makes.
  void open(const std::function<void(const Inputs&)>& build) {
    dialog->build = [build](const adsk::core::Ptr<adsk::core::Command>& command) { build(command->commandInputs()); };
    session().press("Dialog");
    log.clear();
  }
  /// The input of the open dialog, as its kind.
  template <class Kind>
  adsk::core::Ptr<Kind> input(const std::string& id) const {
    return dialog->command->commandInputs()->itemById(id);
  }

  std::unique_ptr<RecordedCommand> dialog;

 private:
  void prepare() {
    session().openDesign(machine());
    dialog = commandWithButton("Dialog");
  }
};

}  // namespace tests
