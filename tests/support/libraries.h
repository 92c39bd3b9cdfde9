// Library files for tests, as texts in the headless host's own format.
#pragma once

#include <string>
#include <vector>

namespace tests {

/// A library of appearances of those names; each has a colour of its own.
std::string appearanceLibrary(const std::string& name, const std::vector<std::string>& appearances);

/// A material for a library file. A density below zero is allowed; `hasDensity` false leaves the property out, and a
/// `densityText` makes it a text instead of a number.
struct TestMaterial {
  std::string name;
  double density = 1000;
  bool hasDensity = true;
  std::string densityText = {};
};

/// A library of materials; each has an appearance of its own, called the material's name and " look".
std::string materialLibrary(const std::string& name, const std::vector<TestMaterial>& materials);

}  // namespace tests
