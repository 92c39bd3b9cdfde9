// Runs commands: starts, executes and ends them, fires their events in the documented order, and keeps what they change
// in one transaction. Only one command is active; starting another ends it.
#pragma once

#include <Core/CoreAll.h>

#include <deque>
#include <functional>
#include <string>

#include "host/model/history.h"
#include "host/runtime/boundary.h"
#include "host/runtime/profile.h"
#include "host/ui/command.h"
#include "host/ui/command_definitions.h"
#include "host/ui/events.h"

namespace headless {

/// The application-wide events that the runner fires; owned by the user interface.
struct ApplicationEvents {
  ApplicationCommandEventObject& starting;
  ApplicationCommandEventObject& created;
  ApplicationCommandEventObject& terminated;
};

/// Works for one host; everything it is given must outlive it.
class CommandRunner final : public CommandListener {
 public:
  CommandRunner(const Profile& hostProfile, Boundary& hostBoundary, ApplicationEvents applicationEvents)
      : profile(hostProfile), boundary(hostBoundary), events(applicationEvents) {}

  /// The history of the open design; nullptr when there is none.
  void useHistory(model::History* designHistory) { history = designHistory; }

  /// Starts the command of a definition, as a click on its button does. False when it was stopped before it began.
  bool start(DefinitionObject& definition);
  /// The same on behalf of the add-in, which may not do so inside a command's own events.
  bool startByProgram(DefinitionObject& definition);

  /// The command whose dialog is open; empty when idle.
  const adsk::core::Ptr<CommandObject>& active() const { return active_; }

  /// OK: executes and ends the active command.
  void confirm();
  /// Ends the active command without executing it.
  void end(adsk::core::CommandTerminationReason reason);

  /// Reports that the user changed an input, and does all that follows from it.
  void changedByUser(InputCore& input);
  /// To be called after every change of the design.
  void modelEdited();
  /// Puts entities into the selection input of the active command, as the pre-selection.
  std::function<void(SelectionInput&)> fillPreselection = nullptr;

  void changedByProgram(CommandObject& command, InputCore& input) override;
  void selectionCleared(CommandObject& command, InputCore& input) override;
  bool executeByProgram(CommandObject& command, bool terminate) override;

 private:
  enum class Execution { Done, Failed };

  void show(CommandObject& command);
  Execution execute(CommandObject& command);
  void fireInputChanged(CommandObject& command, InputCore& input);
  void fireCommandEvent(CommandEventObject& event, CommandObject& command,
                        adsk::core::CommandTerminationReason reason = adsk::core::UnknownTerminationReason);
  void later(std::function<void()> work) { waiting.push_back(std::move(work)); }
  void workOffWaiting();
  void clearSelection(CommandObject& command);
  void clearSelectionAfterEvent(CommandObject& command);
  bool isRunning(const CommandObject& command) const { return active_.get() == &command; }

  const Profile& profile;
  Boundary& boundary;
  ApplicationEvents events;
  model::History* history = nullptr;
  adsk::core::Ptr<CommandObject> active_;
  int eventDepth = 0;
  int inputChangedDepth = 0;
  bool isFiringTerminated = false;
  bool isClearingPlanned = false;
  std::deque<std::function<void()>> waiting;
};

}  // namespace headless
