#include "host/step/style_reader.h"

#include <Quantity_ColorRGBA.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_SpecifiedHigherUsageOccurrence.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepVisual_Colour.hxx>
#include <StepVisual_ContextDependentOverRidingStyledItem.hxx>
#include <StepVisual_OverRidingStyledItem.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TopoDS_Iterator.hxx>
#include <algorithm>
#include <map>
#include <optional>
#include <unordered_set>
#include <utility>

#include "host/step/colours.h"
#include "host/step/entities.h"
#include "host/step/kernel_session.h"
#include "host/step/occurrence_looks.h"

namespace headless::step {

namespace {

using AppearancePtr = std::shared_ptr<const model::Appearance>;
using Usage = Handle(StepRepr_AssemblyComponentUsage);
using HigherUsage = StepRepr_SpecifiedHigherUsageOccurrence;

/// The surface colour of a style, if it gives one.
std::optional<model::Colour> surfaceColour(const STEPConstruct_Styles& styles,
                                           const Handle(StepVisual_StyledItem) & style) {
  Handle(StepVisual_Colour) surface;
  Handle(StepVisual_Colour) boundary;
  Handle(StepVisual_Colour) curve;
  Handle(StepVisual_Colour) rendered;
  double transparency = 0.0;
  bool ignored = false;
  styles.GetColors(style, surface, boundary, curve, rendered, transparency, ignored);
  const Handle(StepVisual_Colour)& given = rendered.IsNull() ? surface : rendered;
  Quantity_Color colour;
  if (given.IsNull() || !STEPConstruct_Styles::DecodeColor(given, colour)) {
    return std::nullopt;
  }
  const double opacity = rendered.IsNull() ? 1.0 : std::clamp(1.0 - transparency, 0.0, 1.0);
  return colourFrom(Quantity_ColorRGBA(colour, static_cast<float>(opacity)));
}

/// The representation in whose context a style holds; null for a style that holds everywhere.
Handle(StepRepr_Representation) contextOf(const StepVisual_StyledItem& style) {
  for (int i = 1; i <= style.NbStyles(); ++i) {
    const auto byContext = Handle(StepVisual_PresentationStyleByContext)::DownCast(style.StylesValue(i));
    if (!byContext.IsNull() && !byContext->StyleContext().Representation().IsNull()) {
      return byContext->StyleContext().Representation();
    }
  }
  return {};
}

/// Reads the styles of one session.
class SessionStyles {
 public:
  SessionStyles(const TranslatedFile& translated, Handle(XSControl_WorkSession) workSession, BuiltDesign& target,
                ColourAppearances& known, OccurrenceLooks& collected)
      : file(translated),
        session(std::move(workSession)),
        built(target),
        appearances(known),
        looks(collected),
        styles(session) {}

  void read() {
    if (!styles.LoadStyles()) {
      return;
    }
    collectHigherUsages();
    readStyles(false);
    readStyles(true);
    paintShapes();
  }

 private:
  /// What overrides must come last, wherever it stands in the file.
  void readStyles(bool overriding) {
    for (int i = 1; i <= styles.NbStyles(); ++i) {
      const Handle(StepVisual_StyledItem) style = styles.Style(i);
      if (style->IsKind(STANDARD_TYPE(StepVisual_OverRidingStyledItem)) == overriding) {
        readStyle(style);
      }
    }
  }

  /// From large to small: what a body is given counts more than what a group of bodies is given.
  void paintShapes() {
    std::stable_sort(colouredShapes.begin(), colouredShapes.end(),
                     [](const auto& a, const auto& b) { return a.first.ShapeType() < b.first.ShapeType(); });
    for (const auto& [shape, appearance] : colouredShapes) {
      paint(shape, appearance);
    }
  }

  void readStyle(const Handle(StepVisual_StyledItem) & style) {
    const std::optional<model::Colour> colour = surfaceColour(styles, style);
    if (!colour) {
      return;
    }
    const AppearancePtr appearance = appearances.of(*colour);
    const Handle(StepRepr_Representation) context = contextOf(*style);
    if (!context.IsNull()) {
      readInContext(context, style, appearance);
      return;
    }
    // A style for some context that cannot be told must not be taken for one that holds everywhere.
    if (!style->IsKind(STANDARD_TYPE(StepVisual_ContextDependentOverRidingStyledItem))) {
      colourItem(*style, appearance);
    }
  }

  void colourItem(const StepVisual_StyledItem& style, const AppearancePtr& appearance) {
    const TopoDS_Shape shape = shapeOf(session, style.ItemAP242().Value());
    if (!shape.IsNull()) {
      colouredShapes.emplace_back(shape, appearance);
    }
  }

  void readInContext(const Handle(StepRepr_Representation) & context, const Handle(StepVisual_StyledItem) & style,
                     const AppearancePtr& appearance) {
    bool isUsage = false;
    for (const auto& usage : usagesShownBy(context)) {
      isUsage = true;
      OccurrenceLooks::Path path = pathOf(usage);
      if (!path.empty()) {
        looks.add(std::move(path), appearance);
      }
    }
    if (!isUsage) {
      colourItem(*style, appearance);
    }
  }

  /// Colours the faces or bodies that the shape is, or else those in it.
  void paint(const TopoDS_Shape& shape, const AppearancePtr& appearance) {
    bool isPainted = false;
    for (model::Face* face : built.facesOf(shape)) {
      face->appearance = appearance;
      isPainted = true;
    }
    for (model::Body* body : built.bodiesOf(shape)) {
      body->appearance = appearance;
      isPainted = true;
    }
    if (isPainted || shape.ShapeType() >= TopAbs_FACE) {
      return;
    }
    for (TopoDS_Iterator part(shape); part.More(); part.Next()) {
      paint(part.Value(), appearance);
    }
  }

  /// The assembly usages whose shape is the representation.
  std::vector<Usage> usagesShownBy(const Handle(StepRepr_Representation) & representation) const {
    std::vector<Usage> usages;
    using Definition = StepShape_ShapeDefinitionRepresentation;
    forEachSharing<Definition>(session, representation, [&](const Handle(Definition) & definition) {
      const auto shape = definition->Definition().PropertyDefinition();
      const auto usage =
          shape.IsNull() ? Usage() : Usage::DownCast(shape->Definition().ProductDefinitionRelationship());
      if (!usage.IsNull()) {
        usages.push_back(usage);
      }
    });
    return usages;
  }

  /// Which instance a usage became; nullptr when it became none.
  const model::Instance* instanceOf(const StepRepr_NextAssemblyUsageOccurrence& usage,
                                    const TopoDS_Shape& shape) const {
    const auto* parent = built.componentOf(file.labelOf(shapeOf(session, usage.RelatingProductDefinition())));
    const auto* child = built.componentOf(file.labelOf(shape));
    return parent != nullptr && child != nullptr ? built.instanceAt(*parent, *child, shape.Location()) : nullptr;
  }

  void collectHigherUsages() {
    forEachEntity<HigherUsage>(
        session, [&](const Handle(HigherUsage) & usage) { below.emplace(usage->UpperUsage().get(), usage); });
    for (int i = 1; i <= styles.NbStyles(); ++i) {
      const Handle(StepRepr_Representation) context = contextOf(*styles.Style(i));
      for (const auto& usage : context.IsNull() ? std::vector<Usage>() : usagesShownBy(context)) {
        styledUsages.insert(usage.get());
      }
    }
  }

  /// The instances from the outermost to the one that the usage stands for; empty when one of them is unknown.
  OccurrenceLooks::Path pathOf(const Usage& usage) const {
    OccurrenceLooks::Path path;
    const auto higher = Handle(HigherUsage)::DownCast(usage);
    const bool known = higher.IsNull() ? append(path, usage) : appendChain(path, higher);
    return known ? path : OccurrenceLooks::Path();
  }

  bool append(OccurrenceLooks::Path& path, const Handle(Standard_Transient) & entity) const {
    const auto usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(entity);
    const model::Instance* instance = usage.IsNull() ? nullptr : instanceOf(*usage, shapeOf(session, usage));
    if (instance != nullptr) {
      path.push_back(instance);
    }
    return instance != nullptr;
  }

  bool appendChain(OccurrenceLooks::Path& path, const Handle(HigherUsage) & usage) const {
    std::vector<Handle(HigherUsage)> links{usage};
    for (auto upper = Handle(HigherUsage)::DownCast(usage->UpperUsage()); !upper.IsNull();
         upper = Handle(HigherUsage)::DownCast(upper->UpperUsage())) {
      if (links.size() > deepestNesting) {
        return false;  // no assembly goes that deep: the links form a circle
      }
      links.insert(links.begin(), upper);
    }
    const auto lower = unstyledBelow(usage);
    links.insert(links.end(), lower.begin(), lower.end());
    bool known = append(path, links.front()->UpperUsage());
    for (const auto& link : links) {
      known = known && append(path, link->NextUsage());
    }
    return known;
  }

  /// The standard gives the colour to the lowest link of a chain. Some programs, the kernel's own writer among them,
  /// give it to the uppermost and mean the end of what hangs below; nothing below has a colour then.
  std::vector<Handle(HigherUsage)> unstyledBelow(const Handle(HigherUsage) & usage) const {
    std::vector<Handle(HigherUsage)> links;
    for (auto lower = below.find(usage.get()); lower != below.end(); lower = below.find(lower->second.get())) {
      if (styledUsages.count(lower->second.get()) != 0 || links.size() > deepestNesting) {
        return {};
      }
      links.push_back(lower->second);
    }
    return links;
  }

  const TranslatedFile& file;
  const Handle(XSControl_WorkSession) session;
  BuiltDesign& built;
  ColourAppearances& appearances;
  OccurrenceLooks& looks;
  STEPConstruct_Styles styles;
  std::map<const Standard_Transient*, Handle(HigherUsage)> below;
  std::unordered_set<const Standard_Transient*> styledUsages;
  std::vector<std::pair<TopoDS_Shape, AppearancePtr>> colouredShapes;
};

}  // namespace

void readStyles(const TranslatedFile& file, BuiltDesign& built) {
  ColourAppearances appearances;
  OccurrenceLooks looks;
  for (const auto& session : file.sessions()) {
    SessionStyles(file, session, built, appearances, looks).read();
  }
  looks.applyTo(*built.design);
}

}  // namespace headless::step
