#include "tests/design_file/described.h"

#include <iomanip>
#include <map>
#include <sstream>

namespace tests {

namespace {

namespace model = headless::model;

/// Tells objects apart by a number in the order in which they are met.
class Numbers {
 public:
  std::string of(const void* object) {
    return "@" + std::to_string(numbers.emplace(object, numbers.size()).first->second);
  }

 private:
  std::map<const void*, std::size_t> numbers;
};

class Description {
 public:
  std::string of(const model::Design& design) {
    text << std::setprecision(17) << "design " << design.name << "\n";
    for (const auto& component : design.components) {
      describe(*component);
    }
    for (const auto& component : design.components) {
      describeTree(*component);
    }
    for (const auto& appearance : design.appearances) {
      text << "copied " << look(appearance) << "\n";
    }
    return text.str();
  }

 private:
  std::string look(const std::shared_ptr<const model::Appearance>& appearance) {
    if (!appearance) {
      return "-";
    }
    if (appearance == model::defaultMaterial()->appearance) {
      return "default";
    }
    std::ostringstream look;
    look << std::setprecision(17) << appearance->name << "|" << appearance->id << "|"
         << model::hexText(appearance->colour) << "|" << static_cast<int>(appearance->surface) << "|"
         << appearance->roughness.value_or(-1) << (appearance->hasTexture ? "|texture" : "")
         << numbers.of(appearance.get());
    return look.str();
  }

  std::string material(const std::shared_ptr<const model::Material>& material) {
    if (!material) {
      return "-";
    }
    if (material == model::defaultMaterial()) {
      return "default";
    }
    std::ostringstream list;
    list << std::setprecision(17) << material->name << "|" << material->id << "|" << look(material->appearance);
    for (const model::MaterialProperty& property : material->properties) {
      list << "|" << property.id << "," << property.name << "," << property.unit << ",";
      if (const double* number = std::get_if<double>(&property.value)) {
        list << "number " << *number;
      } else {
        list << "text " << std::get<std::string>(property.value);
      }
    }
    return list.str() + numbers.of(material.get());
  }

  void describe(const model::Component& component) {
    text << "component " << component.name << " used " << component.uses << " of " << material(component.material)
         << "\n";
    for (const auto& body : component.bodies) {
      text << " body " << body->name << " looks " << look(body->appearance) << " of " << material(body->material)
           << "\n";
      for (const auto& face : body->faces) {
        text << "  face looks " << look(face->appearance) << "\n";
      }
    }
    for (const auto& instance : component.instances) {
      text << " instance " << instance->name();
      for (const double number : instance->placement) {
        text << " " << number;
      }
      text << "\n";
    }
  }

  void describeTree(const model::Component& component) {
    if (!component.isExpanded()) {
      return;
    }
    for (const model::Occurrence* occurrence : component.allOccurrences()) {
      if (occurrence->appearance) {
        text << "in " << component.name << " " << occurrence->fullPathName() << " looks "
             << look(occurrence->appearance) << "\n";
      }
    }
  }

  std::ostringstream text;
  Numbers numbers;
};

}  // namespace

std::string described(const model::Design& design) {
  return Description().of(design);
}

}  // namespace tests
