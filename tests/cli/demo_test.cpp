#include "tests/cli/cli_fixture.h"
#include "tests/step/step_files.h"

namespace tests {
namespace {

using ::testing::HasSubstr;

/// What the demo must show, in this order.
const std::vector<const char*> shownInOrder = {
    "SOLID > QV Tools",
    "( Open Help )  Open User Guide",
    "nothing picked",
    "2 picked",
    "Opaque(0,255,0) - overriden appearance.",
    "[ ral 30 ",
    "Physical material: Steel S235JR;  Density: 7850",
    "RAL 3000 Flame red - overriden appearance.",
    "Remove appearances applied to bodies & faces?",
    "answered: [ Yes ]",
    "RAL 5015 Sky blue - overriden appearance.",
    "Various",
    "Physical material: Various",
    "Opaque(199,199,0) - overriden appearance.",
    "Brass - Polished - appearance by assigned",
    "undo",
    "Opaque(199,199,0) - overriden appearance.",
    "Brass - Polished - appearance by assigned",
    "Opaque(0,0,255) - overriden appearance.",
    "Steel - Satin - appearance by assigned material.",
    "Tintora_UsersGuide.pdf",
    "Tintora_USER_CmdSet.txt",
    "[ Brass C26000 ",
    "#007CB0  RAL 5015 Sky blue   own",
    "#A72920  RAL 3000 Flame red  own",
    "Saved ",
};

class DemoUnderProfile : public CliTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(DemoUnderProfile, ShowsEveryStep) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const std::string shown =
      succeed({"demo", file.string(), "--save", at("demo.step"), "--glb", at("demo.glb"), "--profile", GetParam()});
  std::size_t position = 0;
  for (const char* text : shownInOrder) {
    const std::size_t found = shown.find(text, position);
    ASSERT_NE(found, std::string::npos) << "\"" << text << "\" is not shown after:\n" << shown.substr(0, position);
    position = found;
  }
  EXPECT_TRUE(exists("demo.step"));
  EXPECT_TRUE(exists("demo.glb"));
}

INSTANTIATE_TEST_SUITE_P(Profiles, DemoUnderProfile, ::testing::Values("lenient", "documented", "hostile"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(CliTest, TheDemoNeedsItsAssembly) {
  EXPECT_THAT(runProgram({"demo", rig(), "--save", at("demo.step")}).err, HasSubstr("No body of Rig matches"));
  EXPECT_FALSE(exists("demo.step"));
}

}  // namespace
}  // namespace tests
