#include "host/step/design_walk.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "host/step/error.h"
#include "host/step/kernel_session.h"

namespace headless::step {

std::vector<const model::Component*> reachedComponents(const model::Design& design) {
  std::vector<const model::Component*> order{&design.root()};
  std::unordered_set<const model::Component*> seen{&design.root()};
  for (std::size_t next = 0; next < order.size(); ++next) {
    const model::Component& user = *order[next];
    for (const auto& instance : user.instances) {
      if (seen.insert(instance->component).second) {
        order.push_back(instance->component);
      }
    }
  }
  return order;
}

void requireGeometry(const model::Body& body) {
  const bool isWhole = body.shape && std::all_of(body.faces.begin(), body.faces.end(),
                                                 [](const auto& face) { return face->shape != nullptr; });
  if (!isWhole) {
    throw Error("Cannot write the design: body \"" + body.name + "\" of component \"" + body.component->name +
                "\" was made without geometry. Only designs that were read from a STEP file can be written.");
  }
}

void requireDepth(const model::Design& design) {
  std::unordered_map<const model::Occurrence*, int> depths{{nullptr, 0}};
  for (const model::Occurrence* occurrence : design.root().allOccurrences()) {
    const int depth = depths.at(occurrence->parent) + 1;
    depths.emplace(occurrence, depth);
    if (depth > deepestNesting) {
      throw Error("Cannot write the design: assemblies are nested deeper than " + std::to_string(deepestNesting) +
                  " levels. Flatten the assembly.");
    }
  }
}

}  // namespace headless::step
