#include "host/step/reader.h"

#include <Standard_Failure.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <algorithm>
#include <cctype>
#include <string>

#include "host/step/design_builder.h"
#include "host/step/entities.h"
#include "host/step/kernel_session.h"
#include "host/step/step_file.h"
#include "host/step/step_text.h"
#include "host/step/style_reader.h"
#include "host/step/translated_file.h"

namespace headless::step {

namespace {

/// Some programs put an entity number where a name belongs.
bool isEntityNumber(const std::string& name) {
  return name.size() > 1 && name.front() == '#' &&
         std::all_of(name.begin() + 1, name.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

template <class Entity>
void nameBodiesAfter(const TranslatedFile& file, const BuiltDesign& built) {
  for (const auto& session : file.sessions()) {
    forEachEntity<Entity>(session, [&](const Handle(Entity) & entity) {
      const std::string name = textOf(entity->Name());
      const TopoDS_Shape shape = name.empty() || isEntityNumber(name) ? TopoDS_Shape() : shapeOf(session, entity);
      for (model::Body* body : shape.IsNull() ? std::vector<model::Body*>() : built.bodiesOf(shape)) {
        body->name = name;
      }
    });
  }
}

/// A body in the colour of its material shows its material. Only asked when materials come from a library, as those of
/// the file have no colour of their own.
void dropMaterialColours(const model::Design& design) {
  for (const auto& component : design.components) {
    for (const auto& body : component->bodies) {
      const bool isFromLibrary = body->material != model::defaultMaterial();
      if (isFromLibrary && body->appearance && body->appearance->colour == body->material->appearance->colour) {
        body->appearance = nullptr;
      }
    }
  }
}

std::unique_ptr<model::Design> readChecked(const std::filesystem::path& file, const KernelSession& kernel,
                                           const MaterialLookup& lookup, const Progress& progress) {
  const TranslatedFile translated(file, kernel, progress);
  BuiltDesign built = buildDesign(translated, file.stem().u8string());
  nameBodiesAfter<StepShape_ConnectedFaceSet>(translated, built);
  nameBodiesAfter<StepShape_ShellBasedSurfaceModel>(translated, built);
  nameBodiesAfter<StepShape_SolidModel>(translated, built);
  readMaterials(translated, lookup, built);
  readStyles(translated, built);
  if (lookup) {
    dropMaterialColours(*built.design);
  }
  return std::move(built.design);
}

}  // namespace

std::unique_ptr<model::Design> read(const std::filesystem::path& file, const MaterialLookup& lookup,
                                    const Progress& progress) {
  checkStepFile(file);
  const KernelSession kernel;
  try {
    return readChecked(file, kernel, lookup, progress);
  } catch (const Standard_Failure& failure) {
    failReading(file, "the geometry kernel failed (" + std::string(failure.GetMessageString()) + ")",
                "Export it again; if that does not help, leave out parts until it reads.");
  }
}

}  // namespace headless::step
