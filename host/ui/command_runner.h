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

  /// The command that runs; empty when idle.
  const adsk::core::Ptr<CommandObject>& active() const { return active_; }
  bool isDialogOpen() const { return active_ && active_->isShown; }

  /// True while handlers of a command's own events are called, which may not do everything.
  bool isInCommandEvent() const { return firing == Firing::CommandEvent; }

  /// OK: executes and ends the active command.
  void confirm();
  /// Ends the active command without executing it.
  void end(adsk::core::CommandTerminationReason reason);
  /// Does `work`, such as closing a document, as one: commands that handlers start meanwhile wait until it is done.
  void withoutRestarts(const std::function<void()>& work);
  /// Ends the active command, and starts none any more that was to be started later.
  void close();

  /// Reports that the user changed an input, and does all that follows from it.
  void changedByUser(InputCore& input);
  /// To be called after every change of the design.
  void modelEdited();
  /// Puts entities into the selection input of the active command, as the pre-selection.
  std::function<void(SelectionInput&)> fillPreselection = nullptr;
  /// Shows the message of an execution that failed.
  std::function<void(const std::string&)> showFailure = nullptr;

  void changedByProgram(CommandObject& command, InputCore& input) override;
  void selectionCleared(CommandObject& command, InputCore& input) override;
  bool executeByProgram(CommandObject& command, bool terminate) override;

 private:
  enum class Execution { Done, Failed };
  // Whose handlers are being called, as that decides what they may do.
  enum class Firing { Nothing, CommandEvent, TerminatedEvent };

  void preEmpt();
  void show(CommandObject& command);
  Execution execute(CommandObject& command);
  // Whether changes by program are reported at this stage of the command.
  bool mayEcho(const CommandObject& command) const;
  void fireInputChanged(CommandObject& command, InputCore& input);
  void fireCommandEvent(CommandEventObject& event, CommandObject& command,
                        adsk::core::CommandTerminationReason reason = adsk::core::UnknownTerminationReason);
  void fireTerminated(DefinitionObject& definition, adsk::core::CommandTerminationReason reason);
  bool comesToRest(const InputCore& input);
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
  Firing firing = Firing::Nothing;
  int inputChangedDepth = 0;
  // Input-changed events since the outermost one began.
  int nestedEvents = 0;
  bool isExecuting = false;
  bool areRestartsHeld = false;
  bool isWorkingOff = false;
  bool isClearingPlanned = false;
  std::deque<std::function<void()>> waiting;
};

}  // namespace headless
