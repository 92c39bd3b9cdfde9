#include "host/step/product_writer.h"

#include <BRepBuilderAPI_Copy.hxx>
#include <BRep_Builder.hxx>
#include <GeomToStep_MakeAxis2Placement3d.hxx>
#include <Message_ProgressScope.hxx>
#include <STEPCAFControl_ActorWrite.hxx>
#include <STEPConstruct.hxx>
#include <STEPConstruct_Assembly.hxx>
#include <STEPConstruct_Part.hxx>
#include <StepData_StepModel.hxx>
#include <StepGeom_Axis2Placement3d.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <TopoDS_Compound.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_FinderProcess.hxx>
#include <Transfer_TransientListBinder.hxx>
#include <XSControl_Controller.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>

#include "host/step/design_walk.h"
#include "host/step/entities.h"
#include "host/step/error.h"
#include "host/step/shape.h"
#include "host/step/step_text.h"

namespace headless::step {

namespace {

using Items = std::vector<Handle(StepRepr_RepresentationItem)>;

/// Compounds are groups of bodies here, never assemblies, which the kernel would make of them by itself.
class PartsOnly {
 public:
  explicit PartsOnly(const Handle(XSControl_WorkSession) & session)
      : actor(Handle(STEPCAFControl_ActorWrite)::DownCast(session->NormAdaptor()->ActorWrite())) {
    actor->SetStdMode(false);
  }
  ~PartsOnly() { actor->SetStdMode(true); }
  PartsOnly(const PartsOnly&) = delete;
  PartsOnly& operator=(const PartsOnly&) = delete;

 private:
  Handle(STEPCAFControl_ActorWrite) actor;
};

/// The origin that the kernel puts into every representation.
Handle(StepGeom_Axis2Placement3d) originOf(const StepShape_ShapeRepresentation& representation) {
  for (int i = 1; i <= representation.NbItems(); ++i) {
    auto axes = Handle(StepGeom_Axis2Placement3d)::DownCast(representation.ItemsValue(i));
    if (!axes.IsNull()) {
      return axes;
    }
  }
  throw Error("Cannot write STEP: a product has no coordinate system. Report this as a defect.");
}

/// Every placement that a representation is referred to by must be one of its items.
void appendItems(StepShape_ShapeRepresentation& representation, const Items& added) {
  const int present = representation.NbItems();
  const Handle(StepRepr_HArray1OfRepresentationItem) all =
      new StepRepr_HArray1OfRepresentationItem(1, present + static_cast<int>(added.size()));
  for (int i = 1; i <= present; ++i) {
    all->SetValue(i, representation.ItemsValue(i));
  }
  int next = present;
  for (const auto& item : added) {
    all->SetValue(++next, item);
  }
  representation.SetItems(all);
}

}  // namespace

ProductWriter::ProductWriter(const model::Design& design, const Progress& progress)
    : workSession(writer.WS()), order(reachedComponents(design)) {
  Phase phase(progress, "translating");
  const Handle(KernelProgress) shown = new KernelProgress(phase);
  Message_ProgressScope scope(shown->Start(), nullptr, static_cast<double>(order.size()));
  const PartsOnly partsOnly(workSession);
  for (const model::Component* component : order) {
    writeProduct(*component, scope.Next());
  }
  for (const model::Component* component : order) {
    writeInstances(*component);
  }
  phase.finish();
}

void ProductWriter::writeProduct(const model::Component& component, const Message_ProgressRange& range) {
  const BRep_Builder builder;
  TopoDS_Compound compound;
  builder.MakeCompound(compound);
  for (const auto& body : component.bodies) {
    builder.Add(compound, takeGeometry(*body));
  }
  const auto status = writer.Transfer(compound, STEPControl_AsIs, false, range);
  const Handle(Transfer_FinderProcess)& process = workSession->TransferWriter()->FinderProcess();
  Handle(StepShape_ShapeDefinitionRepresentation) definition;
  process->FindTypedTransient(TransferBRep::ShapeMapper(process, compound),
                              STANDARD_TYPE(StepShape_ShapeDefinitionRepresentation), definition);
  if (status != IFSelect_RetDone || definition.IsNull()) {
    throw Error("Cannot write STEP: the geometry of component \"" + component.name +
                "\" cannot be translated. Leave the component out or read it again.");
  }
  STEPConstruct_Part& part = products[&component];
  part.ReadSDR(definition);
  part.SetPid(stepText(component.name));
  part.SetPname(stepText(component.name));
  if (&component == order.front() && component.instances.empty()) {
    part.SetPdescription(stepText(rootDescription));
  }
  for (const auto& body : component.bodies) {
    for (const auto& item : items(*body)) {
      item->SetName(stepText(body->name));
    }
  }
}

/// The body's geometry, or a copy when another body has the same: one entity cannot have two colours.
TopoDS_Shape ProductWriter::takeGeometry(const model::Body& body) {
  requireGeometry(body);
  const TopoDS_Shape& original = body.shape->geometry;
  const bool isFirst = usedGeometry.insert(original.TShape().get()).second;
  BRepBuilderAPI_Copy copy;
  if (!isFirst) {
    copy.Perform(original);
  }
  for (const auto& face : body.faces) {
    faceGeometry[face.get()] = isFirst ? face->shape->geometry : copy.ModifiedShape(face->shape->geometry);
  }
  return bodyGeometry[&body] = isFirst ? original : copy.Shape();
}

Items ProductWriter::items(const model::Body& body) const {
  return itemsOf(bodyGeometry.at(&body));
}

Items ProductWriter::items(const model::Face& face) const {
  return itemsOf(faceGeometry.at(&face));
}

Items ProductWriter::itemsOf(const TopoDS_Shape& shape) const {
  const Handle(Transfer_FinderProcess)& process = workSession->TransferWriter()->FinderProcess();
  if (const auto item = STEPConstruct::FindEntity(process, shape); !item.IsNull()) {
    return {item};
  }
  // The kernel may have split the shape when it prepared it for the file.
  Items parts;
  const auto several =
      Handle(Transfer_TransientListBinder)::DownCast(process->Find(TransferBRep::ShapeMapper(process, shape)));
  for (int i = 1; !several.IsNull() && i <= several->NbTransients(); ++i) {
    const auto part = Handle(StepRepr_RepresentationItem)::DownCast(several->Transient(i));
    if (!part.IsNull()) {
      parts.push_back(part);
    }
  }
  return parts;
}

void ProductWriter::add(const Handle(Standard_Transient) & entity) {
  workSession->Model()->AddWithRefs(entity);
}

void ProductWriter::writeInstances(const model::Component& component) {
  const STEPConstruct_Part& parent = product(component);
  Items axes;
  for (const auto& instance : component.instances) {
    const STEPConstruct_Part& child = product(*instance->component);
    const GeomToStep_MakeAxis2Placement3d place(locationOf(instance->placement).Transformation());
    STEPConstruct_Assembly& usage = usages[instance.get()];
    usage.Init(child.SDRValue(), parent.SDRValue(), originOf(*child.SRValue()), place.Value());
    usage.MakeRelationship();
    usage.GetNAUO()->SetId(stepText(instance->name()));
    usage.GetNAUO()->SetName(stepText(instance->name()));
    axes.push_back(place.Value());
    add(usage.ItemValue());
  }
  appendItems(*parent.SRValue(), axes);
}

}  // namespace headless::step
