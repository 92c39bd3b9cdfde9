// The products of a design as STEP entities: one for each component, with its geometry, and one usage for each
// instance.
#pragma once

#include <Message_ProgressRange.hxx>
#include <STEPConstruct_Assembly.hxx>
#include <STEPConstruct_Part.hxx>
#include <STEPControl_Writer.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/model/design.h"
#include "host/step/progress.h"

namespace headless::step {

/// Makes the entities, in the session of its writer, and finds them again. A component that has instances as well as
/// bodies becomes a product with geometry of its own that also uses others.
class ProductWriter {
 public:
  /// Writes all components that are reached from the root. Phase: "translating". Raises Error when a body or face has
  /// no geometry.
  ProductWriter(const model::Design& design, const Progress& progress);

  /// The components that were written, the root first.
  const std::vector<const model::Component*>& components() const { return order; }

  /// The entities of a component and of an instance.
  const STEPConstruct_Part& product(const model::Component& component) const { return products.at(&component); }
  const STEPConstruct_Assembly& usage(const model::Instance& instance) const { return usages.at(&instance); }

  /// The entities of a body or face; mostly one. Empty when the kernel left the shape out.
  std::vector<Handle(StepRepr_RepresentationItem)> items(const model::Body& body) const;
  std::vector<Handle(StepRepr_RepresentationItem)> items(const model::Face& face) const;

  const Handle(XSControl_WorkSession) & session() const { return workSession; }

  /// Adds an entity, and what it refers to, to the file.
  void add(const Handle(Standard_Transient) & entity);

 private:
  void writeProduct(const model::Component& component, const Message_ProgressRange& range);
  void writeInstances(const model::Component& component);
  TopoDS_Shape takeGeometry(const model::Body& body);
  std::vector<Handle(StepRepr_RepresentationItem)> itemsOf(const TopoDS_Shape& shape) const;

  STEPControl_Writer writer;
  Handle(XSControl_WorkSession) workSession;
  std::vector<const model::Component*> order;
  std::unordered_map<const model::Component*, STEPConstruct_Part> products;
  std::unordered_map<const model::Instance*, STEPConstruct_Assembly> usages;
  std::unordered_set<const TopoDS_TShape*> usedGeometry;
  std::unordered_map<const model::Body*, TopoDS_Shape> bodyGeometry;
  std::unordered_map<const model::Face*, TopoDS_Shape> faceGeometry;
};

}  // namespace headless::step
