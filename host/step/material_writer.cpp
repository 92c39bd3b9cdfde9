#include "host/step/material_writer.h"

#include <StepAP242_GeometricItemSpecificUsage.hxx>
#include <StepAP242_ItemIdentifiedRepresentationUsageDefinition.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_HArray1OfDerivedUnitElement.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_SiUnitAndLengthUnit.hxx>
#include <StepBasic_SiUnitAndMassUnit.hxx>
#include <StepBasic_Unit.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepRepr_ShapeAspect.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <unordered_map>

#include "host/model/materials.h"
#include "host/model/resolution.h"
#include "host/step/step_text.h"

namespace headless::step {

namespace {

Handle(StepRepr_Representation)
    representationOf(const std::string& name, const Handle(StepRepr_RepresentationItem) & item,
                     const Handle(StepRepr_RepresentationContext) & context) {
  const Handle(StepRepr_HArray1OfRepresentationItem) items = new StepRepr_HArray1OfRepresentationItem(1, 1);
  items->SetValue(1, item);
  Handle(StepRepr_Representation) representation = new StepRepr_Representation;
  representation->Init(stepText(name), items, context);
  return representation;
}

/// Grams per cubic centimetre: readers that look at the length unit only get the number right as well.
Handle(StepBasic_DerivedUnit) gramPerCubicCentimetre() {
  const Handle(StepBasic_SiUnitAndMassUnit) gram = new StepBasic_SiUnitAndMassUnit;
  gram->Init(false, StepBasic_spMilli, StepBasic_sunGram);
  const Handle(StepBasic_SiUnitAndLengthUnit) centimetre = new StepBasic_SiUnitAndLengthUnit;
  centimetre->Init(true, StepBasic_spCenti, StepBasic_sunMetre);
  const Handle(StepBasic_HArray1OfDerivedUnitElement) elements = new StepBasic_HArray1OfDerivedUnitElement(1, 2);
  elements->SetValue(1, new StepBasic_DerivedUnitElement);
  elements->Value(1)->Init(gram, 1.0);
  elements->SetValue(2, new StepBasic_DerivedUnitElement);
  elements->Value(2)->Init(centimetre, -3.0);
  Handle(StepBasic_DerivedUnit) unit = new StepBasic_DerivedUnit;
  unit->Init(elements);
  return unit;
}

/// What describes a material; shared by all that are made of it.
struct WrittenMaterial {
  Handle(StepRepr_Representation) name;
  Handle(StepRepr_Representation) density;
};

class MaterialWriter {
 public:
  explicit MaterialWriter(ProductWriter& target) : products(target) {}

  void write(const model::Component& component) {
    const auto shared = model::materialOf(component);
    if (shared) {
      if (shared != model::defaultMaterial()) {
        StepRepr_CharacterizedDefinition product;
        product.SetValue(products.product(component).PD());
        writeProperties(product, *shared, component);
      }
      return;
    }
    for (const auto& body : component.bodies) {
      if (body->material != model::defaultMaterial()) {
        writeForBody(*body);
      }
    }
  }

 private:
  void writeForBody(const model::Body& body) {
    const STEPConstruct_Part& product = products.product(*body.component);
    const Handle(StepRepr_ShapeAspect) aspect = new StepRepr_ShapeAspect;
    aspect->Init(stepText(body.name), stepText(""), product.PDS(), StepData_LFalse);
    for (const auto& item : products.items(body)) {
      const Handle(StepRepr_HArray1OfRepresentationItem) items = new StepRepr_HArray1OfRepresentationItem(1, 1);
      items->SetValue(1, item);
      StepAP242_ItemIdentifiedRepresentationUsageDefinition identified;
      identified.SetValue(aspect);
      const Handle(StepAP242_GeometricItemSpecificUsage) usage = new StepAP242_GeometricItemSpecificUsage;
      usage->Init(stepText(""), stepText(""), identified, product.SRValue(), items);
      products.add(usage);
    }
    StepRepr_CharacterizedDefinition definition;
    definition.SetValue(aspect);
    writeProperties(definition, *body.material, *body.component);
  }

  void writeProperties(const StepRepr_CharacterizedDefinition& target, const model::Material& material,
                       const model::Component& component) {
    const WrittenMaterial& entities = entitiesOf(material, component);
    writeProperty(target, "material name", entities.name);
    if (!entities.density.IsNull()) {
      writeProperty(target, "density", entities.density);
    }
  }

  void writeProperty(const StepRepr_CharacterizedDefinition& target, const std::string& description,
                     const Handle(StepRepr_Representation) & representation) {
    const Handle(StepRepr_PropertyDefinition) property = new StepRepr_PropertyDefinition;
    property->Init(stepText("material property"), true, stepText(description), target);
    StepRepr_RepresentedDefinition represented;
    represented.SetValue(property);
    const Handle(StepRepr_PropertyDefinitionRepresentation) link = new StepRepr_PropertyDefinitionRepresentation;
    link->Init(represented, representation);
    products.add(link);
  }

  const WrittenMaterial& entitiesOf(const model::Material& material, const model::Component& component) {
    const auto [known, isNew] = written.try_emplace(&material);
    WrittenMaterial& entities = known->second;
    if (!isNew) {
      return entities;
    }
    const auto context = products.product(component).SRValue()->ContextOfItems();
    const Handle(StepRepr_DescriptiveRepresentationItem) name = new StepRepr_DescriptiveRepresentationItem;
    name->Init(stepText(material.name), stepText(material.name));
    entities.name = representationOf("material name", name, context);
    if (const double* density = model::densityOf(material)) {
      entities.density = representationOf("density", measureOf(*density), context);
    }
    return entities;
  }

  static Handle(StepRepr_MeasureRepresentationItem) measureOf(double density) {
    constexpr double kilogramsPerGramAndCentimetre = 1000.0;
    const Handle(StepBasic_MeasureValueMember) value = new StepBasic_MeasureValueMember;
    value->SetName("POSITIVE_RATIO_MEASURE");
    value->SetReal(density / kilogramsPerGramAndCentimetre);
    StepBasic_Unit unit;
    unit.SetValue(gramPerCubicCentimetre());
    Handle(StepRepr_MeasureRepresentationItem) measure = new StepRepr_MeasureRepresentationItem;
    measure->Init(stepText("density measure"), value, unit);
    return measure;
  }

  ProductWriter& products;
  std::unordered_map<const model::Material*, WrittenMaterial> written;
};

}  // namespace

void writeMaterials(ProductWriter& products) {
  MaterialWriter writer(products);
  for (const model::Component* component : products.components()) {
    writer.write(*component);
  }
}

}  // namespace headless::step
