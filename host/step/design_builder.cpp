#include "host/step/design_builder.h"

#include <BRep_Builder.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shell.hxx>
#include <limits>

#include "host/step/entities.h"
#include "host/step/shape.h"
#include "host/step/step_text.h"

namespace headless::step {

/// What a product says about itself.
struct ProductText {
  std::string name;
  bool isRoot = false;
};

using ProductTexts = NCollection_DataMap<TDF_Label, ProductText, TDF_LabelMapHasher>;

namespace {

std::size_t placeKey(const model::Component& parent, const model::Component& child, const TopLoc_Location& place) {
  const std::hash<const void*> address;
  const auto placeHash = static_cast<std::size_t>(place.HashCode(std::numeric_limits<int>::max()));
  return (address(&parent) * 31u + address(&child)) * 31u + placeHash;
}

bool isMarkedAsRoot(const StepBasic_ProductDefinition& definition) {
  const auto product = productOf(definition);
  return !product.IsNull() && textOf(product->Description()) == rootDescription;
}

/// The texts of all products. A label that is missing here belongs to geometry that is no product of its own.
ProductTexts productTexts(const TranslatedFile& file) {
  ProductTexts texts;
  for (const auto& session : file.sessions()) {
    forEachEntity<StepBasic_ProductDefinition>(session, [&](const Handle(StepBasic_ProductDefinition) & definition) {
      const TDF_Label label = file.labelOf(shapeOf(session, definition));
      if (!label.IsNull()) {
        texts.Bind(label, {productName(*definition), isMarkedAsRoot(*definition)});
      }
    });
  }
  return texts;
}

template <class Object>
std::vector<Object*> find(const std::unordered_map<const TopoDS_TShape*, std::vector<Object*>>& all,
                          const TopoDS_Shape& shape) {
  const auto found = all.find(shape.TShape().get());
  if (found == all.end()) {
    return {};
  }
  std::vector<Object*> inPlace;
  for (Object* object : found->second) {
    if (object->shape->geometry.Location() == shape.Location()) {
      inPlace.push_back(object);
    }
  }
  return inPlace.empty() ? found->second : inPlace;
}

/// A loose face made a shell, so that every body is a solid or a shell.
TopoDS_Shape shellOf(const TopoDS_Shape& face) {
  TopoDS_Shell shell;
  const BRep_Builder builder;
  builder.MakeShell(shell);
  builder.Add(shell, face);
  return shell;
}

}  // namespace

class DesignBuilder {
 public:
  explicit DesignBuilder(const TranslatedFile& translated) : texts(productTexts(translated)) {}

  BuiltDesign build(const TDF_LabelSequence& roots, const std::string& rootName) {
    if (roots.Length() == 1 && isRoot(roots.First())) {
      const std::string name = nameOf(roots.First());
      built.design = std::make_unique<model::Design>(name.empty() ? rootName : name);
      built.components.Bind(roots.First(), &built.design->root());
      fill(built.design->root(), roots.First());
      return std::move(built);
    }
    built.design = std::make_unique<model::Design>(rootName);
    for (const TDF_Label& root : roots) {
      place(built.design->root(), root);
    }
    return std::move(built);
  }

 private:
  bool isRoot(const TDF_Label& product) const {
    const ProductText* text = texts.Seek(product);
    return XCAFDoc_ShapeTool::IsAssembly(product) || (text != nullptr && text->isRoot);
  }

  std::string nameOf(const TDF_Label& product) const {
    if (const ProductText* text = texts.Seek(product)) {
      return text->name;
    }
    Handle(TDataStd_Name) name;
    return product.FindAttribute(TDataStd_Name::GetID(), name) ? textOf(name->Get()) : std::string();
  }

  /// Bodies of the component, or what is placed in it.
  void fill(model::Component& component, const TDF_Label& product) {
    if (!XCAFDoc_ShapeTool::IsAssembly(product)) {
      addBodies(component, XCAFDoc_ShapeTool::GetShape(product));
      return;
    }
    TDF_LabelSequence children;
    XCAFDoc_ShapeTool::GetComponents(product, children);
    for (const TDF_Label& child : children) {
      if (isOwnGeometry(child)) {
        addBodies(component, XCAFDoc_ShapeTool::GetShape(child));
      } else {
        place(component, child);
      }
    }
  }

  /// Geometry that an assembly has besides its parts stands among the parts without being a product.
  bool isOwnGeometry(const TDF_Label& child) const {
    TDF_Label product;
    return XCAFDoc_ShapeTool::GetReferredShape(child, product) && !XCAFDoc_ShapeTool::IsAssembly(product) &&
           !texts.IsBound(product);
  }

  void place(model::Component& parent, const TDF_Label& label) {
    TDF_Label product = label;
    const TopLoc_Location location = XCAFDoc_ShapeTool::GetLocation(label);
    XCAFDoc_ShapeTool::GetReferredShape(label, product);
    model::Component* child = built.componentOf(product);
    const bool isNew = child == nullptr;
    if (isNew) {
      const std::string name = nameOf(product);
      child = &built.design->addComponent(name.empty() ? "Component" : name);
      built.components.Bind(product, child);
    }
    const model::Instance& instance = parent.addInstance(*child, placementOf(location));
    built.instances[placeKey(parent, *child, location)].push_back({&parent, &instance, location});
    if (isNew) {
      fill(*child, product);
    }
  }

  void addBodies(model::Component& component, const TopoDS_Shape& shape) {
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
      addBody(component, solid.Current());
    }
    for (TopExp_Explorer shell(shape, TopAbs_SHELL, TopAbs_SOLID); shell.More(); shell.Next()) {
      addBody(component, shell.Current());
    }
    for (TopExp_Explorer face(shape, TopAbs_FACE, TopAbs_SHELL); face.More(); face.Next()) {
      addBody(component, shellOf(face.Current()));
    }
  }

  void addBody(model::Component& component, const TopoDS_Shape& shape) {
    model::Body& body = component.addBody("Body" + std::to_string(component.bodies.size() + 1));
    body.shape = makeShape(shape);
    built.bodies[shape.TShape().get()].push_back(&body);
    const TopoDS_Iterator shells(shape);
    if (shape.ShapeType() == TopAbs_SOLID && shape.NbChildren() == 1 && shells.More()) {
      built.bodies[shells.Value().TShape().get()].push_back(&body);
    }
    TopTools_IndexedMapOfShape faceShapes;
    TopExp::MapShapes(shape, TopAbs_FACE, faceShapes);
    body.faces.reserve(static_cast<std::size_t>(faceShapes.Extent()));
    for (int i = 1; i <= faceShapes.Extent(); ++i) {
      const TopoDS_Shape& faceShape = faceShapes(i);
      built.faces[faceShape.TShape().get()].push_back(&body.addFace(makeShape(faceShape)));
    }
  }

  const ProductTexts texts;
  BuiltDesign built;
};

model::Component* BuiltDesign::componentOf(const TDF_Label& product) const {
  model::Component* const* component = product.IsNull() ? nullptr : components.Seek(product);
  return component != nullptr ? *component : nullptr;
}

const model::Instance* BuiltDesign::instanceAt(const model::Component& parent, const model::Component& child,
                                               const TopLoc_Location& place) const {
  const auto candidates = instances.find(placeKey(parent, child, place));
  if (candidates == instances.end()) {
    return nullptr;
  }
  for (const auto& candidate : candidates->second) {
    if (candidate.parent == &parent && candidate.instance->component == &child && candidate.place == place) {
      return candidate.instance;
    }
  }
  return nullptr;
}

std::vector<model::Body*> BuiltDesign::bodiesOf(const TopoDS_Shape& shape) const {
  return find(bodies, shape);
}

std::vector<model::Face*> BuiltDesign::facesOf(const TopoDS_Shape& shape) const {
  return find(faces, shape);
}

BuiltDesign buildDesign(const TranslatedFile& file, const std::string& rootName) {
  return DesignBuilder(file).build(file.roots(), rootName);
}

}  // namespace headless::step
