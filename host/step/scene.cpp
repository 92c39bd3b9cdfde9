#include "host/step/scene.h"

#include <BRep_Builder.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>
#include <TopoDS_Compound.hxx>
#include <map>
#include <string>
#include <utility>

#include "host/model/resolution.h"
#include "host/step/colours.h"
#include "host/step/shape.h"

namespace headless::step {

namespace {

void nameLabel(const TDF_Label& label, const std::string& name) {
  TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str(), true));
}

/// A part and where its geometry stands inside it.
struct PlacedPart {
  TDF_Label part;
  TopLoc_Location place;
};

class SceneBuilder {
 public:
  explicit SceneBuilder(Document& document) : shapes(document.shapes()), colours(document.colours()) {}

  void build(const model::Design& design) {
    const model::Component& root = design.root();
    const TDF_Label label = shapes->NewShape();
    nameLabel(label, root.name);
    addBodies(label, root, nullptr);
    for (const model::Occurrence* occurrence : root.occurrences()) {
      addOccurrence(label, *occurrence);
    }
  }

 private:
  void addOccurrence(const TDF_Label& parent, const model::Occurrence& occurrence) {
    const PlacedPart content = contentOf(occurrence);
    place(parent, content.part, locationOf(occurrence.instance->placement) * content.place, occurrence.name());
  }

  /// A leaf with one body is that body's part; anything else is a node with bodies and occurrences below it.
  PlacedPart contentOf(const model::Occurrence& occurrence) {
    const model::Component& component = occurrence.component();
    if (occurrence.children.empty() && component.bodies.size() == 1) {
      return partFor(*component.bodies.front(), &occurrence);
    }
    const TDF_Label label = shapes->NewShape();
    nameLabel(label, component.name);
    addBodies(label, component, &occurrence);
    for (const model::Occurrence* child : occurrence.children) {
      addOccurrence(label, *child);
    }
    return {label, TopLoc_Location()};
  }

  void addBodies(const TDF_Label& parent, const model::Component& component, const model::Occurrence* context) {
    for (const auto& body : component.bodies) {
      const PlacedPart content = partFor(*body, context);
      place(parent, content.part, content.place, body->name);
    }
  }

  void place(const TDF_Label& parent, const TDF_Label& part, const TopLoc_Location& location, const std::string& name) {
    nameLabel(shapes->AddComponent(parent, part, location), name);
  }

  /// Faces with looks of their own show them everywhere, so one part for each colour of the body is enough.
  PlacedPart partFor(const model::Body& body, const model::Occurrence* context) {
    const model::Colour colour = model::lookOf(body, context).appearance->colour;
    TDF_Label& part = parts[{&body, colourKey(colour)}];
    if (part.IsNull()) {
      part = makePart(body, context, colour);
    }
    return {part, body.shape->geometry.Location()};
  }

  /// The body at the origin: colours of faces that are placed inside a part would get lost.
  TDF_Label makePart(const model::Body& body, const model::Occurrence* context, const model::Colour& colour) {
    const TopLoc_Location toOrigin = body.shape->geometry.Location().Inverted();
    const BRep_Builder builder;
    TopoDS_Compound holder;
    builder.MakeCompound(holder);
    builder.Add(holder, body.shape->geometry.Moved(toOrigin));
    const TDF_Label part = shapes->AddShape(holder, false, false);
    nameLabel(part, body.component->name);
    colours->SetColor(part, kernelColour(colour), XCAFDoc_ColorSurf);
    for (const auto& face : body.faces) {
      const model::Colour shown = model::lookOf(*face, context).appearance->colour;
      if (shown != colour) {
        const TDF_Label label = shapes->AddSubShape(part, face->shape->geometry.Moved(toOrigin));
        colours->SetColor(label, kernelColour(shown), XCAFDoc_ColorSurf);
      }
    }
    return part;
  }

  const Handle(XCAFDoc_ShapeTool) shapes;
  const Handle(XCAFDoc_ColorTool) colours;
  std::map<std::pair<const model::Body*, std::uint32_t>, TDF_Label> parts;
};

}  // namespace

void fillScene(const model::Design& design, Document& document) {
  SceneBuilder(document).build(design);
}

}  // namespace headless::step
