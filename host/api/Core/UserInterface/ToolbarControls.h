// Class ToolbarControls.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class CommandControl;
class CommandDefinition;
class ToolbarControl;

/// The controls of a panel. All members are documented unless marked.
class ToolbarControls : public Base {
  ADSK_API_CLASS(ToolbarControls, Base)

  using iterable_type = ToolbarControl;
  /// Empty for a bad index.
  virtual Ptr<ToolbarControl> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Empty when there is none of that id.
  virtual Ptr<ToolbarControl> itemById(const std::string& id) const = 0;
  /// A button for the definition, with the definition's id. Empty when the panel has one already (assumed) or there is
  /// no definition.
  virtual Ptr<CommandControl> addCommand(const Ptr<CommandDefinition>& commandDefinition,
                                         const std::string& positionID = "", bool isBefore = true) = 0;
};

}  // namespace core
}  // namespace adsk
