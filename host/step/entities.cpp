#include "host/step/entities.h"

#include <StepBasic_ProductDefinitionFormation.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>

#include "host/step/step_text.h"

namespace headless::step {

TopoDS_Shape shapeOf(const Handle(XSControl_WorkSession) & session, const Handle(Standard_Transient) & entity) {
  const Handle(Transfer_TransientProcess)& process = session->TransferReader()->TransientProcess();
  const Handle(Transfer_Binder) binder = entity.IsNull() ? Handle(Transfer_Binder)() : process->Find(entity);
  if (binder.IsNull() || !binder->HasResult()) {
    return {};
  }
  return TransferBRep::ShapeResult(process, binder);
}

Handle(StepBasic_Product) productOf(const StepBasic_ProductDefinition& definition) {
  const auto formation = definition.Formation();
  return formation.IsNull() ? Handle(StepBasic_Product)() : formation->OfProduct();
}

std::string productName(const StepBasic_ProductDefinition& definition) {
  const auto product = productOf(definition);
  if (product.IsNull()) {
    return {};
  }
  const std::string name = textOf(product->Name());
  return name.empty() ? textOf(product->Id()) : name;
}

}  // namespace headless::step
