// Class CommandDefinition.
#pragma once

#include <string>

#include "../Application/NamedValues.h"
#include "../Base.h"

namespace adsk {
namespace core {

class CommandCreatedEvent;
class ControlDefinition;

/// What a command is started from. All members are documented unless marked.
class CommandDefinition : public Base {
  ADSK_API_CLASS(CommandDefinition, Base)

  /// Unique among all definitions.
  virtual std::string id() const = 0;
  /// Text of its button, and of the undo steps of its commands.
  virtual std::string name() const = 0;
  virtual bool name(const std::string& value) = 0;
  /// Text that explains the button.
  virtual std::string tooltip() const = 0;
  virtual bool tooltip(const std::string& value) = 0;
  /// Icon folder, relative to the folder of the module or full.
  virtual std::string resourceFolder() const = 0;
  virtual bool resourceFolder(const std::string& value) = 0;
  /// Fires with a new command each time one is started.
  virtual Ptr<CommandCreatedEvent> commandCreated() const = 0;
  /// The kind depends on how the definition was made.
  virtual Ptr<ControlDefinition> controlDefinition() const = 0;
  /// The same as a click on its button; `input` is ignored. Not supported inside a command's own events: false there.
  /// Inside the application-wide command-terminated event it runs once all handlers returned (assumed).
  virtual bool execute(const Ptr<NamedValues>& input = nullptr) const = 0;
  /// False for a native definition. Ends the firing of its events; controls made from it stay as dead buttons
  /// (assumed).
  virtual bool deleteMe() = 0;
  /// True for the host's own.
  virtual bool isNative() const = 0;
};

}  // namespace core
}  // namespace adsk
