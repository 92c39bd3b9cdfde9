#include "host/ui/command_runner.h"

#include <utility>

namespace headless {

using adsk::core::CommandTerminationReason;
using adsk::core::Ptr;

namespace {

// More events in a row, or within one another, than any dialog can mean: the add-in answers its own echo for ever.
constexpr int restLimit = 1000;
constexpr int nestingLimit = 100;

// Holds another value as long as it lives.
template <class Value>
class Temporarily {
 public:
  Temporarily(Value& changed, Value value) : variable(changed), previous(std::exchange(changed, value)) {}
  ~Temporarily() { variable = previous; }
  Temporarily(const Temporarily&) = delete;
  Temporarily& operator=(const Temporarily&) = delete;

 private:
  Value& variable;
  Value previous;
};

}  // namespace

bool CommandRunner::start(DefinitionObject& definition) {
  const Ptr<DefinitionObject> keptDefinition(&definition, false);
  const Ptr<ApplicationArguments> starting = makeObject<ApplicationArguments>(
      Ptr<adsk::core::Event>(&events.starting, false), keptDefinition, adsk::core::UnknownTerminationReason);
  {
    const Temporarily guard(firing, Firing::CommandEvent);
    events.starting.fire(boundary, starting, definition.texts().id);
  }
  if (starting->stopped || !definition.isAlive()) {
    workOffWaiting();
    return false;
  }
  preEmpt();
  const Ptr<CommandObject> command = makeObject<CommandObject>(keptDefinition, profile, *this);
  active_ = command;
  if (history != nullptr) {
    history->begin();
  }
  {
    const Temporarily guard(firing, Firing::CommandEvent);
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

// What its end makes a handler start has to wait for the command that it makes way for.
void CommandRunner::preEmpt() {
  if (!active_) {
    return;
  }
  const Temporarily guard(areRestartsHeld, true);
  if (active_->options().isExecutedWhenPreEmpted && active_->areInputsValid()) {
    execute(*active_.get());
  }
  end(adsk::core::PreEmptedTerminationReason);
}

void CommandRunner::show(CommandObject& command) {
  if (command.inputs().all().empty() && command.options().isAutoExecute) {
    confirm();
    return;
  }
  command.isShown = true;
  fireCommandEvent(*command.activateEvent.get(), command);
  SelectionInput* selection = command.selectionInput();
  if (profile.preselectionUsed && isRunning(command) && selection != nullptr && fillPreselection) {
    fillPreselection(*selection);
    if (!selection->picked().empty()) {
      fireInputChanged(command, *selection);
    }
  }
}

bool CommandRunner::startByProgram(DefinitionObject& definition) {
  if (firing == Firing::CommandEvent) {
    boundary.report("CommandDefinition.execute",
                    "the add-in started " + definition.texts().id + " inside a command's own event");
    return false;
  }
  const bool isFromTerminated = firing == Firing::TerminatedEvent;
  if (isFromTerminated && profile.executeFromTerminated == ExecuteFromTerminated::Refused) {
    return false;
  }
  const bool mayStartNow = !isFromTerminated || profile.executeFromTerminated == ExecuteFromTerminated::AtOnce;
  if (mayStartNow && !areRestartsHeld) {
    return start(definition);
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
    const Temporarily guard(firing, Firing::CommandEvent);
    const Temporarily executing(isExecuting, true);
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
  if (arguments->hasFailed && !arguments->failureMessage().empty() && showFailure) {
    showFailure(arguments->failureMessage());
  }
  return arguments->hasFailed ? Execution::Failed : Execution::Done;
}

bool CommandRunner::executeByProgram(CommandObject& command, bool terminate) {
  if (isExecuting) {
    boundary.report("Command.doExecute",
                    "the add-in executed " + command.definition().texts().id + " inside an execution");
    return false;
  }
  const bool isRefused = profile.executeNeedsValidInputs && !command.areInputsValid();
  if (!isRunning(command) || !command.isShown || isRefused) {
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
  fireTerminated(command->definition(), reason);
  workOffWaiting();
}

void CommandRunner::withoutRestarts(const std::function<void()>& work) {
  {
    const Temporarily guard(areRestartsHeld, true);
    work();
  }
  workOffWaiting();
}

void CommandRunner::close() {
  const Temporarily guard(areRestartsHeld, true);
  end(adsk::core::SessionEndingTerminationReason);
  waiting.clear();
}

void CommandRunner::changedByUser(InputCore& input) {
  const Ptr<CommandObject> command = active_;
  fireInputChanged(*command.get(), input);
  workOffWaiting();
}

void CommandRunner::fireInputChanged(CommandObject& command, InputCore& input) {
  if (!comesToRest(input)) {
    return;
  }
  const Ptr<CommandObject> kept(&command, false);
  const Ptr<adsk::core::CommandInput> handle = input.handle();
  const Ptr<adsk::core::CommandInputs> inputs =
      profile.eventGivesGroupInputs ? input.homeCollection().handle() : command.inputs().handle();
  const Temporarily guard(firing, Firing::CommandEvent);
  const Temporarily inputGuard(inputChangedDepth, inputChangedDepth + 1);
  command.inputChangedEvent->fire(
      boundary, makeObject<InputChangedArguments>(Ptr<adsk::core::Event>(command.inputChangedEvent), handle, inputs),
      input.inputId());
}

// False once an event has caused so many more that something is wrong; reported once.
bool CommandRunner::comesToRest(const InputCore& input) {
  nestedEvents = inputChangedDepth == 0 ? 1 : nestedEvents + 1;
  if (inputChangedDepth < nestingLimit && nestedEvents <= restLimit) {
    return true;
  }
  if (nestedEvents <= restLimit + 1) {
    boundary.report("inputChanged(" + input.inputId() + ")", "the events of the dialog do not come to rest");
  }
  nestedEvents = restLimit + 1;
  return false;
}

void CommandRunner::fireCommandEvent(CommandEventObject& event, CommandObject& command,
                                     CommandTerminationReason reason) {
  const Temporarily guard(firing, Firing::CommandEvent);
  event.fire(boundary,
             makeObject<CommandArguments>(Ptr<adsk::core::Event>(&event, false), command.commandHandle(), reason),
             command.definition().texts().id);
}

void CommandRunner::fireTerminated(DefinitionObject& definition, CommandTerminationReason reason) {
  const Ptr<DefinitionObject> kept(&definition, false);
  const Temporarily guard(firing, Firing::TerminatedEvent);
  events.terminated.fire(
      boundary, makeObject<ApplicationArguments>(Ptr<adsk::core::Event>(&events.terminated, false), kept, reason),
      definition.texts().id);
}

bool CommandRunner::mayEcho(const CommandObject& command) const {
  return command.isShown || (profile.echo == Echo::AtOnce && profile.echoWhileBuilding);
}

void CommandRunner::changedByProgram(CommandObject& command, InputCore& input) {
  if (!isRunning(command) || profile.echo == Echo::None || !mayEcho(command)) {
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
  if (!isRunning(command) || !profile.clearSelectionReported || !mayEcho(command)) {
    return;
  }
  if (!command.isShown) {
    fireInputChanged(command, input);
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
  if (firing != Firing::Nothing || areRestartsHeld || isWorkingOff) {
    return;
  }
  const Temporarily guard(isWorkingOff, true);
  for (int done = 0; !waiting.empty(); ++done) {
    if (done > restLimit) {
      waiting.clear();
      isClearingPlanned = false;
      boundary.report("events", "the events of the dialog do not come to rest");
      return;
    }
    const std::function<void()> work = std::move(waiting.front());
    waiting.pop_front();
    work();
  }
}

}  // namespace headless
