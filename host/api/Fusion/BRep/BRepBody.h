// Class BRepBody.
#pragma once

#include <string>

#include "../../Core/Base.h"
#include "../../Core/CoreTypeDefs.h"

namespace adsk {
namespace core {
class Appearance;
class Material;
}  // namespace core

namespace fusion {

class BRepFaces;
class Component;
class Occurrence;

/// A solid or surface body, native or as seen through an occurrence; both share one look and one material. All
/// members are documented unless marked.
class BRepBody : public core::Base {
  ADSK_API_CLASS(BRepBody, core::Base)

  /// Name as in the browser.
  virtual std::string name() const = 0;
  /// What the body shows, whatever the source; never empty, as there always is a material (assumed).
  virtual core::Ptr<core::Appearance> appearance() const = 0;
  /// Applies an appearance to the body; an empty handle removes it.
  virtual bool appearance(const core::Ptr<core::Appearance>& value) = 0;
  /// Where the visible appearance comes from (which value an own appearance reports is assumed).
  virtual core::AppearanceSourceTypes appearanceSourceType() const = 0;
  /// Its physical material; never empty (assumed).
  virtual core::Ptr<core::Material> material() const = 0;
  /// False for an empty material (assumed). The body's own appearance stays (assumed).
  virtual bool material(const core::Ptr<core::Material>& value) = 0;
  /// All faces; proxies of the same context for a proxy (the latter assumed).
  virtual core::Ptr<BRepFaces> faces() const = 0;
  /// The component that owns it.
  virtual core::Ptr<Component> parentComponent() const = 0;
  /// The occurrence through which it is seen; empty for a native body.
  virtual core::Ptr<Occurrence> assemblyContext() const = 0;
};

}  // namespace fusion
}  // namespace adsk
