#include "tests/step/made_designs.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <algorithm>
#include <fstream>
#include <iomanip>
#include <random>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "host/step/shape.h"

namespace headless::step {

namespace fs = std::filesystem;

namespace {

model::Body& addBody(model::Component& component, const std::string& name, const TopoDS_Shape& shape) {
  model::Body& body = component.addBody(name);
  body.shape = makeShape(shape);
  for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
    body.addFace(makeShape(face.Current()));
  }
  return body;
}

std::string lookText(const std::shared_ptr<const model::Appearance>& appearance) {
  return appearance ? " " + model::hexText(appearance->colour) : "";
}

std::string materialText(const std::shared_ptr<const model::Material>& material) {
  if (!material) {
    return "";
  }
  std::ostringstream text;
  const double* density = model::densityOf(*material);
  text << " of " << material->name << std::fixed << std::setprecision(3) << " " << (density != nullptr ? *density : -1);
  return text.str();
}

/// The order in which components were made means nothing.
std::vector<const model::Component*> byName(const model::Design& design) {
  std::vector<const model::Component*> components;
  for (const auto& component : design.components) {
    components.push_back(component.get());
  }
  std::sort(components.begin(), components.end(), [](const auto* a, const auto* b) { return a->name < b->name; });
  return components;
}

void addTo(std::ostream& text, const model::Body& body) {
  text << "  body " << body.name << lookText(body.appearance) << materialText(body.material) << "\n";
  for (std::size_t i = 0; i < body.faces.size(); ++i) {
    text << "    face " << i << lookText(body.faces[i]->appearance) << "\n";
  }
}

void addTo(std::ostream& text, const model::Instance& instance) {
  text << "  " << instance.name() << " at" << std::fixed << std::setprecision(6);
  for (const double value : instance.placement) {
    text << " " << value;
  }
  text << "\n";
}

}  // namespace

model::Placement moved(double x, double y, double z) {
  model::Placement placement = model::identityPlacement;
  placement[3] = x;
  placement[7] = y;
  placement[11] = z;
  return placement;
}

model::Body& addBox(model::Component& component, const std::string& name, double size, const model::Placement& at) {
  const TopoDS_Shape box = BRepPrimAPI_MakeBox(size, size, size).Solid();
  return addBody(component, name, box.Moved(locationOf(at)));
}

model::Body& addCopy(model::Component& component, const std::string& name, const model::Body& original,
                     const model::Placement& at) {
  return addBody(component, name, original.shape->geometry.Moved(locationOf(at)));
}

model::Body& addOpenBox(model::Component& component, const std::string& name, double size) {
  const BRep_Builder builder;
  TopoDS_Shell shell;
  builder.MakeShell(shell);
  TopExp_Explorer face(BRepPrimAPI_MakeBox(size, size, size).Solid(), TopAbs_FACE);
  for (face.Next(); face.More(); face.Next()) {
    builder.Add(shell, face.Current());
  }
  return addBody(component, name, shell);
}

std::unique_ptr<model::Design> makeMachine() {
  auto design = std::make_unique<model::Design>("Machine");
  auto& frame = design->addComponent("Frame");
  auto& plate = design->addComponent("Plate");
  auto& joint = design->addComponent("Joint");
  auto& bolt = design->addComponent("Bolt");
  auto& nut = design->addComponent("Nut");
  design->root().addInstance(frame);
  frame.addInstance(plate);
  frame.addInstance(joint, moved(0, 0, 30));
  joint.addInstance(bolt);
  joint.addInstance(nut, moved(0, 0, -20));
  frame.addInstance(joint, moved(50, 0, 30));
  design->root().addInstance(frame, moved(200, 0, 0));
  addBox(plate, "Sheet", 40);
  addBox(bolt, "Shaft", 8);
  addBox(nut, "Ring", 12);
  return design;
}

std::shared_ptr<const model::Appearance> colour(const std::string& hex) {
  return model::makeColourAppearance(model::colourFromHex(hex));
}

model::Occurrence& occurrenceAt(const model::Design& design, const std::string& fullPath) {
  for (model::Occurrence* occurrence : design.root().allOccurrences()) {
    if (occurrence->fullPathName() == fullPath) {
      return *occurrence;
    }
  }
  throw std::out_of_range("no occurrence " + fullPath);
}

model::Component& componentNamed(const model::Design& design, const std::string& name) {
  for (const auto& component : design.components) {
    if (component->name == name) {
      return *component;
    }
  }
  throw std::out_of_range("no component " + name);
}

std::string describe(const model::Design& design) {
  std::ostringstream text;
  text << design.name << "\n";
  for (const model::Component* component : byName(design)) {
    text << component->name << materialText(component->material) << "\n";
    for (const auto& body : component->bodies) {
      addTo(text, *body);
    }
    for (const auto& instance : component->instances) {
      addTo(text, *instance);
    }
  }
  for (const model::Occurrence* occurrence : design.root().allOccurrences()) {
    text << occurrence->fullPathName() << lookText(occurrence->appearance) << "\n";
  }
  return text.str();
}

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  folder = fs::temp_directory_path() / ("tintora-step-" + std::to_string(random()));
  fs::create_directories(folder);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

fs::path TemporaryFolder::operator/(const std::string& name) const {
  return folder / fs::u8path(name);
}

std::string contentOf(const fs::path& file) {
  std::ifstream input(file, std::ios::binary);
  std::ostringstream text;
  text << input.rdbuf();
  return text.str();
}

void fillFile(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

}  // namespace headless::step
