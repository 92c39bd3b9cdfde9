// Class ColorProperty.
#pragma once

#include "../Base.h"
#include "Property.h"

namespace adsk {
namespace core {

class Color;

/// A property that holds a colour, or a texture in place of it. All members are documented unless marked.
class ColorProperty : public Property {
  ADSK_API_CLASS(ColorProperty, Property)

  /// The colour; empty while a texture is in use.
  virtual Ptr<Color> value() const = 0;
  /// Removes the texture, if there is one. False when the property is read-only or the handle is empty (the latter
  /// assumed).
  virtual bool value(const Ptr<Color>& value) = 0;
  /// True while a texture is in use.
  virtual bool hasConnectedTexture() const = 0;
};

}  // namespace core
}  // namespace adsk
