// Class Occurrences.
#pragma once

#include <cstddef>
#include <string>

#include "../../Core/Base.h"

namespace adsk {
namespace fusion {

class Occurrence;
class OccurrenceList;

/// The occurrences at the top level of a component. All members are documented.
class Occurrences : public core::Base {
  ADSK_API_CLASS(Occurrences, core::Base)

  using iterable_type = Occurrence;
  /// Empty for a bad index.
  virtual core::Ptr<Occurrence> item(size_t index) const = 0;
  /// How many there are.
  virtual size_t count() const = 0;
  /// By the occurrence's name, such as "B:1". Empty when there is none.
  virtual core::Ptr<Occurrence> itemByName(const std::string& name) const = 0;
  /// The same occurrences, in the same order, as the other list class.
  virtual core::Ptr<OccurrenceList> asList() const = 0;
};

}  // namespace fusion
}  // namespace adsk
