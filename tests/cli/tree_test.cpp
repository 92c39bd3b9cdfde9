#include <nlohmann/json.hpp>

#include "tests/cli/cli_fixture.h"

namespace tests {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;

class TreeCommand : public CliTest {};

TEST_F(TreeCommand, TreeShowsStructureLooksSourcesAndMaterials) {
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

TEST_F(TreeCommand, SiblingsThatLookDifferentHaveRowsOfTheirOwn) {
  succeed(applying(
      {"--filter", "component", "--select", "Arm:2+Pin:1", "--appearance", "RAL 3000 Flame red", "--answer", "no"}));
  const std::string tree = succeed({"tree", saved()});
  EXPECT_THAT(tree, HasSubstr("├─ Arm:1 "));
  EXPECT_THAT(tree, HasSubstr("└─ Arm:2 "));
  EXPECT_THAT(tree, Not(HasSubstr("Arm:1-2")));
  EXPECT_THAT(tree, ContainsRegex("Pin:1 +#A72920 .* own"));
}

TEST_F(TreeCommand, TheWholeTreeHasARowForEveryFace) {
  const std::string tree = succeed({"tree", rig(), "--all"});
  EXPECT_THAT(tree, HasSubstr("├─ Arm:1 "));
  EXPECT_THAT(tree, HasSubstr("└─ Face6 "));
  EXPECT_THAT(tree, HasSubstr("Opaque(0,255,0)  body"));
  // A header, the root, 4 occurrences, 5 bodies, 30 faces, a blank line and the sum.
  EXPECT_EQ(std::count(tree.begin(), tree.end(), '\n'), 43);
}

TEST_F(TreeCommand, TreeHasBlocksInTheColoursOfTheObjectsWhenAsked) {
  EXPECT_THAT(succeed({"tree", rig(), "--colour", "always"}), HasSubstr("\x1b[48;2;255;0;0m  \x1b[0m #FF0000"));
  EXPECT_THAT(succeed({"tree", rig()}), Not(HasSubstr("\x1b")));
}

TEST_F(TreeCommand, JsonTellsTheSameToPrograms) {
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

TEST_F(TreeCommand, JsonWithEverythingHasAllFaces) {
  const auto tree = nlohmann::json::parse(succeed({"tree", rig(), "--json", "--all"}));
  EXPECT_EQ(tree["bodies"][0]["faces"].size(), 6);
  EXPECT_EQ(tree["bodies"][0]["faces"][5]["source"], "body");
}

}  // namespace
}  // namespace tests
