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

/// Lets the user pick entities. All members are documented unless marked.
class SelectionCommandInput : public CommandInput {
  ADSK_API_CLASS(SelectionCommandInput, CommandInput)

  /// 0 means no minimum, or no upper limit. False when the maximum is below the minimum (assumed).
  virtual bool setSelectionLimits(size_t minimum, size_t maximum = 0) = 0;
  /// Both limits, 0 for none.
  virtual bool getSelectionLimits(size_t& minimum, size_t& maximum) = 0;
  /// How many are selected.
  virtual size_t selectionCount() const = 0;
  /// Empty for a bad index.
  virtual Ptr<Selection> selection(size_t index) const = 0;
  /// False inside command-created, and when filters or limits refuse the entity, or it is selected already (the last
  /// assumed).
  virtual bool addSelection(const Ptr<Base>& selection) = 0;
  /// Lets go of everything that is selected; possible inside command-created too, and not reported (both assumed).
  virtual bool clearSelection() = 0;
  /// An entity is accepted if any filter fits; without filters anything is. False for a name that is not known
  /// (assumed). Our host knows four, "Occurrences", "RootComponents", "Bodies" and "Faces"; the reference lists more.
  virtual bool addSelectionFilter(const std::string& filter) = 0;
  /// Removes all filters; what is selected stays selected (the latter assumed).
  virtual bool clearSelectionFilter() = 0;
  /// All filters at once, in the order of addition. False, and nothing is set, when one is not known (assumed).
  virtual std::vector<std::string> selectionFilters() const = 0;
  virtual bool selectionFilters(const std::vector<std::string>& value) = 0;
  /// Tooltip beside the cursor.
  virtual std::string commandPrompt() const = 0;
  virtual bool commandPrompt(const std::string& value) = 0;
  /// One selection input of a dialog has it. False while the input is hidden.
  virtual bool hasFocus() const = 0;
  virtual bool hasFocus(bool value) = 0;
};

}  // namespace core
}  // namespace adsk
