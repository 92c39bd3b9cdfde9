// Class CommandDefinitions.
#pragma once

#include <cstddef>
#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class CommandDefinition;

/// All command definitions. All members are documented.
class CommandDefinitions : public Base {
  ADSK_API_CLASS(CommandDefinitions, Base)

  using iterable_type = CommandDefinition;
  /// Empty for a bad index.
  virtual Ptr<CommandDefinition> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// Empty when there is none of that id.
  virtual Ptr<CommandDefinition> itemById(const std::string& id) const = 0;
  /// A button definition. Empty when the id is taken or has other characters than letters, digits and underscore.
  virtual Ptr<CommandDefinition> addButtonDefinition(const std::string& id, const std::string& name,
                                                     const std::string& tooltip,
                                                     const std::string& resourceFolder = "") = 0;
};

}  // namespace core
}  // namespace adsk
