// Designs for tests.
#pragma once

#include <memory>
#include <string>

#include "host/model/design.h"

namespace tests {

/// A small assembly:
///
///   root "Machine" with a body "Base" of 2 faces
///     Frame:1            (component "Frame", no bodies)
///       Plate:1          (component "Plate", body "Plate1" of 3 faces)
///       Bolt:1           (component "Bolt", bodies "Shank" of 2 faces and "Head" of 1 face)
///     Frame:2            (the same component again)
///     Bolt:2
std::unique_ptr<headless::model::Design> machine();

/// `count` occurrences side by side, each of a component with one body of one face.
std::unique_ptr<headless::model::Design> flatDesign(std::size_t count);

/// `count` occurrences each within the one before, every component with one body of one face.
std::unique_ptr<headless::model::Design> chainDesign(std::size_t count);

/// The component of that name; raises std::out_of_range when there is none.
headless::model::Component& componentNamed(headless::model::Design& design, const std::string& name);
/// The body of that component and name.
headless::model::Body& bodyNamed(headless::model::Design& design, const std::string& component,
                                 const std::string& body);
/// The occurrence of that full path in the root's tree.
headless::model::Occurrence& occurrenceAt(headless::model::Design& design, const std::string& fullPath);

}  // namespace tests
