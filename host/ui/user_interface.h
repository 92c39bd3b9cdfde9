// Everything on screen: workspaces, command definitions, message boxes, the idle selection and the application-wide
// command events.
#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

#include "host/runtime/object.h"
#include "host/runtime/profile.h"
#include "host/ui/command_definitions.h"
#include "host/ui/command_runner.h"
#include "host/ui/events.h"
#include "host/ui/inputs.h"
#include "host/ui/message_boxes.h"
#include "host/ui/progress_dialogs.h"
#include "host/ui/toolbar.h"

namespace headless {

/// What is selected while no command runs.
class IdleSelection final : public HostObject<adsk::core::Selections> {
 public:
  adsk::core::Ptr<adsk::core::Selection> item(size_t index) const override;
  size_t count() const override;
  bool add(const adsk::core::Ptr<adsk::core::Base>& entity) override;
  bool clear() override;

  /// For the host's own use.
  void drop();
  /// False when there is nothing to select, or when it is selected already.
  bool pick(const adsk::core::Ptr<adsk::core::Base>& entity);
  /// False when it is not selected.
  bool unpick(const adsk::core::Ptr<adsk::core::Base>& entity);
  const std::vector<adsk::core::Ptr<SelectionObject>>& picked() const { return selections; }

 private:
  std::vector<adsk::core::Ptr<SelectionObject>> selections;
};

/// The user interface of one host.
class UserInterfaceObject final : public HostObject<adsk::core::UserInterface> {
 public:
  UserInterfaceObject(const Profile& hostProfile, Boundary& boundary);
  ~UserInterfaceObject() override;

  adsk::core::Ptr<adsk::core::Workspaces> workspaces() const override;
  adsk::core::Ptr<adsk::core::CommandDefinitions> commandDefinitions() const override;
  adsk::core::Ptr<adsk::core::ApplicationCommandEvent> commandTerminated() const override;
  adsk::core::Ptr<adsk::core::ApplicationCommandEvent> commandCreated() const override;
  adsk::core::Ptr<adsk::core::ApplicationCommandEvent> commandStarting() const override;
  adsk::core::DialogResults messageBox(const std::string& text, const std::string& title,
                                       adsk::core::MessageBoxButtonTypes buttons,
                                       adsk::core::MessageBoxIconTypes icon) const override;
  adsk::core::Ptr<adsk::core::ProgressDialog> createProgressDialog() override;
  std::string activeCommand() const override;
  adsk::core::Ptr<adsk::core::Selections> activeSelections() const override;

  /// For the host's own use.
  WorkspacesObject& workspaceList() const { return *workspaces_.get(); }
  DefinitionsObject& definitions() const { return *definitions_.get(); }
  IdleSelection& idleSelection() const { return *idleSelection_.get(); }
  CommandRunner& runner() { return runner_; }
  const CommandRunner& runner() const { return runner_; }
  MessageBoxes& boxes() const { return boxes_; }
  /// The progress dialog that is shown, the newest if there are several; nullptr when there is none.
  ProgressDialogObject* shownProgress() const;
  std::size_t terminatedHandlerCount() const { return terminated->handlerCount(); }
  /// A sentence for each application-wide event, and each definition's, that handlers are attached to.
  std::vector<std::string> attachedHandlers() const;
  /// Every object on screen answers with nothing from now on.
  void close();

 private:
  adsk::core::Ptr<ApplicationCommandEventObject> starting;
  adsk::core::Ptr<ApplicationCommandEventObject> created;
  adsk::core::Ptr<ApplicationCommandEventObject> terminated;
  CommandRunner runner_;
  adsk::core::Ptr<WorkspacesObject> workspaces_;
  adsk::core::Ptr<DefinitionsObject> definitions_;
  adsk::core::Ptr<IdleSelection> idleSelection_;
  std::vector<adsk::core::Ptr<ProgressDialogObject>> progressDialogs;
  mutable MessageBoxes boxes_;
};

}  // namespace headless
