// What viewers get: every face in the colour that it really shows, where it really is.
#include "host/step/glb_writer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/model/resolution.h"
#include "host/step/error.h"
#include "host/step/reader.h"
#include "tests/step/made_designs.h"
#include "tests/step/step_files.h"

namespace headless::step {
namespace {

using Json = nlohmann::json;

/// The JSON part of a GLB file; checks the header on the way.
Json jsonOf(const std::filesystem::path& file) {
  const std::string content = contentOf(file);
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    std::memcpy(&value, content.data() + at, sizeof value);
    return value;
  };
  EXPECT_EQ(content.substr(0, 4), "glTF");
  EXPECT_EQ(number(4), 2u);
  EXPECT_EQ(number(8), content.size());
  return Json::parse(content.substr(20, number(12)));
}

/// A linear colour factor as 8-bit sRGB.
std::uint8_t channel(double linear) {
  const double value = linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
  return static_cast<std::uint8_t>(std::lround(value * 255));
}

std::string hexOf(const Json& material) {
  const Json& factor = material["pbrMetallicRoughness"]["baseColorFactor"];
  return model::hexText({channel(factor[0]), channel(factor[1]), channel(factor[2]),
                         static_cast<std::uint8_t>(std::lround(factor[3].get<double>() * 255))});
}

/// The colours of every node's mesh, by the names from below the root down.
using ColoursByPath = std::map<std::string, std::set<std::string>>;

void collect(const Json& scene, const Json& node, const std::string& path, ColoursByPath& found) {
  if (node.contains("mesh")) {
    for (const Json& primitive : scene["meshes"][node["mesh"].get<std::size_t>()]["primitives"]) {
      found[path].insert(hexOf(scene["materials"][primitive["material"].get<std::size_t>()]));
    }
  }
  for (const Json& child : node.value("children", Json::array())) {
    const Json& below = scene["nodes"][child.get<std::size_t>()];
    const std::string name = below["name"];
    collect(scene, below, path.empty() ? name : path + "+" + name, found);
  }
}

ColoursByPath coloursIn(const Json& scene) {
  ColoursByPath found;
  collect(scene, scene["nodes"][scene["scenes"][0]["nodes"][0].get<std::size_t>()], "", found);
  return found;
}

/// What the model says that occurrences with one body show.
ColoursByPath coloursOf(const model::Design& design) {
  ColoursByPath found;
  for (const model::Occurrence* occurrence : design.root().allOccurrences()) {
    for (const auto& body : occurrence->component().bodies) {
      for (const auto& face : body->faces) {
        found[occurrence->fullPathName()].insert(model::hexText(model::lookOf(*face, occurrence).appearance->colour));
      }
    }
  }
  return found;
}

std::size_t triangles(const Json& scene) {
  std::size_t count = 0;
  for (const Json& mesh : scene["meshes"]) {
    for (const Json& primitive : mesh["primitives"]) {
      count += scene["accessors"][primitive["indices"].get<std::size_t>()]["count"].get<std::size_t>() / 3;
    }
  }
  return count;
}

class GlbWriter : public ::testing::Test {
 protected:
  Json written(const model::Design& design, const MeshQuality& quality = {}) {
    writeGlb(design, file, {}, quality);
    return jsonOf(file);
  }

  TemporaryFolder folder;
  std::filesystem::path file = folder / "out.glb";
};

TEST_F(GlbWriter, ShowsEveryFaceAsItLooksInItsPlace) {
  const auto design = makeMachine();
  componentNamed(*design, "Bolt").bodies[0]->faces[0]->appearance = colour("#00FF00");
  componentNamed(*design, "Nut").bodies[0]->appearance = colour("#8000FF");
  componentNamed(*design, "Plate").bodies[0]->material = model::makeMaterial("Copper", 8960, colour("#B87333"));
  occurrenceAt(*design, "Frame:2+Joint:1+Bolt:1").appearance = colour("#FF0000");
  occurrenceAt(*design, "Frame:1").appearance = colour("#0000FF");
  occurrenceAt(*design, "Frame:2+Joint:2").appearance = colour("#11223380");
  EXPECT_EQ(coloursIn(written(*design)), coloursOf(*design));
}

TEST_F(GlbWriter, ShowsTheBodiesOfAComponentUnderTheirNames) {
  model::Design design("Set");
  auto& part = design.addComponent("Part");
  design.root().addInstance(part);
  addBox(part, "Red").appearance = colour("#FF0000");
  auto& striped = addBox(part, "Striped", 10, moved(50, 0, 0));
  striped.appearance = colour("#0000FF");
  striped.faces[1]->appearance = colour("#FFFFFF");
  addBox(design.root(), "Floor", 300).appearance = colour("#777777");
  EXPECT_EQ(
      coloursIn(written(design)),
      (ColoursByPath{{"Floor", {"#777777"}}, {"Part:1+Red", {"#FF0000"}}, {"Part:1+Striped", {"#0000FF", "#FFFFFF"}}}));
}

TEST_F(GlbWriter, IsInMetresWithYUpwards) {
  model::Design design("Lift");
  auto& part = design.addComponent("Part");
  design.root().addInstance(part, moved(1000, 2000, 3000));
  addBox(part, "Box", 10);
  const Json scene = written(design);
  EXPECT_EQ(scene["nodes"][1]["translation"], Json({1.0, 3.0, -2.0}));
  const Json& highest = scene["accessors"][0]["max"];
  EXPECT_NEAR(highest[1].get<double>(), 0.01, 1e-6);
}

TEST_F(GlbWriter, TellsViewersThatPaintIsNoMetal) {
  const Json scene = written(*makeMachine());
  EXPECT_EQ(scene["materials"][0]["pbrMetallicRoughness"]["metallicFactor"], 0.0);
}

TEST_F(GlbWriter, SharesTrianglesAmongOccurrencesThatLookTheSame) {
  const auto design = makeMachine();
  const Json plain = written(*design);
  EXPECT_EQ(plain["meshes"].size(), 10u);
  std::set<std::size_t> positions;
  for (const Json& mesh : plain["meshes"]) {
    positions.insert(mesh["primitives"][0]["attributes"]["POSITION"].get<std::size_t>());
  }
  EXPECT_EQ(positions.size(), 3u);
}

TEST_F(GlbWriter, JoinsFacesOfOneColour) {
  model::Design design("Box");
  auto& body = addBox(design.root(), "Box");
  EXPECT_EQ(written(design)["meshes"][0]["primitives"].size(), 1u);
  body.faces[2]->appearance = colour("#FF0000");
  EXPECT_EQ(written(design)["meshes"][0]["primitives"].size(), 2u);
}

TEST_F(GlbWriter, FollowsCurvesAsCloselyAsAsked) {
  WITH_STEP_FILE(path, "as1-tu-203.stp");
  const auto design = read(path);
  const std::size_t coarse = triangles(written(*design, {0.01, 1.0}));
  const std::size_t fine = triangles(written(*design, {0.0005, 0.1}));
  EXPECT_GT(coarse, 0u);
  EXPECT_GT(fine, 3 * coarse);
}

TEST_F(GlbWriter, ShowsRealAssemblies) {
  for (const char* name : {"as1-tu-203.stp", "red_cube_blue_cylinder.step", "io1-cm-214.stp"}) {
    WITH_STEP_FILE(path, name);
    const auto design = read(path);
    design->root().allOccurrences().back()->appearance = colour("#123456");
    EXPECT_EQ(coloursIn(written(*design)), coloursOf(*design)) << name;
  }
}

TEST_F(GlbWriter, ShowsALargeBoard) {
  WITH_STEP_FILE(path, "motor-driver-board-v3.5.step");
  const auto design = read(path);
  const Json scene = written(*design);
  EXPECT_EQ(scene["nodes"].size(), 1414u);
  EXPECT_EQ(coloursIn(scene), coloursOf(*design));
}

TEST_F(GlbWriter, ShowsComponentsWithoutBodiesAsEmptyNodes) {
  model::Design design("Hollow");
  auto& empty = design.addComponent("Empty");
  auto& part = design.addComponent("Part");
  design.root().addInstance(empty);
  design.root().addInstance(part);
  addBox(part, "Box");
  const Json scene = written(design);
  ASSERT_EQ(scene["nodes"].size(), 3u);
  for (const Json& node : scene["nodes"]) {
    EXPECT_TRUE(!node.contains("children") || !node["children"].empty()) << node;
  }
}

TEST_F(GlbWriter, RefusesDesignsWithoutGeometryAndLeavesNoFile) {
  model::Design design("Made up");
  design.root().addBody("Idea");
  EXPECT_THROW(writeGlb(design, file), Error);
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(GlbWriter, LeavesOnlyItsFile) {
  writeGlb(*makeMachine(), folder /
                               "Gr\xC3\xB6\xC3\x9F"
                               "e.glb");
  const std::filesystem::directory_iterator files(folder.path());
  EXPECT_EQ(files->path().filename().u8string(),
            "Gr\xC3\xB6\xC3\x9F"
            "e.glb");
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(GlbWriter, TellsHowFarItGot) {
  std::vector<std::pair<std::string, double>> told;
  writeGlb(*makeMachine(), file, [&](const std::string& phase, double done) { told.emplace_back(phase, done); });
  ASSERT_GE(told.size(), 4u);
  EXPECT_EQ(told.front(), std::make_pair(std::string("meshing"), 0.0));
  EXPECT_EQ(told.back(), std::make_pair(std::string("writing"), 1.0));
}

}  // namespace
}  // namespace headless::step
