// Class OccurrenceList.
#pragma once

#include <cstddef>
#include <string>

#include "../../Core/Base.h"

namespace adsk {
namespace fusion {

class Occurrence;

/// A read-only list of occurrences. All members are documented unless marked.
class OccurrenceList : public core::Base {
  ADSK_API_CLASS(OccurrenceList, core::Base)

  using iterable_type = Occurrence;
  /// Empty for a bad index.
  virtual core::Ptr<Occurrence> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// By the occurrence's name, such as "B:1", not by its full path (assumed by the wording); the first in list order
  /// when several have it (assumed). Empty when there is none.
  virtual core::Ptr<Occurrence> itemByName(const std::string& name) const = 0;
};

}  // namespace fusion
}  // namespace adsk
