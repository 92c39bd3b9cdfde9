#include "host/step/triangles.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS.hxx>
#include <gp_Trsf.hxx>

#include "host/model/resolution.h"
#include "host/step/design_walk.h"
#include "host/step/kernel_session.h"
#include "host/step/shape.h"

namespace headless::step {

namespace {

/// Gathers the triangles of one design.
class Gatherer {
 public:
  void addBodies(const model::Component& component, const model::Occurrence* context, const TopLoc_Location& place) {
    for (const auto& body : component.bodies) {
      for (const auto& face : body->faces) {
        const auto look = lookOf(*face, context).appearance;
        addFace(TopoDS::Face(face->shape->geometry), place, look ? look->colour : model::Colour{});
      }
    }
  }

  void addOccurrences(const std::vector<model::Occurrence*>& occurrences, const TopLoc_Location& outer) {
    for (const model::Occurrence* occurrence : occurrences) {
      const TopLoc_Location place = outer * locationOf(occurrence->instance->placement);
      addBodies(occurrence->component(), occurrence, place);
      addOccurrences(occurrence->children, place);
    }
  }

  std::vector<Triangle> triangles;

 private:
  void addFace(const TopoDS_Face& face, const TopLoc_Location& place, const model::Colour& colour) {
    TopLoc_Location own;
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, own);
    ++faces;
    if (mesh.IsNull()) {
      return;
    }
    const gp_Trsf toRoot = (place * own).Transformation();
    const auto corner = [&](int node) {
      const gp_Pnt point = mesh->Node(node).Transformed(toRoot);
      return Point{point.X(), point.Y(), point.Z()};
    };
    for (int i = 1; i <= mesh->NbTriangles(); ++i) {
      int a = 0;
      int b = 0;
      int c = 0;
      mesh->Triangle(i).Get(a, b, c);
      triangles.push_back({{corner(a), corner(b), corner(c)}, colour, faces});
    }
  }

  std::uint32_t faces = 0;
};

}  // namespace

std::vector<Triangle> trianglesOf(const model::Design& design, const MeshQuality& quality, const Progress& progress) {
  const KernelSession kernel;
  requireDepth(design);
  meshBodies(design, quality, progress);
  Gatherer gatherer;
  gatherer.addBodies(design.root(), nullptr, TopLoc_Location());
  gatherer.addOccurrences(design.root().occurrences(), TopLoc_Location());
  return std::move(gatherer.triangles);
}

}  // namespace headless::step
