// Class Documents.
#pragma once

#include "../Base.h"
#include "../CoreTypeDefs.h"
#include "NamedValues.h"

namespace adsk {
namespace core {

class Document;

/// The documents that are open. All members are documented unless marked.
class Documents : public Base {
  ADSK_API_CLASS(Documents, Base)

  /// Makes, opens and activates a new document; `visible` must be true, and no option is documented. Empty on failure
  /// (assumed), which includes every call inside events of commands.
  virtual Ptr<Document> add(DocumentTypes documentType, bool visible = true,
                            const Ptr<NamedValues>& options = nullptr) = 0;
};

}  // namespace core
}  // namespace adsk
