#include "host/step/mesher.h"

#include <BRepBndLib.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <Bnd_Box.hxx>
#include <IMeshTools_Parameters.hxx>
#include <Message_ProgressScope.hxx>
#include <cmath>
#include <vector>

#include "host/step/design_walk.h"
#include "host/step/shape.h"

namespace headless::step {

namespace {

double diagonalOf(const TopoDS_Shape& shape) {
  constexpr double unknown = 100.0;
  Bnd_Box box;
  BRepBndLib::Add(shape, box, false);
  return box.IsVoid() || box.IsOpen() ? unknown : std::sqrt(box.SquareExtent());
}

void mesh(const TopoDS_Shape& shape, const MeshQuality& quality, const Message_ProgressRange& range) {
  IMeshTools_Parameters parameters;
  parameters.Deflection = quality.deviation * diagonalOf(shape);
  parameters.Angle = quality.angle;
  parameters.InParallel = true;
  BRepMesh_IncrementalMesh(shape, parameters, range);
}

}  // namespace

void meshBodies(const model::Design& design, const MeshQuality& quality, const Progress& progress) {
  std::vector<const model::Body*> bodies;
  for (const model::Component* component : reachedComponents(design)) {
    for (const auto& body : component->bodies) {
      requireGeometry(*body);
      bodies.push_back(body.get());
    }
  }
  Phase phase(progress, "meshing");
  const Handle(KernelProgress) shown = new KernelProgress(phase);
  Message_ProgressScope scope(shown->Start(), nullptr, static_cast<double>(bodies.size()));
  for (const model::Body* body : bodies) {
    mesh(body->shape->geometry, quality, scope.Next());
  }
  phase.finish();
}

}  // namespace headless::step
