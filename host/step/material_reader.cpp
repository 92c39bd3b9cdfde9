#include "host/step/material_reader.h"

#include <StepAP242_ItemIdentifiedRepresentationUsage.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_MakeFromUsageOption.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_ShapeAspect.hxx>
#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <utility>

#include "host/model/materials.h"
#include "host/step/entities.h"
#include "host/step/step_text.h"
#include "host/step/units.h"

namespace headless::step {

namespace {

using MaterialPtr = std::shared_ptr<const model::Material>;

/// What a file says about a material.
struct Description {
  std::string name;
  std::optional<double> density;
};

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

/// One object for each name and density.
class Materials {
 public:
  explicit Materials(const MaterialLookup& byName) : lookup(byName) {}

  MaterialPtr of(const Description& description) {
    MaterialPtr& material = known[{description.name, description.density}];
    if (!material && lookup) {
      material = lookup(description.name);
    }
    if (!material) {
      material = make(description);
    }
    return material;
  }

 private:
  static MaterialPtr make(const Description& description) {
    const auto& look = model::defaultMaterial()->appearance;
    if (description.density) {
      return model::makeMaterial(description.name, *description.density, look);
    }
    return std::make_shared<const model::Material>(
        model::Material{model::idFromName(description.name), description.name, {}, look});
  }

  const MaterialLookup& lookup;
  std::map<std::pair<std::string, std::optional<double>>, MaterialPtr> known;
};

/// Reads the materials of one session.
class SessionMaterials {
 public:
  SessionMaterials(const TranslatedFile& translated, Handle(XSControl_WorkSession) workSession, BuiltDesign& target,
                   Materials& shared)
      : file(translated), session(std::move(workSession)), built(target), materials(shared) {}

  void read() {
    describeProperties();
    describeRawMaterials();
    assignToProducts();
    assignToBodies();
  }

 private:
  void describeProperties() {
    forEachEntity<StepRepr_PropertyDefinition>(session, [&](const Handle(StepRepr_PropertyDefinition) & property) {
      if (!isMaterialProperty(*property)) {
        return;
      }
      Description& description = descriptions[property->Definition().Value()];
      using Representation = StepRepr_PropertyDefinitionRepresentation;
      forEachSharing<Representation>(session, property, [&](const Handle(Representation) & representation) {
        if (!representation->UsedRepresentation().IsNull()) {
          describe(*representation->UsedRepresentation(), description);
        }
      });
    });
  }

  static void describe(const StepRepr_Representation& representation, Description& description) {
    for (int i = 1; i <= representation.NbItems(); ++i) {
      const auto item = representation.ItemsValue(i);
      if (const auto text = Handle(StepRepr_DescriptiveRepresentationItem)::DownCast(item); !text.IsNull()) {
        const std::string name = textOf(text->Name());
        const bool isTitle = name.empty() || lowerCase(name) == "material name";
        description.name = isTitle ? textOf(text->Description()) : name;
      }
      const auto measured = Handle(StepRepr_MeasureRepresentationItem)::DownCast(item);
      if (!measured.IsNull() && !measured->Measure().IsNull()) {
        const std::optional<double> density = densityFrom(*measured->Measure());
        description.density = density ? density : description.density;
      }
    }
  }

  /// A raw material is a product itself, and what is known of it counts for the product made from it.
  void describeRawMaterials() {
    forEachEntity<StepRepr_MakeFromUsageOption>(session, [&](const Handle(StepRepr_MakeFromUsageOption) & made) {
      const auto raw = made->RelatedProductDefinition();
      const auto product = made->RelatingProductDefinition();
      const auto found = descriptions.find(raw);
      if (raw.IsNull() || product.IsNull() || found == descriptions.end()) {
        return;
      }
      Description description = found->second;
      description.name = description.name.empty() ? productName(*raw) : description.name;
      descriptions.emplace(product, std::move(description));
    });
  }

  void assignToProducts() {
    for (const auto& [target, description] : descriptions) {
      const auto product = Handle(StepBasic_ProductDefinition)::DownCast(target);
      if (product.IsNull() || description.name.empty()) {
        continue;
      }
      model::Component* component = built.componentOf(file.labelOf(shapeOf(session, product)));
      if (component == nullptr) {
        continue;
      }
      if (component->bodies.empty()) {
        component->material = materials.of(description);
      }
      for (const auto& body : component->bodies) {
        body->material = materials.of(description);
      }
    }
  }

  void assignToBodies() {
    for (const auto& [target, description] : descriptions) {
      const auto aspect = Handle(StepRepr_ShapeAspect)::DownCast(target);
      if (aspect.IsNull() || description.name.empty()) {
        continue;
      }
      const MaterialPtr material = materials.of(description);
      using Usage = StepAP242_ItemIdentifiedRepresentationUsage;
      forEachSharing<Usage>(session, aspect, [&](const Handle(Usage) & usage) { assignToItems(*usage, material); });
    }
  }

  void assignToItems(const StepAP242_ItemIdentifiedRepresentationUsage& usage, const MaterialPtr& material) {
    for (int i = 1; i <= usage.NbIdentifiedItem(); ++i) {
      const TopoDS_Shape shape = shapeOf(session, usage.IdentifiedItem()->Value(i));
      for (model::Body* body : shape.IsNull() ? std::vector<model::Body*>() : built.bodiesOf(shape)) {
        body->material = material;
      }
    }
  }

  /// In the file's order, so that results do not depend on addresses.
  struct InFileOrder {
    Handle(Interface_InterfaceModel) entities;
    bool operator()(const Handle(Standard_Transient) & a, const Handle(Standard_Transient) & b) const {
      return entities->Number(a) < entities->Number(b);
    }
  };

  const TranslatedFile& file;
  const Handle(XSControl_WorkSession) session;
  BuiltDesign& built;
  Materials& materials;
  std::map<Handle(Standard_Transient), Description, InFileOrder> descriptions{InFileOrder{session->Model()}};
};

}  // namespace

bool isMaterialProperty(const StepRepr_PropertyDefinition& property) {
  return lowerCase(textOf(property.Name())) == "material property";
}

void readMaterials(const TranslatedFile& file, const MaterialLookup& lookup, BuiltDesign& built) {
  Materials materials(lookup);
  for (const auto& session : file.sessions()) {
    SessionMaterials(file, session, built, materials).read();
  }
}

}  // namespace headless::step
