#include "host/runtime/documents.h"

#include <memory>

namespace headless {

using adsk::core::Ptr;

DocumentObject::DocumentObject(Host& owner, headless::Document& document)
    : BoundObject(document.entities->boundTo()), host(owner), data(document) {}

Ptr<adsk::core::Products> DocumentObject::products() const {
  return call("products", [this]() -> Ptr<adsk::core::Products> { return makeObject<ProductsObject>(data); });
}

std::string DocumentObject::name() const {
  return call("name", [this] { return data.name; });
}

bool DocumentObject::name(const std::string& value) {
  return call(
      "name=",
      [&] {
        if (data.isSaved || value.empty()) {
          return false;
        }
        data.name = value;
        return true;
      },
      value);
}

bool DocumentObject::isSaved() const {
  return call("isSaved", [this] { return data.isSaved; });
}

bool DocumentObject::isModified() const {
  return call("isModified", [this] { return changed(); });
}

bool DocumentObject::isActive() const {
  return call("isActive", [this] { return host.document() == &data; });
}

bool DocumentObject::isVisible() const {
  return call("isVisible", [] { return true; });
}

// This host keeps no files, so that a user who wants the changes saved keeps the document open.
bool DocumentObject::close(bool saveChanges) {
  return call(
      "close",
      [&] {
        if (host.ui().runner().isInCommandEvent()) {
          return false;
        }
        if (saveChanges && changed()) {
          const auto answer = host.ui().boxes().show({"Save the changes of " + data.name + "?", data.name,
                                                      adsk::core::YesNoCancelButtonType, adsk::core::QuestionIconType});
          if (answer != adsk::core::DialogNo) {
            return false;
          }
        }
        host.close(data);
        return true;
      },
      saveChanges);
}

ProductsObject::ProductsObject(headless::Document& document)
    : BoundObject(document.entities->boundTo()), data(document) {}

Ptr<adsk::core::Product> ProductsObject::itemByProductType(const std::string& productType) const {
  return call(
      "itemByProductType",
      [&]() -> Ptr<adsk::core::Product> {
        return productType == "DesignProductType" ? Ptr<adsk::core::Product>(data.entities->design()) : nullptr;
      },
      productType);
}

Ptr<adsk::core::Document> DocumentsObject::add(adsk::core::DocumentTypes documentType, bool visible,
                                               const Ptr<adsk::core::NamedValues>& options) {
  return call(
      "add",
      [&]() -> Ptr<adsk::core::Document> {
        if (!visible || host.ui().runner().isInCommandEvent()) {
          return nullptr;
        }
        return Ptr<adsk::core::Document>(host.openNew(std::make_unique<model::Design>("Untitled")).handle);
      },
      documentType, visible, options);
}

}  // namespace headless
