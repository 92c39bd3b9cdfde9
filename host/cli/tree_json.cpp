#include "host/cli/tree_json.h"

#include <nlohmann/json.hpp>

#include "host/cli/looks_text.h"
#include "host/model/resolution.h"
#include "host/runtime/pickable.h"

namespace headless::cli {

namespace {

using Json = nlohmann::ordered_json;

Json json(const model::Appearance* appearance) {
  if (appearance == nullptr) {
    return nullptr;
  }
  return {{"name", appearance->name}, {"colour", hexText(appearance->colour)}};
}

Json json(const model::Material* material) {
  if (material == nullptr) {
    return nullptr;
  }
  const double* density = model::densityOf(*material);
  return {{"name", material->name}, {"density", density == nullptr ? Json() : Json(*density)}};
}

void addLook(Json& object, const model::Look& look) {
  object["shows"] = json(look.appearance.get());
  object["source"] = sourceWord(look.source);
  object["sourceCode"] = static_cast<int>(look.source);
}

Json facesJson(const model::Body& body, const model::Occurrence* context, const std::string& path, bool allFaces) {
  Json faces = Json::array();
  for (std::size_t i = 0; i < body.faces.size(); ++i) {
    const model::Face& face = *body.faces[i];
    if (face.appearance || allFaces) {
      Json object = {{"path", path + "/Face" + std::to_string(i + 1)}};
      addLook(object, lookOf(face, context));
      faces.push_back(std::move(object));
    }
  }
  return faces;
}

Json bodiesJson(const model::Component& component, const model::Occurrence* context, bool allFaces) {
  Json bodies = Json::array();
  for (const auto& body : component.bodies) {
    const std::string path = context == nullptr ? body->name : context->fullPathName() + "/" + body->name;
    Json object = {{"name", body->name}, {"path", path}, {"material", json(body->material.get())}};
    addLook(object, lookOf(*body, context));
    object["own"] = json(body->appearance.get());
    object["faceCount"] = body->faces.size();
    object["faces"] = facesJson(*body, context, path, allFaces);
    bodies.push_back(std::move(object));
  }
  return bodies;
}

Json occurrencesJson(const std::vector<model::Occurrence*>& occurrences, bool allFaces) {
  Json list = Json::array();
  for (model::Occurrence* occurrence : occurrences) {
    const model::Component& component = occurrence->component();
    const model::Occurrence* carrier = lookCarrier(*occurrence);
    list.push_back({{"name", occurrence->name()},
                    {"path", occurrence->fullPathName()},
                    {"component", component.name},
                    {"material", json(materialOf(component).get())},
                    {"own", json(carrier == nullptr ? nullptr : carrier->appearance.get())},
                    {"bodies", bodiesJson(component, occurrence, allFaces)},
                    {"occurrences", occurrencesJson(occurrence->children, allFaces)}});
  }
  return list;
}

}  // namespace

std::string treeJson(const model::Design& design, bool allFaces) {
  const DesignCounts counts = countsOf(design);
  const Json tree = {{"design", design.name},
                     {"counts",
                      {{"components", counts.components},
                       {"occurrences", counts.occurrences},
                       {"bodies", counts.bodies},
                       {"faces", counts.faces}}},
                     {"bodies", bodiesJson(design.root(), nullptr, allFaces)},
                     {"occurrences", occurrencesJson(design.root().occurrences(), allFaces)}};
  return tree.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace headless::cli
