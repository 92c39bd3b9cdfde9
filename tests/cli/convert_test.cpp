// From STEP files to design files.
#include "tests/cli/demo_steps.h"
#include "tests/cli/native_fixture.h"
#include "tests/step/step_files.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ConvertedAssembly : public NativeCliTest, public WithRow<const char*> {};

TABLE(Files, ConvertedAssembly, byText,
      {"as1-oc-214.stp", "as1-tu-203.stp", "dm1-id-214.stp", "io1-cm-214.stp", "motor-driver-board-v3.5.step",
       "red_cube_blue_cylinder.step"});

TABLE_TEST(ConvertedAssembly, HasTheSameTree) {
  WITH_STEP_FILE(file, row());
  succeed({"convert", file.string(), at("out.design.json")});
  const std::string tree = json(file.string());
  EXPECT_THAT(tree, HasSubstr("\"occurrences\""));
  EXPECT_TRUE(json(at("out.design.json")) == tree) << "the trees of " << file << " and of the design file differ";
}

TEST_F(NativeCliTest, ConvertKeepsTheTreeOfASmallAssembly) {
  EXPECT_EQ(succeed({"convert", rig(), at("rig.design.json")}), "Saved " + at("rig.design.json") + "\n");
  EXPECT_EQ(json(at("rig.design.json")), json(rig()));
}

TEST_F(NativeCliTest, ConvertWritesStepAsWell) {
  succeed({"convert", rig(), at("copy.stp")});
  EXPECT_EQ(json(at("copy.stp")), json(rig()));
}

TEST_F(NativeCliTest, ConvertNeedsAnEndingThatItKnows) {
  EXPECT_THAT(fail(2, {"convert", rig(), at("out.json")}), HasSubstr("the name must end in .step, .stp, .p21, "));
  EXPECT_THAT(fail(2, {"convert", rig(), rig()}), HasSubstr("is the file that is read"));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

TEST_F(NativeCliTest, WhatIsAppliedToAnAssemblyCanBeSavedAsADesignFile) {
  succeed({"apply", rig(), "--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--save",
           at("out.design.json")});
  EXPECT_THAT(succeed({"tree", at("out.design.json")}), HasSubstr("#A72920  RAL 3000 Flame red  own"));
}

TEST_F(NativeCliTest, ADesignFileHasNoGeometryForStepViewersAndPictures) {
  succeed({"convert", rig(), at("rig.design.json")});
  const auto refused = AllOf(HasSubstr("design files hold no geometry"), HasSubstr("begin with the STEP file"));
  EXPECT_THAT(fail(2, {"convert", at("rig.design.json"), at("out.step")}), refused);
  EXPECT_THAT(fail(2, {"clear", at("rig.design.json"), "--filter", "body", "--select", "*", "--save",
                       at("out.design.json"), "--glb", at("out.glb")}),
              refused);
  EXPECT_THAT(fail(2, {"render", at("rig.design.json"), "--png", at("out.png")}), refused);
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.design.json", "rig.step"));
}

TEST_F(NativeCliTest, TheDemoPlaysOnAConvertedAssembly) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  succeed({"convert", file.string(), at("as1.design.json")});
  expectEveryStep(runProgram({"demo", at("as1.design.json"), "--save", at("demo.design.json")}, Program::Plain).out);
  EXPECT_TRUE(exists("demo.design.json"));
}

}  // namespace
}  // namespace tests
