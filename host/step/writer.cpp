#include "host/step/writer.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <Standard_Failure.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <XSControl_WorkSession.hxx>
#include <fstream>
#include <ostream>
#include <string>

#include "host/files/atomic_file.h"
#include "host/step/design_walk.h"
#include "host/step/kernel_session.h"
#include "host/step/material_writer.h"
#include "host/step/product_writer.h"
#include "host/step/step_text.h"
#include "host/step/style_writer.h"

namespace headless::step {

namespace {

void describe(const Handle(StepData_StepModel) & entities, const std::filesystem::path& file) {
  APIHeaderSection_MakeHeader header(entities);
  header.SetName(stepText(file.filename().u8string()));
  header.SetAuthorValue(1, stepText(""));
  header.SetOrganizationValue(1, stepText(""));
  header.SetOriginatingSystem(stepText("Tintora headless host"));
  header.SetDescriptionValue(1, stepText("Assembly with colours and materials"));
}

bool save(const Handle(XSControl_WorkSession) & session, const std::filesystem::path& path) {
  StepData_StepWriter writer(Handle(StepData_StepModel)::DownCast(session->Model()));
  writer.SendModel(Handle(StepData_Protocol)::DownCast(session->Protocol()));
  std::ofstream output(path, std::ios::binary);
  AsciiStepBuffer ascii(*output.rdbuf());
  std::ostream text(&ascii);
  const bool isPrinted = writer.Print(text);
  output.close();
  return isPrinted && text && output;
}

void writeChecked(const model::Design& design, const std::filesystem::path& file, const Progress& progress) {
  files::AtomicFile output(file);
  requireDepth(design);
  ProductWriter products(design, progress);
  writeMaterials(products);
  writeStyles(design, products);
  Phase phase(progress, "writing");
  describe(Handle(StepData_StepModel)::DownCast(products.session()->Model()), file);
  if (!save(products.session(), output.path())) {
    files::failToWrite(file, "the disk refused the data", "Free some space or choose another folder.");
  }
  output.commit();
  phase.finish();
}

}  // namespace

void write(const model::Design& design, const std::filesystem::path& file, const Progress& progress) {
  const KernelSession kernel;
  try {
    writeChecked(design, file, progress);
  } catch (const Standard_Failure& failure) {
    files::failToWrite(file, "the geometry kernel failed (" + std::string(failure.GetMessageString()) + ")",
                       "Leave out parts until it works, and report the part.");
  }
}

}  // namespace headless::step
