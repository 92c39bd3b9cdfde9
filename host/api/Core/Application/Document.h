// Class Document.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Products;

/// A document that is open. All members are documented unless marked.
class Document : public Base {
  ADSK_API_CLASS(Document, Base)

  /// What the document holds; there is always a collection, which may be empty.
  virtual Ptr<Products> products() const = 0;
  /// Name as shown on its tab.
  virtual std::string name() const = 0;
  /// Before the first save, the name that the save dialog proposes; false afterwards, or for an empty text (the latter
  /// assumed).
  virtual bool name(const std::string& value) = 0;
  /// True once it was saved.
  virtual bool isSaved() const = 0;
  /// True when it was changed since it was made, opened or saved.
  virtual bool isModified() const = 0;
  /// True for the one that is worked on.
  virtual bool isActive() const = 0;
  /// True when it has a window, as each document of our host has.
  virtual bool isVisible() const = 0;
  /// Closes it; true when it is closed. What is not saved is lost, unless `saveChanges` is true: then the user is asked
  /// and may keep it open, which gives false. Not possible inside events of commands.
  virtual bool close(bool saveChanges) = 0;
};

}  // namespace core
}  // namespace adsk
