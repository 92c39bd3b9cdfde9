// Class Products.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Product;

/// The products of a document.
class Products : public Base {
  ADSK_API_CLASS(Products, Base)

  /// The product of that type, "DesignProductType" for the design; empty when the document has none (documented).
  virtual Ptr<Product> itemByProductType(const std::string& productType) const = 0;
};

}  // namespace core
}  // namespace adsk
