// Class Color.
#pragma once

#include "../Base.h"

namespace adsk {
namespace core {

/// A colour of three channels and an opacity, each 0 to 255. A value of its own: changing the one that a property gave
/// changes no appearance (assumed). All members are documented unless marked.
class Color : public Base {
  ADSK_API_CLASS(Color, Base)

  /// A new colour; opacity 255 is opaque. Empty when a number is outside of 0 to 255 (the latter assumed).
  static Ptr<Color> create(short red, short green, short blue, short opacity);

  /// The channels, and the opacity: 255 is opaque. A setter gives false, and changes nothing, outside of 0 to 255 (the
  /// latter assumed).
  virtual short red() const = 0;
  virtual bool red(short value) = 0;
  virtual short green() const = 0;
  virtual bool green(short value) = 0;
  virtual short blue() const = 0;
  virtual bool blue(short value) = 0;
  virtual short opacity() const = 0;
  virtual bool opacity(short value) = 0;
};

}  // namespace core
}  // namespace adsk
