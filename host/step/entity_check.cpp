#include "host/step/entity_check.h"

#include <Interface_Check.hxx>
#include <StepBasic_NamedUnit.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <StepGeom_Placement.hxx>
#include <StepRepr_AssemblyComponentUsage.hxx>
#include <StepRepr_DefinitionalRepresentation.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_MappedItem.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_RepresentationRelationship.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <StepShape_TopologicalRepresentationItem.hxx>
#include <StepVisual_ContextDependentOverRidingStyledItem.hxx>
#include <StepVisual_DraughtingModel.hxx>
#include <StepVisual_FillAreaStyle.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_OverRidingStyledItem.hxx>
#include <StepVisual_PresentationStyleAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <StepVisual_SurfaceSideStyle.hxx>
#include <StepVisual_SurfaceStyleRenderingWithProperties.hxx>
#include <StepVisual_SurfaceStyleTransparent.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "host/step/entities.h"
#include "host/step/material_reader.h"
#include "host/step/step_file.h"

namespace headless::step {

namespace {

using Entity = Handle(Standard_Transient);

template <class... Kinds>
bool isAnyOf(const Standard_Transient& entity) {
  return (... || entity.IsKind(STANDARD_TYPE(Kinds)));
}

/// Of these kinds and no other: those derived from them are annotations.
bool isStyle(const Standard_Transient& entity) {
  return entity.IsInstance(STANDARD_TYPE(StepVisual_StyledItem)) ||
         entity.IsInstance(STANDARD_TYPE(StepVisual_OverRidingStyledItem)) ||
         entity.IsInstance(STANDARD_TYPE(StepVisual_ContextDependentOverRidingStyledItem));
}

bool tellsMaterial(const Entity& entity) {
  const auto representation = Handle(StepRepr_PropertyDefinitionRepresentation)::DownCast(entity);
  const auto property = representation.IsNull() ? nullptr : representation->Definition().PropertyDefinition();
  return !property.IsNull() && isMaterialProperty(*property);
}

bool isCollectionOfLooks(const Standard_Transient& entity) {
  return isAnyOf<StepVisual_PresentationStyleAssignment, StepVisual_SurfaceSideStyle,
                 StepVisual_SurfaceStyleRenderingWithProperties>(entity);
}

/// Not those that describe a curve on a surface: all of them is read.
bool isCollectionOfItems(const Standard_Transient& entity) {
  return isAnyOf<StepRepr_Representation>(entity) && !isAnyOf<StepRepr_DefinitionalRepresentation>(entity);
}

/// What reading starts from: products, their shapes and places, styles, materials.
bool isStart(const Entity& entity) {
  return isAnyOf<StepBasic_ProductDefinition, StepRepr_AssemblyComponentUsage, StepShape_ShapeDefinitionRepresentation,
                 StepShape_ContextDependentShapeRepresentation, StepRepr_ShapeRepresentationRelationship,
                 StepVisual_DraughtingModel, StepVisual_MechanicalDesignGeometricPresentationRepresentation>(*entity) ||
         isStyle(*entity) || tellsMaterial(entity);
}

/// The type or types of an entity that the kernel does not know; empty when it does.
std::string unknownTypeOf(const Entity& entity) {
  std::string types;
  for (auto part = Handle(StepData_UndefinedEntity)::DownCast(entity); !part.IsNull(); part = part->Next()) {
    types += (types.empty() ? "" : " ") + std::string(part->StepType());
  }
  return types;
}

/// What leads from the things that reading starts from to damaged entities.
class Uses {
 public:
  explicit Uses(const Interface_Graph& references) : graph(references) {}

  bool isRead(const Entity& damaged) {
    std::vector<Entity> open{damaged};
    while (!open.empty()) {
      const Entity entity = open.back();
      open.pop_back();
      if (isStart(entity) || tiesStructure(entity)) {
        return true;
      }
      Interface_EntityIterator users = graph.Sharings(entity);
      for (users.Start(); users.More(); users.Next()) {
        const Entity& user = users.Value();
        if (isReadIn(*user, entity) && unread.insert(user.get()).second) {
          open.push_back(user);
        }
      }
    }
    return false;
  }

  /// How many entities of these kinds an entity refers to.
  template <class... Kinds>
  int countUsed(const Entity& entity) const {
    int count = 0;
    Interface_EntityIterator used = graph.Shareds(entity);
    for (used.Start(); used.More(); used.Next()) {
      count += isAnyOf<Kinds...>(*used.Value()) ? 1 : 0;
    }
    return count;
  }

 private:
  /// An entity of unknown type that ties together products and shapes would be one to start from, if it were known.
  bool tiesStructure(const Entity& entity) const {
    return isAnyOf<StepData_UndefinedEntity>(*entity) &&
           countUsed<StepBasic_ProductDefinition, StepRepr_ProductDefinitionShape, StepShape_ShapeRepresentation,
                     StepRepr_RepresentationRelationship>(entity) > 1;
  }

  /// False for what collections hold and nobody reads: many programs put annotations beside the shapes, and looks that
  /// the kernel does not know beside the colours.
  bool isReadIn(const Standard_Transient& user, const Entity& entity) const {
    const bool isUnknown = isAnyOf<StepData_UndefinedEntity>(*entity);
    if (isCollectionOfLooks(user)) {
      return !isUnknown ||
             countUsed<StepVisual_FillAreaStyle, StepVisual_SurfaceSideStyle, StepVisual_SurfaceStyleTransparent>(
                 entity) > 0;
    }
    if (!isCollectionOfItems(user)) {
      return true;
    }
    if (isUnknown) {
      return countUsed<StepShape_SolidModel, StepShape_TopologicalRepresentationItem, StepRepr_RepresentationMap,
                       StepBasic_NamedUnit>(entity) > 0;
    }
    return isAnyOf<StepShape_SolidModel, StepShape_TopologicalRepresentationItem, StepShape_ShellBasedSurfaceModel,
                   StepRepr_MappedItem, StepGeom_Placement, StepRepr_RepresentationContext,
                   StepRepr_MeasureRepresentationItem, StepRepr_DescriptiveRepresentationItem>(*entity) ||
           isStyle(*entity);
  }

  const Interface_Graph& graph;
  /// Uses of damaged entities that are not read, as far as they are known.
  std::unordered_set<const Standard_Transient*> unread;
};

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::string withoutIndent(const std::string& text) {
  return text.substr(std::min(text.size(), text.find_first_not_of(' ')));
}

/// The first thing that is wrong with the values of an entity, in the kernel's words; empty when nothing is that
/// counts.
std::string failureOf(const Entity& entity, const Interface_Check& check, const Uses& uses) {
  for (int i = 1; i <= check.NbFails(); ++i) {
    const std::string text = check.CFail(i);
    // Some programs leave out texts, and the kernel can do without.
    const bool isAboutText = contains(text, "not a quoted String");
    // A value of unknown type is told itself.
    const bool isToldElsewhere =
        contains(text, "has illegal type") && uses.countUsed<StepData_UndefinedEntity>(entity) > 0;
    if (!isAboutText && !isToldElsewhere) {
      return withoutIndent(text);
    }
  }
  return {};
}

std::string defectOf(const StepData_StepModel& entities, int number, const Uses& uses) {
  const Entity& entity = entities.Value(number);
  const std::string type = unknownTypeOf(entity);
  return type.empty() ? failureOf(entity, *entities.Check(number, true), uses) : "unknown type " + type;
}

std::string labelOf(const StepData_StepModel& entities, int number) {
  return "#" + std::to_string(entities.IdentLabel(entities.Value(number)));
}

}  // namespace

void checkEntities(const std::filesystem::path& file, const Handle(XSControl_WorkSession) & session) {
  const auto entities = Handle(StepData_StepModel)::DownCast(session->Model());
  Uses uses(session->Graph());
  for (int number = 1; number <= entities->NbEntities(); ++number) {
    const std::string defect = defectOf(*entities, number, uses);
    if (!defect.empty() && uses.isRead(entities->Value(number))) {
      failReading(file, "the file is damaged at " + labelOf(*entities, number) + " (" + defect + ")",
                  "Copy or export it again.");
    }
  }
}

void checkTranslation(const std::filesystem::path& file, const Handle(XSControl_WorkSession) & session) {
  const auto entities = Handle(StepData_StepModel)::DownCast(session->Model());
  const Handle(Transfer_TransientProcess)& process = session->TransferReader()->TransientProcess();
  for (int number = 1; number <= entities->NbEntities(); ++number) {
    const Entity& entity = entities->Value(number);
    if (!isAnyOf<StepShape_SolidModel, StepShape_ShellBasedSurfaceModel, StepShape_ConnectedFaceSet, StepShape_Face>(
            *entity)) {
      continue;
    }
    const Handle(Transfer_Binder) binder = process->Find(entity);
    if (!binder.IsNull() && !binder->HasResult()) {
      const Handle(Interface_Check) check = binder->Check();
      const std::string why = check->HasFailed() ? " (" + withoutIndent(check->CFail(1)) + ")" : "";
      failReading(file, "the geometry kernel makes no shape of " + labelOf(*entities, number) + why,
                  "Export it again; if that does not help, leave out parts until it reads.");
    }
  }
}

}  // namespace headless::step
