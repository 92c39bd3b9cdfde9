#include "host/step/structure_check.h"

#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_MappedItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <algorithm>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/step/entities.h"
#include "host/step/kernel_session.h"
#include "host/step/step_file.h"

namespace headless::step {

namespace {

using Entity = Handle(Standard_Transient);

/// Which products and representations lead to which others.
class Structure {
 public:
  explicit Structure(Handle(XSControl_WorkSession) workSession) : session(std::move(workSession)) {
    addUsages();
    addPlacements();
    addMappedItems();
  }

  /// The number of levels; raises through `onCircle(entity)` when there is no end.
  template <class OnCircle>
  int levels(const OnCircle& onCircle) {
    int deepest = 0;
    for (const auto& [entity, parts] : partsOf) {
      deepest = std::max(deepest, levelsBelow(entity, onCircle));
    }
    return deepest;
  }

 private:
  void addUsages() {
    using Usage = StepRepr_NextAssemblyUsageOccurrence;
    forEachEntity<Usage>(session, [&](const Handle(Usage) & usage) {
      add(usage->RelatingProductDefinition(), usage->RelatedProductDefinition());
    });
  }

  /// The kernel finds the placed product by the representations that a placement relates.
  void addPlacements() {
    using Placement = StepShape_ContextDependentShapeRepresentation;
    forEachEntity<Placement>(session, [&](const Handle(Placement) & placement) {
      const auto shape = placement->RepresentedProductRelation();
      const auto relationship = placement->RepresentationRelation();
      const auto usage = shape.IsNull() ? nullptr : shape->Definition().ProductDefinitionRelationship();
      if (usage.IsNull() || relationship.IsNull()) {
        return;
      }
      const auto user = usage->RelatingProductDefinition();
      for (const auto& representation : {relationship->Rep1(), relationship->Rep2()}) {
        for (const auto& product : productsShownBy(representation)) {
          if (product != user) {
            add(user, product);
          }
        }
      }
    });
  }

  std::vector<Handle(StepBasic_ProductDefinition)> productsShownBy(const Handle(StepRepr_Representation) &
                                                                   representation) const {
    std::vector<Handle(StepBasic_ProductDefinition)> products;
    using Definition = StepShape_ShapeDefinitionRepresentation;
    forEachSharing<Definition>(session, representation, [&](const Handle(Definition) & definition) {
      const auto shape = definition->Definition().PropertyDefinition();
      const auto product = shape.IsNull() ? nullptr : shape->Definition().ProductDefinition();
      if (!product.IsNull()) {
        products.push_back(product);
      }
    });
    return products;
  }

  void addMappedItems() {
    forEachEntity<StepRepr_Representation>(session, [&](const Handle(StepRepr_Representation) & representation) {
      for (int i = 1; i <= representation->NbItems(); ++i) {
        const auto mapped = Handle(StepRepr_MappedItem)::DownCast(representation->ItemsValue(i));
        if (!mapped.IsNull() && !mapped->MappingSource().IsNull()) {
          add(representation, mapped->MappingSource()->MappedRepresentation());
        }
      }
    });
  }

  void add(const Entity& whole, const Entity& part) {
    if (!whole.IsNull() && !part.IsNull()) {
      partsOf[whole.get()].push_back(part.get());
    }
  }

  /// Follows everything below an entity with a stack of its own; what is known already is not followed again.
  template <class OnCircle>
  int levelsBelow(const Standard_Transient* top, const OnCircle& onCircle) {
    constexpr int unfinished = -1;
    struct Step {
      const Standard_Transient* entity;
      std::size_t next;
      int levels;
    };
    std::vector<Step> steps;
    const auto enter = [&](const Standard_Transient* entity) {
      known.emplace(entity, unfinished);
      steps.push_back({entity, 0, 0});
    };
    if (known.count(top) == 0) {
      enter(top);
    }
    while (!steps.empty()) {
      Step& step = steps.back();
      const auto parts = partsOf.find(step.entity);
      if (parts == partsOf.end() || step.next == parts->second.size()) {
        const int levels = step.levels + 1;
        known[step.entity] = levels;
        steps.pop_back();
        if (!steps.empty()) {
          steps.back().levels = std::max(steps.back().levels, levels);
        }
        continue;
      }
      const Standard_Transient* part = parts->second[step.next++];
      const auto found = known.find(part);
      if (found == known.end()) {
        enter(part);
      } else if (found->second == unfinished) {
        onCircle(part);
      } else {
        step.levels = std::max(step.levels, found->second);
      }
    }
    return known[top];
  }

  const Handle(XSControl_WorkSession) session;
  std::unordered_map<const Standard_Transient*, std::vector<const Standard_Transient*>> partsOf;
  std::unordered_map<const Standard_Transient*, int> known;
};

std::string nameOf(const Standard_Transient* entity) {
  const auto* product = dynamic_cast<const StepBasic_ProductDefinition*>(entity);
  return product != nullptr ? "product \"" + productName(*product) + "\"" : "a representation";
}

}  // namespace

void checkStructure(const std::filesystem::path& file, const Handle(XSControl_WorkSession) & session) {
  Structure structure(session);
  const int levels = structure.levels([&](const Standard_Transient* entity) {
    failReading(file, nameOf(entity) + " contains itself", "Correct the assembly and export it again.");
  });
  if (levels > deepestNesting) {
    failReading(file, "assemblies are nested " + std::to_string(levels) + " levels deep",
                "Flatten the assembly to " + std::to_string(deepestNesting) + " levels or less.");
  }
}

}  // namespace headless::step
