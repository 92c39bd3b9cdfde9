// Finding one's way among the entities of a STEP file.
#pragma once

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <Interface_InterfaceModel.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>
#include <string>

namespace headless::step {

/// How write() describes a root product without instances, so that read() does not take it for a part.
inline constexpr const char* rootDescription = "root of the design";

/// Calls visit(entity) for every entity of that type in the session, in the file's order.
template <class Entity, class Visit>
void forEachEntity(const Handle(XSControl_WorkSession) & session, const Visit& visit) {
  const Handle(Interface_InterfaceModel)& entities = session->Model();
  for (int number = 1; number <= entities->NbEntities(); ++number) {
    if (auto* entity = dynamic_cast<Entity*>(entities->Value(number).get())) {
      visit(Handle(Entity)(entity));
    }
  }
}

/// Calls visit(entity) for every entity of that type that refers to `entity`.
template <class Entity, class Visit>
void forEachSharing(const Handle(XSControl_WorkSession) & session, const Handle(Standard_Transient) & entity,
                    const Visit& visit) {
  Interface_EntityIterator sharings = session->Graph().Sharings(entity);
  for (sharings.Start(); sharings.More(); sharings.Next()) {
    const Handle(Entity) sharing = Handle(Entity)::DownCast(sharings.Value());
    if (!sharing.IsNull()) {
      visit(sharing);
    }
  }
}

/// What an entity of the session was translated to; null when it became no shape.
TopoDS_Shape shapeOf(const Handle(XSControl_WorkSession) & session, const Handle(Standard_Transient) & entity);

/// The product of a definition; null when the file leaves it out.
Handle(StepBasic_Product) productOf(const StepBasic_ProductDefinition& definition);

/// The product's name, or its id when it has no name. UTF-8.
std::string productName(const StepBasic_ProductDefinition& definition);

}  // namespace headless::step
