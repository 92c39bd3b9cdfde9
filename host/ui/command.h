// A running command: its inputs, its events and its options. What happens to it and when is in command_runner.h.
#pragma once

#include <Core/CoreAll.h>

#include <map>
#include <string>

#include "host/runtime/object.h"
#include "host/runtime/profile.h"
#include "host/ui/command_definitions.h"
#include "host/ui/events.h"
#include "host/ui/inputs.h"

namespace headless {

class CommandObject;

/// What a command tells whoever runs it.
class CommandListener {
 public:
  virtual void changedByProgram(CommandObject& command, InputCore& input) = 0;
  virtual void selectionCleared(CommandObject& command, InputCore& input) = 0;
  /// Executes as OK does; false when that is refused or failed.
  virtual bool executeByProgram(CommandObject& command, bool terminate) = 0;

 protected:
  ~CommandListener() = default;
};

/// Pixels; 0 until it was set.
struct DialogSize {
  int width = 0;
  int height = 0;
};

/// The options and sizes that a client may set.
struct CommandOptions {
  bool isOKButtonVisible = true;
  std::string okButtonText = "OK";
  std::string cancelButtonText;
  bool isExecutedWhenPreEmpted = true;
  bool isAutoExecute = true;
  bool isRepeatable = true;
  DialogSize initialSize;
  DialogSize minimumSize;
};

/// One command. After its end it and its inputs answer with nothing.
class CommandObject final : public HostObject<adsk::core::Command>, public InputOwner {
 public:
  CommandObject(const adsk::core::Ptr<DefinitionObject>& madeFrom, const Profile& hostProfile, CommandListener& runner);
  ~CommandObject() override;

  adsk::core::Ptr<adsk::core::CommandInputs> commandInputs() const override;
  adsk::core::Ptr<adsk::core::CommandDefinition> parentCommandDefinition() const override;
  adsk::core::Ptr<adsk::core::CommandEvent> execute() const override;
  adsk::core::Ptr<adsk::core::InputChangedEvent> inputChanged() const override;
  adsk::core::Ptr<adsk::core::CommandEvent> activate() const override;
  adsk::core::Ptr<adsk::core::CommandEvent> deactivate() const override;
  adsk::core::Ptr<adsk::core::CommandEvent> destroy() const override;
  bool doExecute(bool terminate) override;
  bool isOKButtonVisible() const override;
  bool isOKButtonVisible(bool value) override;
  std::string okButtonText() const override;
  bool okButtonText(const std::string& value) override;
  std::string cancelButtonText() const override;
  bool cancelButtonText(const std::string& value) override;
  bool isExecutedWhenPreEmpted() const override;
  bool isExecutedWhenPreEmpted(bool value) override;
  bool isAutoExecute() const override;
  bool isAutoExecute(bool value) override;
  bool isRepeatable() const override;
  bool isRepeatable(bool value) override;
  bool setDialogInitialSize(int width, int height) override;
  bool setDialogMinimumSize(int width, int height) override;

  const Profile& hostProfile() const override { return profile; }
  adsk::core::Ptr<adsk::core::Command> commandHandle() override { return {this, false}; }
  void inputChangedByProgram(InputCore& input) override;
  void selectionClearedByProgram(InputCore& input) override;
  bool canSelectByProgram() const override { return isShown; }
  std::map<std::string, InputCore*>& inputsById() override { return byId; }

  /// For the host's own use.
  DefinitionObject& definition() const { return *definition_.get(); }
  const CommandOptions& options() const { return options_; }
  InputCollection& inputs() const { return *inputs_.get(); }
  /// The input of that id, in groups too; nullptr when there is none.
  InputCore* findInput(const std::string& id) const;
  /// The selection input that the user fills: the one with the focus, or else the first; nullptr when there is none.
  SelectionInput* selectionInput() const;
  /// False while a visible selection input has fewer entities than it needs.
  bool areInputsValid() const;
  void markGone();

  adsk::core::Ptr<CommandEventObject> executeEvent;
  adsk::core::Ptr<InputChangedEventObject> inputChangedEvent;
  adsk::core::Ptr<CommandEventObject> activateEvent;
  adsk::core::Ptr<CommandEventObject> deactivateEvent;
  adsk::core::Ptr<CommandEventObject> destroyEvent;
  /// The dialog stands on the screen.
  bool isShown = false;

 protected:
  std::string traceDetail() const override { return definition_->texts().id; }

 private:
  template <class Value>
  bool store(const char* member, Value& field, const Value& value);
  bool storeSize(const char* member, DialogSize& field, const DialogSize& value);

  adsk::core::Ptr<DefinitionObject> definition_;
  const Profile& profile;
  CommandListener& listener;
  CommandOptions options_;
  std::map<std::string, InputCore*> byId;
  adsk::core::Ptr<InputCollection> inputs_;
};

/// What handlers of the created, command, input-changed and application-wide events are given.
class CreatedArguments final : public HostObject<adsk::core::CommandCreatedEventArgs> {
 public:
  CreatedArguments(const adsk::core::Ptr<adsk::core::Event>& firing,
                   const adsk::core::Ptr<adsk::core::Command>& created)
      : event(firing), command_(created) {}
  adsk::core::Ptr<adsk::core::Event> firingEvent() const override;
  adsk::core::Ptr<adsk::core::Command> command() const override;

 private:
  adsk::core::Ptr<adsk::core::Event> event;
  adsk::core::Ptr<adsk::core::Command> command_;
};

class CommandArguments final : public HostObject<adsk::core::CommandEventArgs> {
 public:
  CommandArguments(const adsk::core::Ptr<adsk::core::Event>& firing,
                   const adsk::core::Ptr<adsk::core::Command>& ofCommand,
                   adsk::core::CommandTerminationReason endReason)
      : event(firing), command_(ofCommand), reason(endReason) {}
  adsk::core::Ptr<adsk::core::Event> firingEvent() const override;
  adsk::core::Ptr<adsk::core::Command> command() const override;
  bool executeFailed() const override;
  bool executeFailed(bool value) override;
  std::string executeFailedMessage() const override;
  bool executeFailedMessage(const std::string& value) override;
  adsk::core::CommandTerminationReason terminationReason() const override;

  bool hasFailed = false;
  const std::string& failureMessage() const { return message; }

 private:
  adsk::core::Ptr<adsk::core::Event> event;
  adsk::core::Ptr<adsk::core::Command> command_;
  adsk::core::CommandTerminationReason reason;
  std::string message;
};

class InputChangedArguments final : public HostObject<adsk::core::InputChangedEventArgs> {
 public:
  InputChangedArguments(const adsk::core::Ptr<adsk::core::Event>& firing,
                        const adsk::core::Ptr<adsk::core::CommandInput>& changed,
                        const adsk::core::Ptr<adsk::core::CommandInputs>& collection)
      : event(firing), input_(changed), inputs_(collection) {}
  adsk::core::Ptr<adsk::core::Event> firingEvent() const override;
  adsk::core::Ptr<adsk::core::CommandInput> input() const override;
  adsk::core::Ptr<adsk::core::CommandInputs> inputs() const override;

 private:
  adsk::core::Ptr<adsk::core::Event> event;
  adsk::core::Ptr<adsk::core::CommandInput> input_;
  adsk::core::Ptr<adsk::core::CommandInputs> inputs_;
};

class ApplicationArguments final : public HostObject<adsk::core::ApplicationCommandEventArgs> {
 public:
  ApplicationArguments(const adsk::core::Ptr<adsk::core::Event>& firing,
                       const adsk::core::Ptr<DefinitionObject>& ofDefinition,
                       adsk::core::CommandTerminationReason endReason)
      : event(firing), definition(ofDefinition), commandId_(definition->texts().id), reason(endReason) {}
  adsk::core::Ptr<adsk::core::Event> firingEvent() const override;
  std::string commandId() const override;
  adsk::core::Ptr<adsk::core::CommandDefinition> commandDefinition() const override;
  adsk::core::CommandTerminationReason terminationReason() const override;
  bool isCanceled() const override;
  bool isCanceled(bool value) override;

  bool stopped = false;

 private:
  adsk::core::Ptr<adsk::core::Event> event;
  adsk::core::Ptr<DefinitionObject> definition;
  std::string commandId_;
  adsk::core::CommandTerminationReason reason;
};

}  // namespace headless
