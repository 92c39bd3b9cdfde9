#include "host/step/document.h"

#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>

namespace headless::step {

namespace {

constexpr double millimetre = 0.001;

}  // namespace

Document::Document() {
  XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", handle);
  XCAFDoc_DocumentTool::SetLengthUnit(handle, millimetre);
}

Document::~Document() {
  XCAFApp_Application::GetApplication()->Close(handle);
}

Handle(XCAFDoc_ShapeTool) Document::shapes() const {
  return XCAFDoc_DocumentTool::ShapeTool(handle->Main());
}

Handle(XCAFDoc_ColorTool) Document::colours() const {
  return XCAFDoc_DocumentTool::ColorTool(handle->Main());
}

}  // namespace headless::step
