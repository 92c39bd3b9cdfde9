// Class CommandControl.
#pragma once

#include "../Base.h"
#include "ToolbarControl.h"

namespace adsk {
namespace core {

class CommandDefinition;

/// A button that starts a command. All members are documented unless marked.
class CommandControl : public ToolbarControl {
  ADSK_API_CLASS(CommandControl, ToolbarControl)

  /// Empty when the definition was deleted: the button is dead then (assumed).
  virtual Ptr<CommandDefinition> commandDefinition() const = 0;
  /// Shown on the panel itself and not only in its drop-down.
  virtual bool isPromoted() const = 0;
  virtual bool isPromoted(bool value) = 0;
  /// The state after a reset of the interface.
  virtual bool isPromotedByDefault() const = 0;
  virtual bool isPromotedByDefault(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
