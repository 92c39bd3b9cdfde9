#include "tests/cli/cli_fixture.h"
#include "tests/cli/demo_steps.h"
#include "tests/step/step_files.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::HasSubstr;

class DemoUnderProfile : public CliTest, public WithRow<const char*> {};

TABLE(Profiles, DemoUnderProfile, byText, {"lenient", "documented", "hostile"});

TABLE_TEST(DemoUnderProfile, ShowsEveryStep) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const std::string shown = succeed({"demo", file.string(), "--save", at("demo.step"), "--glb", at("demo.glb"),
                                     "--addin", copyAddIn(), "--profile", row()});
  expectEveryStep(shown);
  EXPECT_TRUE(exists("demo.step"));
  EXPECT_TRUE(exists("demo.glb"));
}

TEST_F(CliTest, TheDemoNeedsItsAssembly) {
  const Outcome outcome = runProgram({"demo", rig(), "--save", at("demo.step")});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr(rig() + ": no body of Rig matches"));
  EXPECT_FALSE(exists("demo.step"));
}

}  // namespace
}  // namespace tests
