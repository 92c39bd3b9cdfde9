#include "host/cli/looks_text.h"

#include <cstdio>

#include "host/cli/text_layout.h"

namespace headless::cli {

namespace {

void addBodies(const model::Component& component, DesignCounts& counts) {
  counts.bodies += component.bodies.size();
  for (const auto& body : component.bodies) {
    counts.faces += body->faces.size();
  }
}

}  // namespace

std::string sourceWord(model::Source source) {
  switch (source) {
    case model::Source::Material:
      return "material";
    case model::Source::Body:
      return "body";
    case model::Source::Occurrence:
      return "occurrence";
    case model::Source::Face:
      return "face";
    case model::Source::Override:
      return "override";
  }
  return "";
}

std::string materialText(const model::Material* material) {
  if (material == nullptr) {
    return "various";
  }
  const double* density = model::densityOf(*material);
  return density == nullptr ? material->name : material->name + ", " + densityText(*density) + " kg/m3";
}

std::string densityText(double density) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", density);
  return text;
}

DesignCounts countsOf(const model::Design& design) {
  DesignCounts counts;
  counts.components = design.components.size();
  counts.occurrences = design.root().allOccurrences().size();
  addBodies(design.root(), counts);
  for (const model::Occurrence* occurrence : design.root().allOccurrences()) {
    addBodies(occurrence->component(), counts);
  }
  return counts;
}

std::string countsText(const DesignCounts& counts) {
  return counted(counts.components, "component") + ", " + counted(counts.occurrences, "occurrence") + ", " +
         counted(counts.bodies, "body", "bodies") + ", " + counted(counts.faces, "face");
}

}  // namespace headless::cli
