// Handlers that write down what they are called for and then do what a test gives them to do, and a command with a
// handler for each of its events.
#pragma once

#include <Core/CoreAll.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// What happened, in order, such as "execute" or "inputChanged(name)".
using Log = std::vector<std::string>;

inline std::string detailOf(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>&) {
  return {};
}
/// Why the command ended; nothing before its end.
inline std::string detailOf(const adsk::core::Ptr<adsk::core::CommandEventArgs>& arguments) {
  const int reason = arguments->terminationReason();
  return reason == 0 ? "" : std::to_string(reason);
}
inline std::string detailOf(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& arguments) {
  return arguments->input()->id();
}
inline std::string detailOf(const adsk::core::Ptr<adsk::core::ApplicationCommandEventArgs>& arguments) {
  const int reason = arguments->terminationReason();
  return arguments->commandId() + (reason == 0 ? "" : " " + std::to_string(reason));
}

/// Writes its name and, in brackets, the detail of its arguments into a log, which must outlive it.
template <class HandlerBase, class Arguments>
class RecordingHandler final : public HandlerBase {
 public:
  RecordingHandler(Log& writtenTo, std::string handlerName) : log(writtenTo), name(std::move(handlerName)) {}

  void notify(const adsk::core::Ptr<Arguments>& arguments) override {
    const std::string detail = detailOf(arguments);
    log.push_back(detail.empty() ? name : name + "(" + detail + ")");
    if (then) {
      then(arguments);
    }
  }

  /// Called after writing; may be empty.
  std::function<void(const adsk::core::Ptr<Arguments>&)> then;

 private:
  Log& log;
  std::string name;
};

using CreatedRecorder = RecordingHandler<adsk::core::CommandCreatedEventHandler, adsk::core::CommandCreatedEventArgs>;
using CommandRecorder = RecordingHandler<adsk::core::CommandEventHandler, adsk::core::CommandEventArgs>;
using InputRecorder = RecordingHandler<adsk::core::InputChangedEventHandler, adsk::core::InputChangedEventArgs>;
using ApplicationRecorder =
    RecordingHandler<adsk::core::ApplicationCommandEventHandler, adsk::core::ApplicationCommandEventArgs>;

/// A command as a client makes it: a definition, a handler for each event of the commands that are started from it, and
/// what it builds its dialog of.
class RecordedCommand {
 public:
  /// Makes the definition; the log must outlive the command.
  RecordedCommand(const adsk::core::Ptr<adsk::core::UserInterface>& ui, const std::string& id, Log& log)
      : definition(ui->commandDefinitions()->addButtonDefinition(id, id + " name", id + " tooltip", "icons")),
        created(log, "created"),
        execute(log, "execute"),
        inputChanged(log, "inputChanged"),
        activate(log, "activate"),
        deactivate(log, "deactivate"),
        destroy(log, "destroy") {
    created.then = [this](const auto& arguments) { attachTo(arguments->command()); };
    definition->commandCreated()->add(&created);
  }
  RecordedCommand(const RecordedCommand&) = delete;
  RecordedCommand& operator=(const RecordedCommand&) = delete;

  /// Makes inputs and sets options of a new command; may be empty.
  std::function<void(const adsk::core::Ptr<adsk::core::Command>&)> build;
  adsk::core::Ptr<adsk::core::CommandDefinition> definition;
  /// The command that was created last.
  adsk::core::Ptr<adsk::core::Command> command;

  CreatedRecorder created;
  CommandRecorder execute;
  InputRecorder inputChanged;
  CommandRecorder activate;
  CommandRecorder deactivate;
  CommandRecorder destroy;

 private:
  void attachTo(const adsk::core::Ptr<adsk::core::Command>& newCommand) {
    command = newCommand;
    command->execute()->add(&execute);
    command->inputChanged()->add(&inputChanged);
    command->activate()->add(&activate);
    command->deactivate()->add(&deactivate);
    command->destroy()->add(&destroy);
    if (build) {
      build(command);
    }
  }
};

}  // namespace tests
