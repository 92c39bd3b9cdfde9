// A STEP file as the geometry kernel understands it: product structure, shapes, and the entities they came from.
#pragma once

#include <STEPCAFControl_Reader.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelSequence.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>
#include <filesystem>
#include <vector>

#include "host/step/document.h"
#include "host/step/kernel_session.h"
#include "host/step/progress.h"

namespace headless::step {

/// Reads and translates when made. A file that refers to other files brings theirs along: one session for each.
class TranslatedFile {
 public:
  /// Raises Error when there is nothing to be had from the file.
  TranslatedFile(const std::filesystem::path& path, const KernelSession& kernel, const Progress& progress);

  /// The products that no other product contains; at least one.
  const TDF_LabelSequence& roots() const { return rootLabels; }

  /// The product label of a shape, wherever the shape is placed; null when it is no product's shape.
  TDF_Label labelOf(const TopoDS_Shape& shape) const;

  const std::vector<Handle(XSControl_WorkSession)>& sessions() const { return allSessions; }

 private:
  Document document;
  STEPCAFControl_Reader reader;
  TDF_LabelSequence rootLabels;
  std::vector<Handle(XSControl_WorkSession)> allSessions;
};

}  // namespace headless::step
