#include <nlohmann/json.hpp>

#include "tests/cli/cli_fixture.h"
#include "tests/step/step_files.h"

namespace tests {
namespace {

using ::testing::ContainsRegex;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(CliTest, TreeShowsStructureLooksSourcesAndMaterials) {
  EXPECT_EQ(succeed({"tree", rig()}),
            "Object                  Shows                     From      Material\n"
            "Rig                                                         Steel, 7850 kg/m3\n"
            "├─ Base                 #FF0000  Opaque(255,0,0)  own       Steel, 7850 kg/m3\n"
            "└─ Arm:1-2 ×2                                               Steel, 7850 kg/m3\n"
            "   ├─ Beam              #9A9DA0  Steel - Satin    material  Steel, 7850 kg/m3\n"
            "   └─ Pin:1                                                 Steel, 7850 kg/m3\n"
            "      └─ Shaft          #00FF00  Opaque(0,255,0)  own       Steel, 7850 kg/m3\n"
            "         └─ Face2-3 ×2  #0000FF  Opaque(0,0,255)  own\n"
            "\n"
            "3 components, 4 occurrences, 5 bodies, 30 faces\n");
}

TEST_F(CliTest, SiblingsThatLookDifferentHaveRowsOfTheirOwn) {
  succeed(applying(
      {"--filter", "component", "--select", "Arm:2+Pin:1", "--appearance", "RAL 3000 Flame red", "--answer", "no"}));
  const std::string tree = succeed({"tree", at("out.step")});
  EXPECT_THAT(tree, HasSubstr("├─ Arm:1 "));
  EXPECT_THAT(tree, HasSubstr("└─ Arm:2 "));
  EXPECT_THAT(tree, Not(HasSubstr("Arm:1-2")));
  EXPECT_THAT(tree, ContainsRegex("Pin:1 +#A72920  Opaque\\(167,41,32\\) +own"));
}

TEST_F(CliTest, TheWholeTreeHasARowForEveryFace) {
  const std::string tree = succeed({"tree", rig(), "--all"});
  EXPECT_THAT(tree, HasSubstr("├─ Arm:1 "));
  EXPECT_THAT(tree, HasSubstr("└─ Face6 "));
  EXPECT_THAT(tree, HasSubstr("Opaque(0,255,0)  body"));
  // A header, the root, 4 occurrences, 5 bodies, 30 faces, a blank line and the sum.
  EXPECT_EQ(std::count(tree.begin(), tree.end(), '\n'), 43);
}

TEST_F(CliTest, TreeInATerminalHasBlocksInTheColoursOfTheObjects) {
  EXPECT_THAT(succeed({"tree", rig(), "--colour", "always"}), HasSubstr("\x1b[48;2;255;0;0m  \x1b[0m #FF0000"));
  EXPECT_THAT(succeed({"tree", rig()}), Not(HasSubstr("\x1b")));
  EXPECT_THAT(runInTerminal({"tree", rig()}, "").out, HasSubstr("\x1b[48;2;255;0;0m"));
  EXPECT_THAT(runInTerminal({"tree", rig(), "--colour", "never"}, "").out, Not(HasSubstr("\x1b[48")));
}

TEST_F(CliTest, JsonTellsTheSameToPrograms) {
  const auto tree = nlohmann::json::parse(succeed({"tree", rig(), "--json"}));
  EXPECT_EQ(tree["design"], "Rig");
  EXPECT_EQ(tree["counts"]["faces"], 30);
  EXPECT_EQ(tree["bodies"][0]["own"]["colour"], "#FF0000");
  const auto& shaft = tree["occurrences"][1]["occurrences"][0]["bodies"][0];
  EXPECT_EQ(shaft["path"], "Arm:2+Pin:1/Shaft");
  EXPECT_EQ(shaft["source"], "body");
  EXPECT_EQ(shaft["sourceCode"], 1);
  EXPECT_EQ(shaft["material"]["density"], 7850);
  EXPECT_EQ(shaft["faceCount"], 6);
  ASSERT_EQ(shaft["faces"].size(), 2);
  EXPECT_EQ(shaft["faces"][0]["path"], "Arm:2+Pin:1/Shaft/Face2");
  const auto& beam = tree["occurrences"][0]["bodies"][0];
  EXPECT_TRUE(beam["own"].is_null());
  EXPECT_EQ(beam["source"], "material");
}

TEST_F(CliTest, JsonWithEverythingHasAllFaces) {
  const auto tree = nlohmann::json::parse(succeed({"tree", rig(), "--json", "--all"}));
  EXPECT_EQ(tree["bodies"][0]["faces"].size(), 6);
  EXPECT_EQ(tree["bodies"][0]["faces"][5]["source"], "body");
}

TEST_F(CliTest, TreeOfARealAssembly) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const std::string tree = succeed({"tree", file.string()});
  EXPECT_THAT(tree, HasSubstr("l-bracket-assembly:1-2 ×2"));
  EXPECT_THAT(tree, HasSubstr("nut-bolt-assembly:1-3 ×3"));
  EXPECT_THAT(tree, EndsWith("9 components, 27 occurrences, 18 bodies, 160 faces\n"));
}

}  // namespace
}  // namespace tests
