// What a design's geometry is: shapes of the Open CASCADE kernel, in millimetres, and how the kernel's placements
// correspond to the design's.
#pragma once

#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>
#include <memory>

#include "host/model/design.h"

namespace headless::model {

/// A solid or shell in its component's coordinates, or one of its faces. Holds all it needs, no file.
struct Shape {
  TopoDS_Shape geometry;
};

}  // namespace headless::model

namespace headless::step {

std::shared_ptr<const model::Shape> makeShape(const TopoDS_Shape& geometry);

/// The kernel's placement. Raises Standard_ConstructionError when the rotation's rows are none.
TopLoc_Location locationOf(const model::Placement& placement);

model::Placement placementOf(const TopLoc_Location& location);

}  // namespace headless::step
