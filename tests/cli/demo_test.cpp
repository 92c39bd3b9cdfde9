#include "host/cli/geometry.h"

#include <cstdlib>

#include "tests/cli/assemblies.h"
#include "tests/cli/cli_fixture.h"
#include "tests/cli/demo_steps.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::HasSubstr;

class DemoUnderProfile : public CliTest, public WithRow<const char*> {
 protected:
  DemoUnderProfile() : CliTest(Program::Usual) {}
};

TABLE(Profiles, DemoUnderProfile, byText, {"lenient", "documented", "hostile"});

TABLE_TEST(DemoUnderProfile, ShowsEveryStep) {
  const std::filesystem::path file = findDemoAssembly();
  if (file.empty()) {
    ASSERT_EQ(std::getenv("CI"), nullptr) << explainMissingDemoAssembly();
    GTEST_SKIP() << explainMissingDemoAssembly();
  }
  const std::string saved = at(assemblyName("demo"));
  std::vector<std::string> arguments = {"demo",    file.u8string(), "--save",    saved,
                                        "--addin", copyAddIn(),     "--profile", row()};
  if (headless::cli::hasGeometry()) {
    arguments.insert(arguments.end(), {"--glb", at("demo.glb")});
  }
  expectEveryStep(succeed(arguments));
  EXPECT_TRUE(exists(assemblyName("demo")));
  EXPECT_EQ(exists("demo.glb"), headless::cli::hasGeometry());
}

TEST_F(CliTest, TheDemoNeedsItsAssembly) {
  const Outcome outcome = run({"demo", rig(), "--save", at(assemblyName("demo"))});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr(rig() + ": no body of Rig matches"));
  EXPECT_FALSE(exists(assemblyName("demo")));
}

}  // namespace
}  // namespace tests
