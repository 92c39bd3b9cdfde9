#include "host/step/style_writer.h"

#include <STEPConstruct_Styles.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_ItemDefinedTransformation.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_ShapeRepresentationRelationshipWithTransformation.hxx>
#include <StepRepr_SpecifiedHigherUsageOccurrence.hxx>
#include <StepRepr_Transformation.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepVisual_Colour.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_PresentationStyleAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <XSControl_WorkSession.hxx>
#include <algorithm>
#include <unordered_map>
#include <vector>

#include "host/model/materials.h"
#include "host/model/resolution.h"
#include "host/step/colours.h"
#include "host/step/step_text.h"

namespace headless::step {

namespace {

using AppearancePtr = std::shared_ptr<const model::Appearance>;
using Items = std::vector<Handle(StepRepr_RepresentationItem)>;
using StyledItem = Handle(StepVisual_StyledItem);
using Usage = Handle(StepRepr_AssemblyComponentUsage);
using Placement = Handle(StepShape_ContextDependentShapeRepresentation);

/// An occurrence and the look that was applied to it, wherever in the design that was done; mostly none.
struct PaintedOccurrence {
  const model::Occurrence* occurrence;
  AppearancePtr look;
};

/// The look that the body itself has in the file: its own, or that of a material that somebody chose.
AppearancePtr fileLook(const model::Body& body) {
  if (body.appearance) {
    return body.appearance;
  }
  return body.material != model::defaultMaterial() ? body.material->appearance : nullptr;
}

/// Where the instance stands in its parent's representation.
Handle(StepRepr_RepresentationItem) placeOf(const Placement& placement) {
  using Relationship = StepRepr_ShapeRepresentationRelationshipWithTransformation;
  const auto relationship = Handle(Relationship)::DownCast(placement->RepresentationRelation());
  return relationship->TransformationOperator().ItemDefinedTransformation()->TransformItem2();
}

class StyleWriter {
 public:
  StyleWriter(const model::Design& written, ProductWriter& target)
      : design(written), products(target), styles(target.session()) {}

  void write() {
    for (const model::Component* component : products.components()) {
      writeBodies(*component);
    }
    writeOccurrences();
    for (const model::Component* component : products.components()) {
      writePresentation(*component);
    }
  }

 private:
  void writeBodies(const model::Component& component) {
    for (const auto& body : component.bodies) {
      StyledItem bodyStyle;
      if (const AppearancePtr look = fileLook(*body)) {
        bodyStyle = writeItems(component, products.items(*body), look->colour, nullptr);
        bodyStyles[body.get()] = bodyStyle;
      }
      for (const auto& face : body->faces) {
        if (face->appearance) {
          writeItems(component, products.items(*face), face->appearance->colour, bodyStyle);
        }
      }
    }
  }

  /// Styles the items in every context and returns the last style.
  StyledItem writeItems(const model::Component& component, const Items& items, const model::Colour& colour,
                        const StyledItem& overridden) {
    StyledItem style;
    for (const auto& item : items) {
      style = styles.AddStyle(item, everywhere(colour), overridden);
      presented[&component].push_back(style);
    }
    return style;
  }

  /// One assignment serves all items of a colour.
  Handle(StepVisual_PresentationStyleAssignment) everywhere(const model::Colour& colour) {
    auto& assignment = assignments[colourKey(colour)];
    if (assignment.IsNull()) {
      assignment = makeAssignment(colour, false);
    }
    return assignment;
  }

  Handle(StepVisual_PresentationStyleAssignment) makeAssignment(const model::Colour& colour, bool isInContext) const {
    const Quantity_ColorRGBA rgba = kernelColour(colour);
    const auto encoded = STEPConstruct_Styles::EncodeColor(rgba.GetRGB());
    const double transparency = colour.opacity == 255 ? 0.0 : 1.0 - static_cast<double>(rgba.Alpha());
    return styles.MakeColorPSA(nullptr, encoded, nullptr, encoded, transparency, isInContext);
  }

  void writeOccurrences() {
    for (const auto& [instance, occurrences] : paintedOccurrences()) {
      const AppearancePtr& first = occurrences.front().look;
      const bool isSameEverywhere = std::all_of(occurrences.begin(), occurrences.end(), [&](const auto& other) {
        return first && other.look && other.look->colour == first->colour;
      });
      if (isSameEverywhere) {
        writeInstance(*occurrences.front().occurrence, first->colour, nullptr);
        continue;
      }
      for (const auto& [occurrence, look] : occurrences) {
        if (look) {
          writeInstance(*occurrence, look->colour, higherUsageShape(*occurrence));
        }
      }
    }
  }

  /// For every instance its occurrences, in the tree's order, with those that have no look.
  std::vector<std::pair<const model::Instance*, std::vector<PaintedOccurrence>>> paintedOccurrences() const {
    std::vector<std::pair<const model::Instance*, std::vector<PaintedOccurrence>>> found;
    std::unordered_map<const model::Instance*, std::size_t> positions;
    for (model::Occurrence* occurrence : design.root().allOccurrences()) {
      const auto [position, isNew] = positions.try_emplace(occurrence->instance, found.size());
      if (isNew) {
        found.emplace_back(occurrence->instance, std::vector<PaintedOccurrence>());
      }
      const model::Occurrence* carrier = model::lookCarrier(*occurrence);
      found[position->second].second.push_back({occurrence, carrier != nullptr ? carrier->appearance : nullptr});
    }
    return found;
  }

  /// Colours an instance in the context of the given usage shape; of its own when there is none.
  void writeInstance(const model::Occurrence& occurrence, const model::Colour& colour,
                     const Handle(StepRepr_ProductDefinitionShape) & usageShape) {
    const model::Component& component = occurrence.component();
    const model::Component& parent = occurrence.parent != nullptr ? occurrence.parent->component() : design.root();
    const auto placement = Placement::DownCast(products.usage(*occurrence.instance).ItemValue());
    styles.ClearStyles();
    for (const auto& body : component.bodies) {
      // Bodies with a look of their own keep it under a painted occurrence.
      for (const auto& item : body->appearance ? Items() : products.items(*body)) {
        presented[&component].push_back(styles.AddStyle(item, makeAssignment(colour, true), bodyStyles[body.get()]));
      }
    }
    if (styles.NbStyles() == 0) {
      presented[&parent].push_back(styles.AddStyle(placeOf(placement), makeAssignment(colour, true), nullptr));
    }
    styles.CreateNAUOSRD(products.product(parent).SRValue()->ContextOfItems(), placement, usageShape);
  }

  /// The shape of the usage that stands for the whole path to a nested occurrence; null at the top level.
  Handle(StepRepr_ProductDefinitionShape) higherUsageShape(const model::Occurrence& occurrence) const {
    if (occurrence.parent == nullptr) {
      return nullptr;
    }
    StepRepr_CharacterizedDefinition definition;
    definition.SetValue(usageOf(occurrence));
    Handle(StepRepr_ProductDefinitionShape) shape = new StepRepr_ProductDefinitionShape;
    shape->Init(stepText(""), false, stepText(""), definition);
    return shape;
  }

  Usage usageOf(const model::Occurrence& occurrence) const {
    const auto own = products.usage(*occurrence.instance).GetNAUO();
    if (occurrence.parent == nullptr) {
      return Usage(own);
    }
    const auto path = stepText(occurrence.fullPathName());
    const Handle(StepRepr_SpecifiedHigherUsageOccurrence) usage = new StepRepr_SpecifiedHigherUsageOccurrence;
    usage->Init(path, path, false, stepText(""), products.product(design.root()).PD(),
                products.product(occurrence.component()).PD(), false, stepText(""), usageOf(*occurrence.parent), own);
    return Usage(usage);
  }

  /// Styles are only seen when a presentation in the product's context holds them.
  void writePresentation(const model::Component& component) {
    const auto found = presented.find(&component);
    if (found == presented.end()) {
      return;
    }
    const std::vector<StyledItem>& styled = found->second;
    const Handle(StepRepr_HArray1OfRepresentationItem) items =
        new StepRepr_HArray1OfRepresentationItem(1, static_cast<int>(styled.size()));
    int next = 0;
    for (const auto& style : styled) {
      items->SetValue(++next, style);
    }
    using Presentation = StepVisual_MechanicalDesignGeometricPresentationRepresentation;
    const Handle(Presentation) presentation = new Presentation;
    presentation->Init(stepText(""), items, products.product(component).SRValue()->ContextOfItems());
    products.add(presentation);
  }

  const model::Design& design;
  ProductWriter& products;
  STEPConstruct_Styles styles;
  std::unordered_map<std::uint32_t, Handle(StepVisual_PresentationStyleAssignment)> assignments;
  std::unordered_map<const model::Body*, StyledItem> bodyStyles;
  std::unordered_map<const model::Component*, std::vector<StyledItem>> presented;
};

}  // namespace

void writeStyles(const model::Design& design, ProductWriter& products) {
  StyleWriter(design, products).write();
}

}  // namespace headless::step
