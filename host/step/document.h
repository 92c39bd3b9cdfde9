// A document of the geometry kernel, closed when it goes.
#pragma once

#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace headless::step {

/// An empty document in millimetres and its tools.
class Document {
 public:
  Document();
  ~Document();
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  Handle(TDocStd_Document) handle;

  Handle(XCAFDoc_ShapeTool) shapes() const;
  Handle(XCAFDoc_ColorTool) colours() const;
};

}  // namespace headless::step
