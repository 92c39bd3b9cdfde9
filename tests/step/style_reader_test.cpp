// Colours as other programs give them.
#include "host/step/style_reader.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "host/step/error.h"
#include "host/step/reader.h"
#include "host/step/writer.h"
#include "tests/step/edited_file.h"
#include "tests/step/foreign_files.h"
#include "tests/step/made_designs.h"

namespace headless::step {
namespace {

class StyleReader : public ::testing::Test {
 public:
  std::unique_ptr<model::Design> written() {
    foreign.write(folder / "foreign.stp");
    return read(folder / "foreign.stp");
  }

  /// The painted occurrences by full path.
  static std::map<std::string, std::string> looks(const model::Design& design) {
    std::map<std::string, std::string> found;
    for (const model::Occurrence* occurrence : design.root().allOccurrences()) {
      if (occurrence->appearance) {
        found[occurrence->fullPathName()] = model::hexText(occurrence->appearance->colour);
      }
    }
    return found;
  }

  static std::string bodyLooks(const model::Component& component) {
    std::string text;
    for (const auto& body : component.bodies) {
      text += body->appearance ? model::hexText(body->appearance->colour) : "none";
      text += " ";
    }
    return text;
  }

  TemporaryFolder folder;
  ForeignFile foreign;
};

using Looks = std::map<std::string, std::string>;

TEST_F(StyleReader, GivesAnInstancesColourToAllItsOccurrences) {
  const auto part = foreign.addPart("Part", box(10));
  const auto group = foreign.addAssembly("Group");
  const auto root = foreign.addAssembly("Root");
  foreign.paint(foreign.place(group, part, 20), "#FF0000");
  foreign.place(group, part, 40);
  foreign.place(root, group, 100);
  foreign.place(root, group, 200);
  EXPECT_EQ(looks(*written()), (Looks{{"Group:1+Part:1", "#FF0000"}, {"Group:2+Part:1", "#FF0000"}}));
}

TEST_F(StyleReader, GivesAPathsColourToOneOccurrence) {
  const auto part = foreign.addPart("Part", box(10));
  const auto group = foreign.addAssembly("Group");
  const auto root = foreign.addAssembly("Root");
  const auto inner = foreign.place(group, part, 20);
  const auto first = foreign.place(root, group, 100);
  const auto second = foreign.place(root, group, 200);
  foreign.paintPath({second, inner}, "#00FF00");
  foreign.paintPath({first, inner}, "#0000FF");
  EXPECT_EQ(looks(*written()), (Looks{{"Group:1+Part:1", "#0000FF"}, {"Group:2+Part:1", "#00FF00"}}));
}

TEST_F(StyleReader, FollowsDeepPathsWhoseColourHangsOnTheUppermostLink) {
  const auto part = foreign.addPart("Part", box(10));
  const auto group = foreign.addAssembly("Group");
  const auto unit = foreign.addAssembly("Unit");
  const auto root = foreign.addAssembly("Root");
  const auto inner = foreign.place(group, part, 20);
  foreign.place(unit, group, 100);
  const auto middle = foreign.place(unit, group, 200);
  const auto outer = foreign.place(root, unit, 1000);
  foreign.place(root, unit, 2000);
  foreign.paintPath({outer, middle, inner}, "#FF8000");
  EXPECT_EQ(looks(*written()), (Looks{{"Unit:1+Group:2+Part:1", "#FF8000"}}));
}

TEST_F(StyleReader, GivesAPartsColourToItsBodies) {
  const auto part = foreign.addPart("Part", together({box(10), box(10, 50)}));
  foreign.paint(part, "#ABCDEF");
  EXPECT_EQ(bodyLooks(componentNamed(*written(), "Part")), "#ABCDEF #ABCDEF ");
}

TEST_F(StyleReader, PrefersABodysOwnColourToThePartsColour) {
  const TopoDS_Shape second = box(10, 50);
  const auto part = foreign.addPart("Part", together({box(10), second}));
  foreign.paintPart(part, second, "#123456");
  foreign.paint(part, "#ABCDEF");
  EXPECT_EQ(bodyLooks(componentNamed(*written(), "Part")), "#ABCDEF #123456 ");
}

TEST_F(StyleReader, LeavesColoursOfCurvesOut) {
  const auto part = foreign.addPart("Part", box(10));
  foreign.paintCurves(part, "#FF0000");
  EXPECT_EQ(bodyLooks(componentNamed(*written(), "Part")), "none ");
}

TEST_F(StyleReader, KnowsTransparency) {
  const auto part = foreign.addPart("Part", box(10));
  foreign.paint(part, "#FF000040");
  EXPECT_EQ(bodyLooks(componentNamed(*written(), "Part")), "#FF000040 ");
}

TEST_F(StyleReader, FindsColoursInTheFilesThatAnAssemblyRefersTo) {
  const auto part = foreign.addPart("Part", box(10));
  const auto other = foreign.addPart("Other", box(20));
  const auto root = foreign.addAssembly("Root");
  foreign.place(root, part, 20);
  foreign.place(root, other, 40);
  foreign.place(root, part, 60);
  foreign.paint(part, "#FF0000");
  foreign.writeSplit(folder / "whole.stp");
  ASSERT_TRUE(std::filesystem::exists(folder / "Part.stp"));
  const auto design = read(folder / "whole.stp");
  EXPECT_NO_THROW(occurrenceAt(*design, "Part:2"));
  EXPECT_EQ(bodyLooks(componentNamed(*design, "Part")), "#FF0000 ");
  EXPECT_EQ(bodyLooks(componentNamed(*design, "Other")), "none ");
}

TEST_F(StyleReader, NamesAFileThatAnAssemblyRefersToInVain) {
  const auto root = foreign.addAssembly("Root");
  foreign.place(root, foreign.addPart("Part", box(10)), 20);
  foreign.writeSplit(folder / "whole.stp");
  std::filesystem::remove(folder / "Part.stp");
  try {
    read(folder / "whole.stp");
    FAIL() << "was read";
  } catch (const Error& error) {
    EXPECT_NE(std::string(error.what()).find("\"Part.stp\""), std::string::npos) << error.what();
  }
}

/// A part with one red body and a green face, written and open for edits.
TEST_F(StyleReader, LeavesColoursOutWhoseChainOfUsagesIsACircle) {
  model::Design design("Root");
  auto& middle = design.addComponent("Middle");
  auto& part = design.addComponent("Part");
  design.root().addInstance(middle);
  design.root().addInstance(middle);
  middle.addInstance(part);
  addBox(part, "Body");
  occurrenceAt(design, "Middle:1+Part:1").appearance = colour("#FF0000");
  write(design, folder / "sound.stp");
  ASSERT_EQ(looks(*read(folder / "sound.stp")).size(), 1u);

  EditedFile edited(folder / "sound.stp");
  edited.replace("(#\\d+)( = SPECIFIED_HIGHER_USAGE_OCCURRENCE\\((?:[^,]*,){6})#\\d+,", "$1$2$1,");
  edited.save(folder / "circle.stp");
  EXPECT_NE(contentOf(folder / "circle.stp"), contentOf(folder / "sound.stp"));
  EXPECT_EQ(looks(*read(folder / "circle.stp")), Looks());
}

class EditedStyles : public ::testing::Test {
 protected:
  EditedStyles() {
    model::Design design("Root");
    auto& part = design.addComponent("Part");
    design.root().addInstance(part);
    auto& body = addBox(part, "Body");
    body.appearance = colour("#FF0000");
    body.faces[0]->appearance = colour("#00FF00");
    write(design, folder / "written.stp");
    edited = std::make_unique<EditedFile>(folder / "written.stp");
  }

  std::string bodyColour() {
    edited->save(folder / "edited.stp");
    design = read(folder / "edited.stp");
    return model::hexText(componentNamed(*design, "Part").bodies[0]->appearance->colour);
  }

  TemporaryFolder folder;
  std::unique_ptr<EditedFile> edited;
  std::unique_ptr<model::Design> design;
};

TEST_F(EditedStyles, WhatOverridesWinsWhereverItStands) {
  const std::string solid = edited->find("(#\\d+) = MANIFOLD_SOLID_BREP");
  const std::string base = edited->find("(#\\d+) = STYLED_ITEM");
  const std::string overriding = edited->find("(#\\d+) = OVER_RIDING_STYLED_ITEM");
  edited->replace("(OVER_RIDING_STYLED_ITEM\\('[^']*',\\(#\\d+\\)),#\\d+", "$1," + solid);
  edited->replace("\\(" + base + "," + overriding + "\\)", "(" + overriding + "," + base + ")");
  EXPECT_EQ(bodyColour(), "#00FF00");
}

TEST_F(EditedStyles, AShellsColourCountsMoreThanItsSolids) {
  const std::string shell = edited->find("(#\\d+) = CLOSED_SHELL");
  const std::string base = edited->find("(#\\d+) = STYLED_ITEM");
  const std::string other = edited->find("(#\\d+) = OVER_RIDING_STYLED_ITEM");
  edited->replace("OVER_RIDING_STYLED_ITEM\\('[^']*',(\\(#\\d+\\)),#\\d+,#\\d+\\)", "STYLED_ITEM('',$1," + shell + ")");
  edited->replace("\\(" + base + "," + other + "\\)", "(" + other + "," + base + ")");
  EXPECT_EQ(bodyColour(), "#00FF00");
}

TEST_F(EditedStyles, MappedBodiesHaveTheColoursOfTheirPlaces) {
  const std::string shape = edited->find("(#\\d+) = ADVANCED_BREP_SHAPE_REPRESENTATION");
  const std::string context = edited->find("ADVANCED_BREP_SHAPE_REPRESENTATION\\('',\\([^)]*\\),(#\\d+)\\)");
  const std::string origin = edited->find("ADVANCED_BREP_SHAPE_REPRESENTATION\\('',\\((#\\d+)");
  const std::string base = edited->find("(#\\d+) = STYLED_ITEM");
  const std::string other = edited->find("(#\\d+) = OVER_RIDING_STYLED_ITEM");
  const std::string map = edited->add("REPRESENTATION_MAP(" + origin + "," + shape + ")");
  std::vector<std::string> items;
  for (const char* x : {"100.", "200."}) {
    const std::string point = edited->add("CARTESIAN_POINT('',(" + std::string(x) + ",0.,0.))");
    items.push_back(
        edited->add("MAPPED_ITEM(''," + map + "," + edited->add("AXIS2_PLACEMENT_3D(''," + point + ",$,$)") + ")"));
  }
  const std::string mapped =
      edited->add("SHAPE_REPRESENTATION('',(" + origin + "," + items[0] + "," + items[1] + ")," + context + ")");
  edited->replace("(SHAPE_DEFINITION_REPRESENTATION\\(#\\d+),(" + shape + ")\\)", "$1," + mapped + ")");
  edited->replace("(SHAPE_REPRESENTATION_RELATIONSHIP.*|REPRESENTATION_RELATIONSHIP\\('','',)" + shape, "$1" + mapped);
  edited->replace("(" + base + " = STYLED_ITEM\\('[^']*',\\(#\\d+\\)),#\\d+", "$1," + items[0]);
  edited->replace("OVER_RIDING_STYLED_ITEM\\('[^']*',(\\(#\\d+\\)),#\\d+,#\\d+\\)",
                  "STYLED_ITEM('',$1," + items[1] + ")");
  EXPECT_EQ(bodyColour(), "#FF0000");
  const model::Component& part = componentNamed(*design, "Part");
  ASSERT_EQ(part.bodies.size(), 2u);
  EXPECT_EQ(StyleReader::bodyLooks(part), "#FF0000 #00FF00 ");
}

}  // namespace
}  // namespace headless::step
