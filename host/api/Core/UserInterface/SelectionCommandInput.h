// Class SelectionCommandInput.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "../Base.h"
#include "CommandInput.h"

namespace adsk {
namespace core {

class Selection;

/// Lets the user pick entities. All members are documented.
class SelectionCommandInput : public CommandInput {
  ADSK_API_CLASS(SelectionCommandInput, CommandInput)

  /// 0 means no minimum, or no upper limit. False when the maximum is below the minimum.
  virtual bool setSelectionLimits(size_t minimum, size_t maximum = 0) = 0;
  virtual bool getSelectionLimits(size_t& minimum, size_t& maximum) = 0;
  virtual size_t selectionCount() const = 0;
  /// Empty for a bad index.
  virtual Ptr<Selection> selection(size_t index) const = 0;
  /// False inside command-created, and when filters or limits refuse the entity.
  virtual bool addSelection(const Ptr<Base>& selection) = 0;
  virtual bool clearSelection() = 0;
  /// An entity is accepted if any filter fits; without filters anything is.
  virtual bool addSelectionFilter(const std::string& filter) = 0;
  virtual bool clearSelectionFilter() = 0;
  virtual std::vector<std::string> selectionFilters() const = 0;
  virtual bool selectionFilters(const std::vector<std::string>& value) = 0;
  /// Tooltip beside the cursor.
  virtual std::string commandPrompt() const = 0;
  virtual bool commandPrompt(const std::string& value) = 0;
  /// One selection input of a dialog has it.
  virtual bool hasFocus() const = 0;
  virtual bool hasFocus(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
