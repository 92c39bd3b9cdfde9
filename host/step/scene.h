// A document for viewers: the expanded tree of a design, with what every face really shows.
#pragma once

#include "host/model/design.h"
#include "host/step/document.h"

namespace headless::step {

/// Fills the document with one node for each occurrence, named like it. Writers of viewer files know colours of parts
/// and faces only, so what an occurrence's bodies show is put on parts of their own; bodies that look the same share a
/// part.
void fillScene(const model::Design& design, Document& document);

}  // namespace headless::step
