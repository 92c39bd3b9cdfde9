// Class Command.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class CommandDefinition;
class CommandEvent;
class CommandInputs;
class InputChangedEvent;

/// A command that runs: its dialog, its events, its end. All members are documented unless marked. After the end of
/// the command every call answers with nothing.
class Command : public Base {
  ADSK_API_CLASS(Command, Base)

  /// The inputs at the top level of its dialog; a collection without items until some are added.
  virtual Ptr<CommandInputs> commandInputs() const = 0;
  /// What it was started from; empty when that was deleted meanwhile (the latter assumed).
  virtual Ptr<CommandDefinition> parentCommandDefinition() const = 0;
  /// Fires when the command is to act; all that is changed meanwhile is one undo step named after the command.
  virtual Ptr<CommandEvent> execute() const = 0;
  /// Fires per change of an input by the user; changes by program do not fire it (assumed).
  virtual Ptr<InputChangedEvent> inputChanged() const = 0;
  /// Fires when the dialog is shown, before the user can act.
  virtual Ptr<CommandEvent> activate() const = 0;
  /// Fires when the dialog goes to the background, as for a view command. Our host knows no such commands and fires it
  /// only at the end of a command whose dialog was shown, before destroy (assumed).
  virtual Ptr<CommandEvent> deactivate() const = 0;
  /// The last event of the command.
  virtual Ptr<CommandEvent> destroy() const = 0;
  /// Executes the command as OK does; `terminate` false leaves it running. With a dialog open, it stays open and one
  /// undo step is committed (assumed); some hosts may end the command all the same. False when it was not executed, or
  /// failed. Some hosts may refuse while an input is invalid (assumed: no).
  virtual bool doExecute(bool terminate) = 0;
  /// Without OK button the Cancel button reads "CLOSE" unless it has a text.
  virtual bool isOKButtonVisible() const = 0;
  virtual bool isOKButtonVisible(bool value) = 0;
  /// Text of the OK button, "OK" by default; kept, and not shown, while the button is hidden.
  virtual std::string okButtonText() const = 0;
  virtual bool okButtonText(const std::string& value) = 0;
  /// Text of the Cancel button; empty as long as it has the host's own (the latter assumed).
  virtual std::string cancelButtonText() const = 0;
  virtual bool cancelButtonText(const std::string& value) = 0;
  /// True by default: when another command starts, this one is executed if its inputs are valid.
  virtual bool isExecutedWhenPreEmpted() const = 0;
  virtual bool isExecutedWhenPreEmpted(bool value) = 0;
  /// True by default: without inputs the command executes at once.
  virtual bool isAutoExecute() const = 0;
  virtual bool isAutoExecute(bool value) = 0;
  /// Offered by "repeat last command"; true by default (assumed).
  virtual bool isRepeatable() const = 0;
  virtual bool isRepeatable(bool value) = 0;
  /// Pixels at the first display; a size that the user gave it since is used instead. False for a size below 1 (the
  /// latter assumed). Our host keeps the size and shows no window.
  virtual bool setDialogInitialSize(int width, int height) = 0;
  /// Pixels, lower bound for resizing by the user. False for a size below 1 (the latter assumed).
  virtual bool setDialogMinimumSize(int width, int height) = 0;
};

}  // namespace core
}  // namespace adsk
