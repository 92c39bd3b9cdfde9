#include "host/ui/command_runner.h"

#include <utility>

namespace headless {

using adsk::core::CommandTerminationReason;
using adsk::core::Ptr;

namespace {

// More events in a row than any dialog can mean: the add-in answers its own echo for ever.
constexpr int restLimit = 1000;

class DepthGuard {
 public:
  explicit DepthGuard(int& guarded) : depth(guarded) { ++depth; }
  ~DepthGuard() { --depth; }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;

 private:
  int& depth;
};

}  // namespace

bool CommandRunner::start(DefinitionObject& definition) {
  const Ptr<DefinitionObject> keptDefinition(&definition, false);
  const Ptr<ApplicationArguments> starting = makeObject<ApplicationArguments>(
      Ptr<adsk::core::Event>(&events.starting, false), keptDefinition, adsk::core::UnknownTerminationReason);
  {
    const DepthGuard guard(eventDepth);
    events.starting.fire(boundary, starting, definition.texts().id);
  }
  if (starting->stopped) {
    return false;
  }
  if (active_) {
    if (active_->options().isExecutedWhenPreEmpted && active_->areInputsValid()) {
      execute(*active_.get());
    }
    end(adsk::core::PreEmptedTerminationReason);
  }
  const Ptr<CommandObject> command = makeObject<CommandObject>(keptDefinition, profile, *this);
  active_ = command;
  if (history != nullptr) {
    history->begin();
  }
  {
    const DepthGuard guard(eventDepth);
    auto& created = definition.createdEvent();
    created.fire(boundary, makeObject<CreatedArguments>(Ptr<adsk::core::Event>(&created, false), command),
                 definition.texts().id);
    events.created.fire(boundary,
                        makeObject<ApplicationArguments>(Ptr<adsk::core::Event>(&events.created, false), keptDefinition,
                                                         adsk::core::UnknownTerminationReason),
                        definition.texts().id);
  }
  show(*command.get());
  workOffWaiting();
  return true;
}

void CommandRunner::show(CommandObject& command) {
  if (command.inputs().all().empty() && command.options().isAutoExecute) {
    confirm();
    return;
  }
  command.isShown = true;
  fireCommandEvent(*command.activateEvent.get(), command);
  SelectionInput* selection = command.selectionInput();
  if (profile.preselectionUsed && selection != nullptr && fillPreselection) {
    fillPreselection(*selection);
    if (!selection->picked().empty()) {
      fireInputChanged(command, *selection);
    }
  }
}

bool CommandRunner::startByProgram(DefinitionObject& definition) {
  const bool isInsideCommandEvent = eventDepth > 0 && !isFiringTerminated;
  if (isInsideCommandEvent) {
    boundary.report("CommandDefinition.execute",
                    "the add-in started " + definition.texts().id + " inside a command's own event");
    return false;
  }
  if (!isFiringTerminated || profile.executeFromTerminated == ExecuteFromTerminated::AtOnce) {
    return start(definition);
  }
  if (profile.executeFromTerminated == ExecuteFromTerminated::Refused) {
    return false;
  }
  later([this, kept = Ptr<DefinitionObject>(&definition, false)] {
    if (kept->isAlive()) {
      start(*kept.get());
    }
  });
  return true;
}

void CommandRunner::confirm() {
  const Ptr<CommandObject> command = active_;
  const Execution result = execute(*command.get());
  if (isRunning(*command.get())) {
    end(result == Execution::Done ? adsk::core::CompletedTerminationReason : adsk::core::AbortedTerminationReason);
  }
}

// What is changed meanwhile, and what was changed since the last execution, becomes one step.
CommandRunner::Execution CommandRunner::execute(CommandObject& command) {
  const Ptr<CommandArguments> arguments = makeObject<CommandArguments>(
      Ptr<adsk::core::Event>(command.executeEvent), command.commandHandle(), adsk::core::UnknownTerminationReason);
  {
    const DepthGuard guard(eventDepth);
    command.executeEvent->fire(boundary, arguments, command.definition().texts().id);
  }
  if (history != nullptr && history->isOpen()) {
    if (arguments->hasFailed) {
      history->rollback();
    } else {
      history->commit(command.definition().texts().name);
    }
    history->begin();
  }
  return arguments->hasFailed ? Execution::Failed : Execution::Done;
}

bool CommandRunner::executeByProgram(CommandObject& command, bool terminate) {
  if (!isRunning(command) || (profile.executeNeedsValidInputs && !command.areInputsValid())) {
    return false;
  }
  const Ptr<CommandObject> kept(&command, false);
  const Execution result = execute(command);
  if (terminate || profile.executeInDialog == ExecuteInDialog::EndsCommand) {
    end(result == Execution::Done ? adsk::core::CompletedTerminationReason : adsk::core::AbortedTerminationReason);
  } else if (profile.executeClearsSelection) {
    clearSelectionAfterEvent(command);
  }
  workOffWaiting();
  return result == Execution::Done;
}

void CommandRunner::end(CommandTerminationReason reason) {
  const Ptr<CommandObject> command = active_;
  if (!command) {
    return;
  }
  active_ = nullptr;
  if (history != nullptr && history->isOpen()) {
    if (profile.cancelledChanges == CancelledChanges::Kept) {
      history->commit(command->definition().texts().name);
    } else {
      history->rollback();
    }
  }
  if (command->isShown) {
    fireCommandEvent(*command->deactivateEvent.get(), *command.get());
  }
  fireCommandEvent(*command->destroyEvent.get(), *command.get(), reason);
  command->markGone();
  {
    const DepthGuard guard(eventDepth);
    const bool wasFiring = std::exchange(isFiringTerminated, true);
    const Ptr<DefinitionObject> definition(&command->definition(), false);
    events.terminated.fire(
        boundary,
        makeObject<ApplicationArguments>(Ptr<adsk::core::Event>(&events.terminated, false), definition, reason),
        definition->texts().id);
    isFiringTerminated = wasFiring;
  }
  workOffWaiting();
}

void CommandRunner::changedByUser(InputCore& input) {
  const Ptr<CommandObject> command = active_;
  fireInputChanged(*command.get(), input);
  workOffWaiting();
}

void CommandRunner::fireInputChanged(CommandObject& command, InputCore& input) {
  const Ptr<adsk::core::CommandInput> handle = input.handle();
  const Ptr<adsk::core::CommandInputs> inputs =
      profile.eventGivesGroupInputs ? input.homeCollection().handle() : command.inputs().handle();
  const DepthGuard guard(eventDepth);
  const DepthGuard inputGuard(inputChangedDepth);
  if (inputChangedDepth > restLimit) {
    boundary.report("inputChanged(" + input.inputId() + ")", "the events of the dialog do not come to rest");
    return;
  }
  command.inputChangedEvent->fire(
      boundary, makeObject<InputChangedArguments>(Ptr<adsk::core::Event>(command.inputChangedEvent), handle, inputs),
      input.inputId());
}

void CommandRunner::fireCommandEvent(CommandEventObject& event, CommandObject& command,
                                     CommandTerminationReason reason) {
  const DepthGuard guard(eventDepth);
  event.fire(boundary,
             makeObject<CommandArguments>(Ptr<adsk::core::Event>(&event, false), command.commandHandle(), reason),
             command.definition().texts().id);
}

void CommandRunner::changedByProgram(CommandObject& command, InputCore& input) {
  if (!command.isShown || !isRunning(command) || profile.echo == Echo::None) {
    return;
  }
  if (profile.echo == Echo::AtOnce) {
    fireInputChanged(command, input);
    return;
  }
  later([this, kept = Ptr<CommandObject>(&command, false), changed = &input] {
    if (isRunning(*kept.get())) {
      fireInputChanged(*kept.get(), *changed);
    }
  });
}

void CommandRunner::selectionCleared(CommandObject& command, InputCore& input) {
  if (!command.isShown || !isRunning(command) || !profile.clearSelectionReported) {
    return;
  }
  later([this, kept = Ptr<CommandObject>(&command, false), changed = &input] {
    if (isRunning(*kept.get())) {
      fireInputChanged(*kept.get(), *changed);
    }
  });
}

void CommandRunner::modelEdited() {
  if (!active_ || inputChangedDepth == 0 || profile.editClearsSelection == EditClearsSelection::Never) {
    return;
  }
  if (profile.editClearsSelection == EditClearsSelection::AtOnce) {
    clearSelection(*active_.get());
  } else {
    clearSelectionAfterEvent(*active_.get());
  }
}

void CommandRunner::clearSelectionAfterEvent(CommandObject& command) {
  if (std::exchange(isClearingPlanned, true)) {
    return;
  }
  later([this, kept = Ptr<CommandObject>(&command, false)] {
    isClearingPlanned = false;
    if (isRunning(*kept.get())) {
      clearSelection(*kept.get());
    }
  });
}

void CommandRunner::clearSelection(CommandObject& command) {
  SelectionInput* selection = command.selectionInput();
  if (selection != nullptr && selection->dropAll()) {
    fireInputChanged(command, *selection);
  }
}

void CommandRunner::workOffWaiting() {
  if (eventDepth > 0) {
    return;
  }
  for (int done = 0; !waiting.empty(); ++done) {
    if (done > restLimit) {
      waiting.clear();
      boundary.report("events", "the events of the dialog do not come to rest");
      return;
    }
    const std::function<void()> work = std::move(waiting.front());
    waiting.pop_front();
    work();
  }
}

}  // namespace headless
