// Writing assemblies and reading them back: nothing is lost, nothing is left half done.
#include "host/step/writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "host/model/resolution.h"
#include "host/step/error.h"
#include "host/step/reader.h"
#include "host/step/shape.h"
#include "tests/step/made_designs.h"
#include "tests/step/step_files.h"
#include "tests/support/tables.h"

namespace headless::step {
namespace {

class Writer : public ::testing::Test {
 protected:
  std::unique_ptr<model::Design> afterRoundTrip(const model::Design& design, const MaterialLookup& lookup = {}) {
    write(design, file);
    return read(file, lookup);
  }

  void expectUnchanged(const model::Design& design) { EXPECT_EQ(describe(*afterRoundTrip(design)), describe(design)); }

  TemporaryFolder folder;
  std::filesystem::path file = folder / "out.stp";
};

TEST_F(Writer, KeepsTreeNamesPlacesAndCounters) {
  expectUnchanged(*makeMachine());
}

TEST_F(Writer, KeepsColoursOfBodiesAndFaces) {
  const auto design = makeMachine();
  componentNamed(*design, "Plate").bodies[0]->appearance = colour("#123456");
  componentNamed(*design, "Plate").bodies[0]->faces[2]->appearance = colour("#FEDCBA");
  componentNamed(*design, "Bolt").bodies[0]->faces[0]->appearance = colour("#00FF00");
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsEveryColourExactly) {
  model::Design design("Palette");
  for (int i = 0; i < 256; i += 15) {
    auto& part = design.addComponent("Part");
    design.root().addInstance(part);
    const auto level = static_cast<std::uint8_t>(i);
    const model::Colour shade{level, static_cast<std::uint8_t>(255 - i), static_cast<std::uint8_t>(i / 2), 255};
    addBox(part, "Box").appearance = model::makeColourAppearance(shade);
  }
  expectUnchanged(design);
}

TEST_F(Writer, KeepsTranslucentColours) {
  const auto design = makeMachine();
  componentNamed(*design, "Plate").bodies[0]->appearance = colour("#11223344");
  componentNamed(*design, "Plate").bodies[0]->faces[1]->appearance = colour("#FF000080");
  occurrenceAt(*design, "Frame:2+Joint:1").appearance = colour("#0000FF01");
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsTheLookOfOneOccurrenceAmongMany) {
  for (const char* path : {"Frame:2", "Frame:1+Plate:1", "Frame:1+Joint:2", "Frame:2+Joint:1+Nut:1"}) {
    const auto design = makeMachine();
    occurrenceAt(*design, path).appearance = colour("#ABCDEF");
    expectUnchanged(*design);
  }
}

TEST_F(Writer, KeepsDifferentLooksOfTheSameInstance) {
  const auto design = makeMachine();
  occurrenceAt(*design, "Frame:1+Joint:1+Bolt:1").appearance = colour("#FF0000");
  occurrenceAt(*design, "Frame:1+Joint:2+Bolt:1").appearance = colour("#00FF00");
  occurrenceAt(*design, "Frame:2+Joint:2+Bolt:1").appearance = colour("#0000FF");
  occurrenceAt(*design, "Frame:2+Joint:2").appearance = colour("#FFFF00");
  occurrenceAt(*design, "Frame:2").appearance = colour("#FFFFFF");
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsALookThatAnInstanceHasEverywhere) {
  const auto design = makeMachine();
  for (model::Occurrence* occurrence : design->root().allOccurrences()) {
    if (occurrence->component().name == "Nut") {
      occurrence->appearance = colour("#808000");
    }
  }
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsLooksAboveAndBelowPaintedOccurrences) {
  const auto design = makeMachine();
  componentNamed(*design, "Bolt").bodies[0]->appearance = colour("#111111");
  componentNamed(*design, "Nut").bodies[0]->faces[3]->appearance = colour("#222222");
  occurrenceAt(*design, "Frame:1+Joint:1+Bolt:1").appearance = colour("#333333");
  occurrenceAt(*design, "Frame:1+Joint:1+Nut:1").appearance = colour("#444444");
  expectUnchanged(*design);
}

TEST_F(Writer, DoesNotPaintOverBodiesWithALookOfTheirOwn) {
  const auto overrides = [&](const std::shared_ptr<const model::Appearance>& own) {
    const auto design = makeMachine();
    auto& body = *componentNamed(*design, "Plate").bodies[0];
    body.material = model::makeMaterial("Copper", 8960, colour("#B87333"));
    body.appearance = own;
    occurrenceAt(*design, "Frame:1+Plate:1").appearance = colour("#FF0000");
    write(*design, file);
    return contentOf(file).find("OVER_RIDING_STYLED_ITEM") != std::string::npos;
  };
  EXPECT_TRUE(overrides(nullptr)) << "the occurrence hides the material";
  EXPECT_FALSE(overrides(colour("#00FF00"))) << "the body's own look shows";
}

TEST_F(Writer, ShowsLooksGivenInsideASubAssemblyWhereverItIsUsed) {
  const auto design = makeMachine();
  componentNamed(*design, "Joint").occurrences()[0]->appearance = colour("#00AA00");
  const auto result = afterRoundTrip(*design);
  for (const char* path : {"Frame:1+Joint:1+Bolt:1", "Frame:2+Joint:2+Bolt:1"}) {
    const model::Occurrence& occurrence = occurrenceAt(*result, path);
    const model::Look look = model::lookOf(*occurrence.component().bodies[0], &occurrence);
    EXPECT_EQ(model::hexText(look.appearance->colour), "#00AA00") << path;
    EXPECT_EQ(look.source, model::Source::Occurrence) << path;
  }
}

TEST_F(Writer, TellsInstancesApartThatStandAtTheSamePlace) {
  model::Design design("Twins");
  auto& left = design.addComponent("Left");
  auto& right = design.addComponent("Right");
  auto& part = design.addComponent("Part");
  design.root().addInstance(left);
  left.addInstance(part);
  left.addInstance(part);
  design.root().addInstance(right, moved(100, 0, 0));
  right.addInstance(part);
  addBox(part, "Box");
  occurrenceAt(design, "Left:1+Part:2").appearance = colour("#FF0000");
  occurrenceAt(design, "Right:1+Part:3").appearance = colour("#0000FF");
  expectUnchanged(design);
}

TEST_F(Writer, KeepsComponentsWithBodiesAndInstances) {
  const auto design = makeMachine();
  addBox(design->root(), "Floor", 300).appearance = colour("#777777");
  addBox(componentNamed(*design, "Frame"), "Weld", 5, moved(3, 4, 5));
  addBox(componentNamed(*design, "Frame"), "Second weld", 5, moved(30, 4, 5)).faces[0]->appearance = colour("#010101");
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsSeveralBodiesInOneComponent) {
  model::Design design("Set");
  auto& part = design.addComponent("Part");
  design.root().addInstance(part);
  addBox(part, "First").appearance = colour("#FF0000");
  addBox(part, "Second", 20, moved(50, 0, 0)).faces[5]->appearance = colour("#00FF00");
  addOpenBox(part, "Shell", 30).appearance = colour("#0000FF");
  addOpenBox(part, "Second shell", 40).faces[1]->appearance = colour("#00FFFF");
  expectUnchanged(design);
}

TEST_F(Writer, KeepsColoursOfBodiesThatShareGeometry) {
  model::Design design("Shared");
  auto& part = design.addComponent("Part");
  auto& other = design.addComponent("Other");
  design.root().addInstance(part);
  design.root().addInstance(other);
  auto& original = addBox(part, "Original");
  original.appearance = colour("#FF0000");
  addCopy(part, "Moved copy", original, moved(40, 0, 0)).appearance = colour("#00FF00");
  auto& copy = addCopy(other, "Copy", original);
  copy.appearance = colour("#0000FF");
  copy.faces[4]->appearance = colour("#FFFF00");
  expectUnchanged(design);
}

TEST_F(Writer, KeepsEmptyComponents) {
  model::Design design("Hollow");
  auto& empty = design.addComponent("Empty");
  auto& part = design.addComponent("Part");
  design.root().addInstance(empty);
  design.root().addInstance(part);
  design.root().addInstance(empty, moved(1, 2, 3));
  addBox(part, "Box");
  expectUnchanged(design);
}

TEST_F(Writer, KeepsADesignWithBodiesInTheRootOnly) {
  model::Design design("Single");
  addBox(design.root(), "Box").appearance = colour("#FF0000");
  addBox(design.root(), "Other", 5, moved(50, 0, 0));
  expectUnchanged(design);
}

TEST_F(Writer, KeepsNamesInAnyLanguageAndPunctuation) {
  for (const std::string& name :
       {std::string("Gr\xC3\xB6\xC3\x9F"
                    "e \xE2\x82\xAC"),
        std::string("\xE3\x83\x9C\xE3\x83\xAB\xE3\x83\x88"), std::string("\xF0\x9F\x94\xA9 bolt"),
        std::string("it's 5\" \\X2\\ \\S\\d a\\b"),
        std::string(
            "\xC3\xA4 very long name that goes on \xC3\xB6 and on \xC3\xBC until no line of a file holds it "
            "\xC3\x9F\xC3\xA9\xC3\xA8\xC3\xAA\xC3\xAB\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC"
            "\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4")}) {
    model::Design design("Root " + name);
    auto& part = design.addComponent(name);
    design.root().addInstance(part);
    addBox(part, "Body " + name).material = model::makeMaterial("Material " + name, 1234.5, colour("#FF0000"));
    part.bodies[0]->appearance = colour("#00FF00");
    expectUnchanged(design);
    const std::string content = contentOf(file);
    EXPECT_TRUE(std::all_of(content.begin(), content.end(), [](unsigned char c) { return c < 0x80; })) << name;
  }
}

TEST_F(Writer, KeepsMaterialsOfProducts) {
  const auto design = makeMachine();
  componentNamed(*design, "Plate").bodies[0]->material = model::makeMaterial("Copper", 8960, colour("#B87333"));
  componentNamed(*design, "Plate").bodies[0]->appearance = colour("#FFFFFF");
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsMaterialsThatDifferFromBodyToBody) {
  model::Design design("Composite");
  auto& part = design.addComponent("Part");
  design.root().addInstance(part);
  const auto oak = model::makeMaterial("Oak", 720, colour("#A07040"));
  addBox(part, "Wood").material = oak;
  addBox(part, "Plain", 10, moved(20, 0, 0));
  addBox(part, "Glass", 10, moved(40, 0, 0)).material = model::makeMaterial("Glass", 2500, colour("#C0E0E0"));
  addOpenBox(part, "Skin").material = oak;
  for (const auto& body : part.bodies) {
    body->appearance = colour("#010203");
  }
  expectUnchanged(design);
}

TEST_F(Writer, KeepsMaterialsOfComponentsWithoutBodies) {
  const auto design = makeMachine();
  componentNamed(*design, "Joint").material = model::makeMaterial("Brass", 8500, colour("#C0A000"));
  expectUnchanged(*design);
}

TEST_F(Writer, KeepsMaterialsWithoutDensity) {
  const auto design = makeMachine();
  auto& body = *componentNamed(*design, "Nut").bodies[0];
  body.material = std::make_shared<const model::Material>(model::Material{"x", "Unobtainium", {}, colour("#FF00FF")});
  body.appearance = colour("#FFFFFF");
  expectUnchanged(*design);
}

TEST_F(Writer, ShowsTheColourOfAMaterialToProgramsThatKnowNone) {
  const auto design = makeMachine();
  auto& body = *componentNamed(*design, "Bolt").bodies[0];
  body.material = model::makeMaterial("Copper", 8960, colour("#B87333"));
  const auto plain = afterRoundTrip(*design);
  EXPECT_EQ(model::hexText(componentNamed(*plain, "Bolt").bodies[0]->appearance->colour), "#B87333");
  const auto known =
      afterRoundTrip(*design, [&](const std::string& name) { return name == "Copper" ? body.material : nullptr; });
  EXPECT_EQ(describe(*known), describe(*design));
  EXPECT_EQ(componentNamed(*known, "Bolt").bodies[0]->material, body.material);
}

TEST_F(Writer, LeavesTheDefaultMaterialOut) {
  write(*makeMachine(), file);
  EXPECT_EQ(contentOf(file).find("material property"), std::string::npos);
}

class WriterFiles : public ::testing::Test, public tests::WithRow<const char*> {};

TABLE(Writer, WriterFiles, tests::byNumber,
      {"as1-oc-214.stp", "as1-tu-203.stp", "dm1-id-214.stp", "io1-cm-214.stp", "red_cube_blue_cylinder.step",
       "motor-driver-board-v3.5.step"});

TABLE_TEST(WriterFiles, ComeBackTheSameWithPaint) {
  WITH_STEP_FILE(path, row());
  const TemporaryFolder folder;
  const auto design = read(path);
  int number = 0;
  for (model::Occurrence* occurrence : design->root().allOccurrences()) {
    if (++number % 3 == 0) {
      occurrence->appearance = number % 2 == 0 ? colour("#123456") : colour("#FEDCBA98");
    }
  }
  write(*design, folder / "painted.stp");
  EXPECT_EQ(describe(*read(folder / "painted.stp")), describe(*design));
}

TEST_F(Writer, NeedsNoFileAnyMore) {
  WITH_STEP_FILE(path, "as1-tu-203.stp");
  std::filesystem::copy_file(path, folder / "in.stp");
  const auto design = read(folder / "in.stp");
  std::filesystem::remove(folder / "in.stp");
  expectUnchanged(*design);
}

TEST_F(Writer, GivesTheSameBytesEachTimeButForTheHour) {
  const auto design = makeMachine();
  occurrenceAt(*design, "Frame:2+Joint:1").appearance = colour("#ABCDEF");
  const auto written = [&] {
    write(*design, file);
    const std::string content = contentOf(file);
    return content.substr(content.find("FILE_SCHEMA"));
  };
  EXPECT_EQ(written(), written());
}

TEST_F(Writer, RefusesDesignsWithoutGeometryAndLeavesNoFile) {
  model::Design design("Made up");
  auto& part = design.addComponent("Part");
  design.root().addInstance(part);
  part.addBody("Idea");
  try {
    write(design, file);
    FAIL() << "was written";
  } catch (const Error& error) {
    EXPECT_NE(std::string(error.what()).find("body \"Idea\" of component \"Part\""), std::string::npos) << error.what();
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(Writer, ReplacesAnEarlierFileOnlyWhenDone) {
  fillFile(file, "precious");
  model::Design empty("Made up");
  empty.root().addBody("Idea");
  EXPECT_THROW(write(empty, file), Error);
  EXPECT_EQ(contentOf(file), "precious");
  write(*makeMachine(), file);
  EXPECT_EQ(contentOf(file).rfind("ISO-10303-21", 0), 0u);
  const std::filesystem::directory_iterator files(folder.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(Writer, NamesTheFolderThatDoesNotExist) {
  try {
    write(*makeMachine(), folder / "missing/out.stp");
    FAIL() << "was written";
  } catch (const Error& error) {
    EXPECT_NE(std::string(error.what()).find("missing"), std::string::npos) << error.what();
  }
}

TEST_F(Writer, TellsHowFarItGot) {
  std::vector<std::pair<std::string, double>> told;
  write(*makeMachine(), file, [&](const std::string& phase, double done) { told.emplace_back(phase, done); });
  ASSERT_GE(told.size(), 4u);
  EXPECT_EQ(told.front(), std::make_pair(std::string("translating"), 0.0));
  EXPECT_EQ(told.back(), std::make_pair(std::string("writing"), 1.0));
}

}  // namespace
}  // namespace headless::step
