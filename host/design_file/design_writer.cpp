#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/design_file/design_file.h"
#include "host/design_file/format.h"
#include "host/files/atomic_file.h"

namespace headless::design_file {

namespace {

// Members stay in the order in which they are put in, which is that of the format's description.
using Json = nlohmann::ordered_json;

/// A design as JSON. Appearances and materials are listed once, in the order in which they are met.
class Writer {
 public:
  Writer(const model::Design& writtenDesign, const std::filesystem::path& writtenFile)
      : design(writtenDesign), file(writtenFile) {
    for (std::size_t i = 0; i < design.components.size(); ++i) {
      componentNumbers.emplace(design.components[i].get(), i);
    }
  }

  Json written() {
    Json components = Json::array();
    for (const auto& component : design.components) {
      components.push_back(componentJson(*component));
    }
    Json looks = looksJson();
    Json copied = Json::array();
    for (const auto& appearance : design.appearances) {
      copied.push_back(appearanceRef(appearance));
    }
    return {{"format", formatName},
            {"version", formatVersion},
            {"name", design.name},
            {"appearances", appearances},
            {"designAppearances", std::move(copied)},
            {"materials", materials},
            {"components", std::move(components)},
            {"looks", std::move(looks)}};
  }

 private:
  double finite(double number, const std::string& what) const {
    if (!std::isfinite(number)) {
      files::failToWrite(file, "a number of " + what + " is infinite or none", "Correct it in the design.");
    }
    return number;
  }

  Json appearanceRef(const std::shared_ptr<const model::Appearance>& appearance) {
    if (appearance == model::defaultMaterial()->appearance) {
      return defaultWord;
    }
    const auto [entry, isNew] = appearanceNumbers.emplace(appearance.get(), appearances.size());
    if (isNew) {
      appearances.push_back(appearanceJson(*appearance));
    }
    return entry->second;
  }

  Json appearanceJson(const model::Appearance& appearance) const {
    const model::Appearance usual;
    Json json = {{"name", appearance.name}, {"id", appearance.id}, {"colour", hexText(appearance.colour)}};
    if (appearance.surface != usual.surface) {
      json["surface"] = surfaceWords.at(static_cast<std::size_t>(appearance.surface));
    }
    if (!appearance.roughness) {
      json["roughness"] = nullptr;
    } else if (appearance.roughness != usual.roughness) {
      json["roughness"] = finite(*appearance.roughness, "the appearance \"" + appearance.name + "\"");
    }
    if (appearance.hasTexture) {
      json["texture"] = true;
    }
    return json;
  }

  Json propertyJson(const model::MaterialProperty& property) const {
    const double* number = std::get_if<double>(&property.value);
    Json value = number != nullptr ? Json(finite(*number, "the property \"" + property.name + "\""))
                                   : Json(std::get<std::string>(property.value));
    return {{"id", property.id}, {"name", property.name}, {"value", std::move(value)}, {"unit", property.unit}};
  }

  Json materialRef(const std::shared_ptr<const model::Material>& material) {
    if (material == model::defaultMaterial()) {
      return defaultWord;
    }
    const auto [entry, isNew] = materialNumbers.emplace(material.get(), materials.size());
    if (isNew) {
      Json properties = Json::array();
      for (const model::MaterialProperty& property : material->properties) {
        properties.push_back(propertyJson(property));
      }
      materials.push_back({{"name", material->name},
                           {"id", material->id},
                           {"appearance", appearanceRef(material->appearance)},
                           {"properties", std::move(properties)}});
    }
    return entry->second;
  }

  Json bodyJson(const model::Body& body) {
    Json json = {{"name", body.name}};
    if (body.material != model::defaultMaterial()) {
      json["material"] = materialRef(body.material);
    }
    if (body.appearance) {
      json["appearance"] = appearanceRef(body.appearance);
    }
    Json& faces = json["faces"] = Json::array();
    for (const auto& face : body.faces) {
      faces.push_back(face->appearance ? appearanceRef(face->appearance) : Json());
    }
    return json;
  }

  Json instanceJson(const model::Instance& instance) const {
    Json json = {{"component", componentNumbers.at(instance.component)}, {"counter", instance.counter}};
    if (instance.placement != model::identityPlacement) {
      Json& placement = json["placement"] = Json::array();
      for (const double number : instance.placement) {
        placement.push_back(finite(number, "the placement of \"" + instance.name() + "\""));
      }
    }
    return json;
  }

  Json componentJson(const model::Component& component) {
    Json json = {{"name", component.name}};
    if (component.material) {
      json["material"] = materialRef(component.material);
    }
    Json& bodies = json["bodies"] = Json::array();
    for (const auto& body : component.bodies) {
      bodies.push_back(bodyJson(*body));
    }
    Json& instances = json["instances"] = Json::array();
    for (const auto& instance : component.instances) {
      instances.push_back(instanceJson(*instance));
    }
    return json;
  }

  static Json pathJson(const model::Occurrence& occurrence) {
    std::vector<std::size_t> path;
    for (const model::Occurrence* node = &occurrence; node != nullptr; node = node->parent) {
      path.insert(path.begin(), node->position);
    }
    return path;
  }

  // A tree that nobody asked for yet carries no looks and is not made for this.
  Json looksJson() {
    Json looks = Json::array();
    for (const auto& component : design.components) {
      if (!component->isExpanded()) {
        continue;
      }
      for (const model::Occurrence* occurrence : component->allOccurrences()) {
        if (occurrence->appearance) {
          looks.push_back({{"tree", componentNumbers.at(component.get())},
                           {"path", pathJson(*occurrence)},
                           {"appearance", appearanceRef(occurrence->appearance)}});
        }
      }
    }
    return looks;
  }

  const model::Design& design;
  const std::filesystem::path& file;
  std::unordered_map<const model::Component*, std::size_t> componentNumbers;
  std::unordered_map<const model::Appearance*, std::size_t> appearanceNumbers;
  std::unordered_map<const model::Material*, std::size_t> materialNumbers;
  Json appearances = Json::array();
  Json materials = Json::array();
};

std::string textOf(const Json& json, const std::filesystem::path& file) {
  try {
    return json.dump(1) + "\n";
  } catch (const Json::type_error&) {
    files::failToWrite(file, "a name in the design is not UTF-8", "Give its objects other names.");
  }
}

}  // namespace

void write(const model::Design& design, const std::filesystem::path& file, const files::Progress& progress) {
  files::Phase phase(progress, "writing");
  const std::string text = textOf(Writer(design, file).written(), file);
  files::AtomicFile output(file);
  std::ofstream stream(output.path(), std::ios::binary);
  stream << text;
  stream.close();
  if (!stream) {
    files::failToWrite(file, "the disk refused the data", "Free some space or choose another folder.");
  }
  output.commit();
  phase.finish();
}

}  // namespace headless::design_file
