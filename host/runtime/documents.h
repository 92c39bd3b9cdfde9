// The API objects of open documents.
#pragma once

#include <Core/CoreAll.h>

#include <string>

#include "host/entities/lifetime.h"
#include "host/runtime/host.h"
#include "host/runtime/object.h"

namespace headless {

class DocumentObject final : public BoundObject<adsk::core::Document> {
 public:
  /// Ends with the document, whose entities must be there.
  DocumentObject(Host& owner, headless::Document& document);

  adsk::core::Ptr<adsk::core::Products> products() const override;
  std::string name() const override;
  bool name(const std::string& value) override;
  bool isSaved() const override;
  bool isModified() const override;
  bool isActive() const override;
  bool isVisible() const override;
  bool close(bool saveChanges) override;

 protected:
  std::string detail() const override { return data.name; }

 private:
  bool changed() const { return data.history.revision() != 0; }

  Host& host;
  headless::Document& data;
};

/// The one product of a document here is its design.
class ProductsObject final : public BoundObject<adsk::core::Products> {
 public:
  explicit ProductsObject(headless::Document& document);

  adsk::core::Ptr<adsk::core::Product> itemByProductType(const std::string& productType) const override;

 private:
  headless::Document& data;
};

/// Marked as deleted when the host goes.
class DocumentsObject final : public HostObject<adsk::core::Documents> {
 public:
  explicit DocumentsObject(Host& owner) : host(owner) {}

  adsk::core::Ptr<adsk::core::Document> add(adsk::core::DocumentTypes documentType, bool visible,
                                            const adsk::core::Ptr<adsk::core::NamedValues>& options) override;

 private:
  Host& host;
};

}  // namespace headless
