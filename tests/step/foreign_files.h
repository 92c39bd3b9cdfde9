// STEP files as other programs write them: made with the kernel's own document writer, which has its own ways.
#pragma once

#include <TDF_Label.hxx>
#include <TopoDS_Shape.hxx>
#include <filesystem>
#include <string>
#include <vector>

#include "host/step/document.h"
#include "host/step/kernel_session.h"

namespace headless::step {

/// A document to be filled and written. Owns the kernel's silence meanwhile.
class ForeignFile {
 public:
  TDF_Label addPart(const std::string& name, const TopoDS_Shape& shape);
  TDF_Label addAssembly(const std::string& name);

  /// Places `child` in the assembly and returns the instance; the translation keeps instances apart.
  TDF_Label place(const TDF_Label& assembly, const TDF_Label& child, double x);

  void paint(const TDF_Label& label, const std::string& hex);
  void paintCurves(const TDF_Label& label, const std::string& hex);
  void paintPath(const std::vector<TDF_Label>& instances, const std::string& hex);
  void paintPart(const TDF_Label& part, const TopoDS_Shape& shape, const std::string& hex);
  void setMaterial(const TDF_Label& part, const std::string& name, double gramPerCubicCentimetre);

  void write(const std::filesystem::path& file);

  /// Writes the structure to `file` and each part to a file of its own beside it, called like the part with ".stp".
  void writeSplit(const std::filesystem::path& file);

 private:
  void save(const std::filesystem::path& file, const char* partPrefix);

  KernelSession session;
  Document document;
};

TopoDS_Shape box(double size, double x = 0.0);

TopoDS_Shape together(const std::vector<TopoDS_Shape>& shapes);

}  // namespace headless::step
