// Materials as other programs give them.
#include "host/step/material_reader.h"

#include <gtest/gtest.h>

#include "host/step/reader.h"
#include "host/step/writer.h"
#include "tests/step/edited_file.h"
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

TEST(MaterialReader, FindsTheNameWhereverProgramsPutIt) {
  const TemporaryFolder folder;
  model::Design design("Root");
  auto& part = design.addComponent("Part");
  design.root().addInstance(part);
  addBox(part, "Body").material = model::makeMaterial("Copper", 8960, colour("#B87333"));
  write(design, folder / "written.stp");
  for (const char* item : {"('Copper','')", "('','Copper')", "('material name','Copper')", "('Copper','red metal')"}) {
    EditedFile edited(folder / "written.stp");
    edited.replace("DESCRIPTIVE_REPRESENTATION_ITEM\\([^)]*\\)", "DESCRIPTIVE_REPRESENTATION_ITEM" + std::string(item));
    edited.save(folder / "edited.stp");
    const auto result = read(folder / "edited.stp");
    EXPECT_EQ(componentNamed(*result, "Part").bodies[0]->material->name, "Copper") << item;
  }
}

}  // namespace
}  // namespace headless::step
