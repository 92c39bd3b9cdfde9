// The structure of a translated file as a design: components, instances, bodies and faces, still without looks; and
// where everything went, so that looks and materials can be put on.
#pragma once

#include <NCollection_DataMap.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/model/design.h"
#include "host/step/translated_file.h"

namespace headless::step {

/// A design and the way from the kernel's objects to the design's.
class BuiltDesign {
 public:
  std::unique_ptr<model::Design> design;

  /// The component of a product; nullptr when the product is not in the design.
  model::Component* componentOf(const TDF_Label& product) const;

  /// The instance of `child` in `parent` at that place; nullptr when there is none.
  const model::Instance* instanceAt(const model::Component& parent, const model::Component& child,
                                    const TopLoc_Location& place) const;

  /// The bodies and faces with that geometry, at exactly that place if there are such, otherwise at any place.
  std::vector<model::Body*> bodiesOf(const TopoDS_Shape& shape) const;
  std::vector<model::Face*> facesOf(const TopoDS_Shape& shape) const;

 private:
  friend class DesignBuilder;

  struct PlacedInstance {
    const model::Component* parent = nullptr;
    const model::Instance* instance = nullptr;
    TopLoc_Location place;
  };

  NCollection_DataMap<TDF_Label, model::Component*, TDF_LabelMapHasher> components;
  std::unordered_map<std::size_t, std::vector<PlacedInstance>> instances;
  std::unordered_map<const TopoDS_TShape*, std::vector<model::Body*>> bodies;
  std::unordered_map<const TopoDS_TShape*, std::vector<model::Face*>> faces;
};

/// Builds the design of `file`. A single assembly at the top is the root; anything else is placed in a root called
/// `rootName`.
BuiltDesign buildDesign(const TranslatedFile& file, const std::string& rootName);

}  // namespace headless::step
