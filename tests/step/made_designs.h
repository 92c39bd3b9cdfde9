// Small designs of boxes, and designs as text.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/model/design.h"

namespace headless::step {

/// A placement that moves by millimetres.
model::Placement moved(double x, double y, double z);

/// A solid box with a corner at `at`; six faces.
model::Body& addBox(model::Component& component, const std::string& name, double size = 10.0,
                    const model::Placement& at = model::identityPlacement);

/// The same geometry as another body, at another place.
model::Body& addCopy(model::Component& component, const std::string& name, const model::Body& original,
                     const model::Placement& at = model::identityPlacement);

/// A box without its lid: an open shell of five faces.
model::Body& addOpenBox(model::Component& component, const std::string& name, double size = 10.0);

/// Root "Machine" with Frame:1 and Frame:2; Frame holds Plate:1 and Joint:1 and Joint:2; Joint holds Bolt:1 and Nut:1.
std::unique_ptr<model::Design> makeMachine();

std::shared_ptr<const model::Appearance> colour(const std::string& hex);

/// The occurrence with that full path; raises std::out_of_range when there is none.
model::Occurrence& occurrenceAt(const model::Design& design, const std::string& fullPath);

/// The component with that name; raises std::out_of_range when there is none.
model::Component& componentNamed(const model::Design& design, const std::string& name);

/// Everything about a design that a file keeps, one thing a line: equal texts are equal designs.
std::string describe(const model::Design& design);

/// A folder of its own for a test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::filesystem::path operator/(const std::string& name) const;
  const std::filesystem::path& path() const { return folder; }

 private:
  std::filesystem::path folder;
};

std::string contentOf(const std::filesystem::path& file);

void fillFile(const std::filesystem::path& file, const std::string& content);

}  // namespace headless::step
