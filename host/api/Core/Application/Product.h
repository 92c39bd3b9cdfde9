// Class Product.
#pragma once

#include "../Base.h"

namespace adsk {
namespace core {

/// Base class of everything that can be edited in a document (documented).
class Product : public Base {
  ADSK_API_CLASS(Product, Base)
};

}  // namespace core
}  // namespace adsk
