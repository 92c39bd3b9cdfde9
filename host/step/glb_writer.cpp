#include "host/step/glb_writer.h"

#include <RWGltf_CafWriter.hxx>
#include <RWMesh_CoordinateSystem.hxx>
#include <Standard_Failure.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFPrs_Style.hxx>
#include <string>

#include "host/files/atomic_file.h"
#include "host/step/design_walk.h"
#include "host/step/document.h"
#include "host/step/kernel_session.h"
#include "host/step/scene.h"

namespace headless::step {

namespace {

/// What every colour is made of: viewers take it for bare metal when nothing is said.
XCAFPrs_Style paint() {
  XCAFDoc_VisMaterialPBR surface;
  surface.Metallic = 0.0F;
  surface.Roughness = 0.6F;
  const Handle(XCAFDoc_VisMaterial) material = new XCAFDoc_VisMaterial;
  material->SetPbrMaterial(surface);
  XCAFPrs_Style style;
  style.SetMaterial(material);
  return style;
}

bool save(const Document& document, const std::filesystem::path& path, const Progress& progress) {
  constexpr double millimetre = 0.001;
  Phase phase(progress, "writing");
  const Handle(KernelProgress) shown = new KernelProgress(phase);
  RWGltf_CafWriter writer(path.u8string().c_str(), true);
  writer.SetMergeFaces(true);
  writer.ChangeCoordinateSystemConverter().SetInputLengthUnit(millimetre);
  writer.ChangeCoordinateSystemConverter().SetInputCoordinateSystem(RWMesh_CoordinateSystem_Zup);
  writer.SetDefaultStyle(paint());
  return writer.Perform(document.handle, TColStd_IndexedDataMapOfStringString(), shown->Start());
}

void writeChecked(const model::Design& design, const std::filesystem::path& file, const Progress& progress,
                  const MeshQuality& quality) {
  files::AtomicFile output(file);
  requireDepth(design);
  meshBodies(design, quality, progress);
  Document document;
  fillScene(design, document);
  if (!save(document, output.path(), progress)) {
    files::failToWrite(file, "the disk refused the data", "Free some space or choose another folder.");
  }
  output.commit();
}

}  // namespace

void writeGlb(const model::Design& design, const std::filesystem::path& file, const Progress& progress,
              const MeshQuality& quality) {
  const KernelSession kernel;
  try {
    writeChecked(design, file, progress, quality);
  } catch (const Standard_Failure& failure) {
    files::failToWrite(file, "the geometry kernel failed (" + std::string(failure.GetMessageString()) + ")",
                       "Leave out parts until it works, and report the part.");
  }
}

}  // namespace headless::step
