#include "host/step/shape.h"

#include <gp_Trsf.hxx>

namespace headless::step {

std::shared_ptr<const model::Shape> makeShape(const TopoDS_Shape& geometry) {
  return std::make_shared<const model::Shape>(model::Shape{geometry});
}

TopLoc_Location locationOf(const model::Placement& placement) {
  if (placement == model::identityPlacement) {
    return {};
  }
  const model::Placement& p = placement;
  gp_Trsf transformation;
  transformation.SetValues(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10], p[11]);
  return TopLoc_Location(transformation);
}

model::Placement placementOf(const TopLoc_Location& location) {
  model::Placement placement = model::identityPlacement;
  if (location.IsIdentity()) {
    return placement;
  }
  const gp_Trsf& transformation = location.Transformation();
  auto value = placement.begin();
  for (int row = 1; row <= 3; ++row) {
    for (int column = 1; column <= 4; ++column) {
      *value++ = transformation.Value(row, column) + 0.0;  // no negative zero
    }
  }
  return placement;
}

}  // namespace headless::step
