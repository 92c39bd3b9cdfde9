// Class Design.
#pragma once

#include "../../Core/Application/Product.h"
#include "../../Core/Base.h"

namespace adsk {
namespace core {
class Appearances;
}
namespace fusion {

class Component;

/// A design: the root component and everything below it. All members are documented.
class Design : public core::Product {
  ADSK_API_CLASS(Design, core::Product)

  /// The component at the top; there always is one.
  virtual core::Ptr<Component> rootComponent() const = 0;
  /// The document's own appearances.
  virtual core::Ptr<core::Appearances> appearances() const = 0;
};

}  // namespace fusion
}  // namespace adsk
