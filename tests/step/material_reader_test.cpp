// Materials as other programs give them.
#include "host/step/material_reader.h"

#include <gtest/gtest.h>

#include "host/step/reader.h"
#include "tests/step/foreign_files.h"
#include "tests/step/made_designs.h"

namespace headless::step {
namespace {

TEST(MaterialReader, UnderstandsTheKernelsOddDensityUnit) {
  const TemporaryFolder folder;
  ForeignFile foreign;
  foreign.setMaterial(foreign.addPart("Part", box(10)), "Steel 4140", 7.83);
  foreign.write(folder / "foreign.stp");
  const auto design = read(folder / "foreign.stp");
  const model::Material& material = *componentNamed(*design, "Part").bodies[0]->material;
  EXPECT_EQ(material.name, "Steel 4140");
  ASSERT_NE(model::densityOf(material), nullptr);
  EXPECT_NEAR(*model::densityOf(material), 7830.0, 1e-6);
}

TEST(MaterialReader, UsesOneObjectForOneMaterial) {
  const TemporaryFolder folder;
  ForeignFile foreign;
  const auto root = foreign.addAssembly("Root");
  for (const char* name : {"First", "Second"}) {
    const auto part = foreign.addPart(name, box(10));
    foreign.setMaterial(part, "Copper", 8.96);
    foreign.place(root, part, 10);
  }
  foreign.write(folder / "foreign.stp");
  const auto design = read(folder / "foreign.stp");
  EXPECT_EQ(componentNamed(*design, "First").bodies[0]->material,
            componentNamed(*design, "Second").bodies[0]->material);
  EXPECT_EQ(componentNamed(*design, "First").bodies[0]->material->appearance, model::defaultMaterial()->appearance);
}

TEST(MaterialReader, AsksTheLookupOnceForEachMaterial) {
  const TemporaryFolder folder;
  ForeignFile foreign;
  foreign.setMaterial(foreign.addPart("Part", together({box(10), box(10, 50)})), "Copper", 8.96);
  foreign.write(folder / "foreign.stp");
  int asked = 0;
  read(folder / "foreign.stp", [&](const std::string& name) {
    EXPECT_EQ(name, "Copper");
    ++asked;
    return nullptr;
  });
  EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace headless::step
