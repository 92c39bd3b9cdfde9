#include "tests/step/foreign_files.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Solid.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_GraphNode.hxx>
#include <XCAFDoc_MaterialTool.hxx>
#include <gp_Trsf.hxx>
#include <stdexcept>

#include "host/model/materials.h"
#include "host/step/colours.h"

namespace headless::step {

namespace {

TopLoc_Location shift(double x) {
  gp_Trsf move;
  move.SetTranslation(gp_Vec(x, 0, 0));
  return TopLoc_Location(move);
}

Quantity_ColorRGBA colourOf(const std::string& hex) {
  return kernelColour(model::colourFromHex(hex));
}

}  // namespace

TDF_Label ForeignFile::addPart(const std::string& name, const TopoDS_Shape& shape) {
  const TDF_Label part = document.shapes()->AddShape(shape, false);
  TDataStd_Name::Set(part, name.c_str());
  return part;
}

TDF_Label ForeignFile::addAssembly(const std::string& name) {
  const TDF_Label assembly = document.shapes()->NewShape();
  TDataStd_Name::Set(assembly, name.c_str());
  return assembly;
}

TDF_Label ForeignFile::place(const TDF_Label& assembly, const TDF_Label& child, double x) {
  return document.shapes()->AddComponent(assembly, child, shift(x));
}

void ForeignFile::paint(const TDF_Label& label, const std::string& hex) {
  document.colours()->SetColor(label, colourOf(hex), XCAFDoc_ColorSurf);
}

void ForeignFile::paintCurves(const TDF_Label& label, const std::string& hex) {
  document.colours()->SetColor(label, colourOf(hex), XCAFDoc_ColorCurv);
}

void ForeignFile::paintPath(const std::vector<TDF_Label>& instances, const std::string& hex) {
  TDF_LabelSequence path;
  for (const TDF_Label& instance : instances) {
    path.Append(instance);
  }
  Handle(XCAFDoc_GraphNode) node;
  document.shapes()->SetSHUO(path, node);
  paint(node->Label(), hex);
}

void ForeignFile::paintPart(const TDF_Label& part, const TopoDS_Shape& shape, const std::string& hex) {
  paint(document.shapes()->AddSubShape(part, shape), hex);
}

void ForeignFile::setMaterial(const TDF_Label& part, const std::string& name, double gramPerCubicCentimetre) {
  const auto text = [](const char* words) {
    return Handle(TCollection_HAsciiString)(new TCollection_HAsciiString(words));
  };
  XCAFDoc_DocumentTool::MaterialTool(document.handle->Main())
      ->SetMaterial(part, text(name.c_str()), text(""), gramPerCubicCentimetre, text("density measure"),
                    text("POSITIVE_RATIO_MEASURE"));
}

void ForeignFile::write(const std::filesystem::path& file) {
  save(file, nullptr);
}

void ForeignFile::writeSplit(const std::filesystem::path& file) {
  save(file, "");
}

void ForeignFile::save(const std::filesystem::path& file, const char* partPrefix) {
  document.shapes()->UpdateAssemblies();
  STEPCAFControl_Writer writer;
  const bool isTransferred = writer.Transfer(document.handle, STEPControl_AsIs, partPrefix);
  if (!isTransferred || writer.Write(file.string().c_str()) != IFSelect_RetDone) {
    throw std::runtime_error("the kernel did not write " + file.string());
  }
}

TopoDS_Shape box(double size, double x) {
  return BRepPrimAPI_MakeBox(gp_Pnt(x, 0, 0), size, size, size).Solid();
}

TopoDS_Shape together(const std::vector<TopoDS_Shape>& shapes) {
  const BRep_Builder builder;
  TopoDS_Compound compound;
  builder.MakeCompound(compound);
  for (const TopoDS_Shape& shape : shapes) {
    builder.Add(compound, shape);
  }
  return compound;
}

}  // namespace headless::step
