#include "host/step/translated_file.h"

#include <HeaderSection_FileSchema.hxx>
#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPCAFControl_ExternFile.hxx>
#include <STEPConstruct_ExternRefs.hxx>
#include <StepData_StepModel.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <algorithm>
#include <istream>
#include <set>
#include <string>

#include "host/step/entity_check.h"
#include "host/step/step_file.h"
#include "host/step/structure_check.h"

namespace headless::step {

namespace {

/// The schemas that the file says it follows, for error texts.
std::string schemaOf(const Handle(Interface_InterfaceModel) & entities) {
  const auto stepModel = Handle(StepData_StepModel)::DownCast(entities);
  const auto schema =
      Handle(HeaderSection_FileSchema)::DownCast(stepModel->HeaderEntity(STANDARD_TYPE(HeaderSection_FileSchema)));
  std::string names;
  for (int i = 1; !schema.IsNull() && i <= schema->NbSchemaIdentifiers(); ++i) {
    names += (i > 1 ? ", " : "") + std::string(schema->SchemaIdentifiersValue(i)->ToCString());
  }
  return names.empty() ? "none" : names;
}

/// What is wrong with the file's syntax, in the kernel's words; empty when nothing is. The kernel itself would leave
/// out what it cannot make out and go on.
std::string defectOf(Interface_InterfaceModel& entities) {
  const Handle(Interface_Check)& check = entities.GlobalCheck();
  return check->HasFailed() ? std::string(check->CFail(1)) : std::string();
}

void load(STEPCAFControl_Reader& reader, const std::filesystem::path& path, const KernelSession& kernel,
          const Progress& progress) {
  Phase phase(progress, "reading");
  ReportingBuffer buffer(path, phase);
  std::istream input(&buffer);
  // The instances' own colours and the materials are read elsewhere; the rest is of no use here.
  reader.SetColorMode(false);
  reader.SetLayerMode(false);
  reader.SetPropsMode(false);
  reader.SetSHUOMode(false);
  reader.SetGDTMode(false);
  reader.SetMatMode(false);
  reader.SetViewMode(false);
  const bool isLoaded = reader.ChangeReader().ReadStream(path.u8string().c_str(), input) == IFSelect_RetDone;
  const std::string defect = isLoaded ? defectOf(*reader.Reader().Model()) : kernel.firstFailure();
  if (!isLoaded || !defect.empty()) {
    failReading(path, "the file is damaged (" + defect + ")", "Copy or export it again.");
  }
  if (const std::string& damage = buffer.numbers().firstDamage(); !damage.empty()) {
    failReading(path, "the file is damaged at " + damage, "Copy or export it again.");
  }
  checkEntities(path, reader.Reader().WS());
  checkStructure(path, reader.Reader().WS());
  phase.finish();
}

/// The kernel reads the files that a file refers to while it translates, so they are looked at before. Only once each:
/// files may refer to each other. What is missing or no STEP file is left to the kernel.
void checkReferredFiles(const std::filesystem::path& path, const Handle(XSControl_WorkSession) & session,
                        const KernelSession& kernel, std::set<std::filesystem::path>& checked) {
  STEPConstruct_ExternRefs references(session);
  references.LoadExternRefs();
  for (int i = 1; i <= references.NbExternRefs(); ++i) {
    const auto file = path.parent_path() / std::filesystem::u8path(references.FileName(i));
    if (checked.insert(file).second && isStepFile(file)) {
      STEPCAFControl_Reader reader;
      load(reader, file, kernel, {});
      checkReferredFiles(file, reader.Reader().WS(), kernel, checked);
    }
  }
}

bool translate(STEPCAFControl_Reader& reader, Handle(TDocStd_Document) & document, const Progress& progress) {
  Phase phase(progress, "translating");
  const Handle(KernelProgress) shown = new KernelProgress(phase);
  const bool done = reader.Transfer(document, shown->Start());
  phase.finish();
  return done;
}

bool hasFaces(const TDF_LabelSequence& products) {
  return std::any_of(products.begin(), products.end(), [](const TDF_Label& product) {
    return TopExp_Explorer(XCAFDoc_ShapeTool::GetShape(product), TopAbs_FACE).More();
  });
}

}  // namespace

TranslatedFile::TranslatedFile(const std::filesystem::path& path, const KernelSession& kernel,
                               const Progress& progress) {
  load(reader, path, kernel, progress);
  std::set<std::filesystem::path> checked{path};
  checkReferredFiles(path, reader.Reader().WS(), kernel, checked);
  const bool done = translate(reader, document.handle, progress);
  document.shapes()->GetFreeShapes(rootLabels);
  checkTranslation(path, reader.Reader().WS());
  allSessions.push_back(reader.Reader().WS());
  using FilesIterator = NCollection_DataMap<TCollection_AsciiString, Handle(STEPCAFControl_ExternFile)>::Iterator;
  for (FilesIterator file(reader.ExternFiles()); file.More(); file.Next()) {
    if (file.Value()->GetLoadStatus() != IFSelect_RetDone) {
      failReading(path, "it refers to the file \"" + std::string(file.Key().ToCString()) + "\", which cannot be read",
                  "Put that file beside it.");
    }
    checkTranslation(path.parent_path() / std::filesystem::u8path(file.Key().ToCString()), file.Value()->GetWS());
    allSessions.push_back(file.Value()->GetWS());
  }
  if (!done || !hasFaces(rootLabels)) {
    const std::string schema = schemaOf(allSessions.front()->Model());
    failReading(path, "it holds no shapes (schema: " + schema + ")",
                "Export the assembly with its solids, as STEP AP203, AP214 or AP242.");
  }
}

TDF_Label TranslatedFile::labelOf(const TopoDS_Shape& shape) const {
  if (shape.IsNull()) {
    return {};
  }
  const TDF_Label* label = reader.GetShapeLabelMap().Seek(shape.Located(TopLoc_Location()));
  return label != nullptr ? *label : TDF_Label();
}

}  // namespace headless::step
