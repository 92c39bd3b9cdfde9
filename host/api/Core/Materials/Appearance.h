// Class Appearance.
#pragma once

#include <string>

#include "../Base.h"

namespace adsk {
namespace core {

class Properties;

/// A look that can be applied to an occurrence, a body or a face. All members are documented unless marked.
class Appearance : public Base {
  ADSK_API_CLASS(Appearance, Base)

  /// Name as shown.
  virtual std::string name() const = 0;
  /// Id in its library or design, independent of the language.
  virtual std::string id() const = 0;
  /// True when a picture is in use in place of a colour.
  virtual bool hasTexture() const = 0;
  /// What can be said about the surface: the colour is "opaque_albedo", "metal_f0" or "transparent_color", by the kind
  /// of the surface; "surface_roughness" is 0 for a mirror and 1 for matt (that it is a number,
  /// FloatProperty, is assumed). No appearance need have any of them.
  virtual Ptr<Properties> appearanceProperties() const = 0;
  /// True when something in its design shows it; false in a library.
  virtual bool isUsed() const = 0;
  /// Deletes it from its design; false in a library, and while it is used.
  virtual bool deleteMe() = 0;
};

}  // namespace core
}  // namespace adsk
