// Class BRepFace.
#pragma once

#include "../../Core/Base.h"
#include "../../Core/CoreTypeDefs.h"

namespace adsk {
namespace core {
class Appearance;
}  // namespace core

namespace fusion {

class BRepBody;
class Occurrence;

/// A face of a body. All members are documented unless marked.
class BRepFace : public core::Base {
  ADSK_API_CLASS(BRepFace, core::Base)

  /// What the face shows, whatever the source; never empty, as for bodies (assumed).
  virtual core::Ptr<core::Appearance> appearance() const = 0;
  /// Applies an appearance to the face; an empty handle removes it.
  virtual bool appearance(const core::Ptr<core::Appearance>& value) = 0;
  /// Where the visible appearance comes from (which value an own appearance reports is assumed).
  virtual core::AppearanceSourceTypes appearanceSourceType() const = 0;
  /// Its body, in the same context.
  virtual core::Ptr<BRepBody> body() const = 0;
  /// The occurrence through which it is seen; empty for a native face.
  virtual core::Ptr<Occurrence> assemblyContext() const = 0;
};

}  // namespace fusion
}  // namespace adsk
