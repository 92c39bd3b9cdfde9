#include <nlohmann/json.hpp>

#include "tests/cli/cli_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class ClearUnderProfile : public CliTest, public WithRow<const char*> {};

TABLE(Profiles, ClearUnderProfile, byText, {"lenient", "documented", "hostile"});

TABLE_TEST(ClearUnderProfile, RemovesTheAppearancesOfBodiesAndTheirFaces) {
  EXPECT_EQ(succeed({"clear", rig(), "--filter", "body", "--select", "*", "--save", at(assemblyName("plain")),
                     "--profile", row()}),
            "Removed the applied appearances of 5 bodies and all below\nSaved " + at(assemblyName("plain")) + "\n");
  EXPECT_THAT(json(at(assemblyName("plain"))), ::testing::Not(HasSubstr("Opaque")));
}

TEST_F(CliTest, ClearingAComponentLeavesTheOthers) {
  succeed({"clear", rig(), "--filter", "component", "--select", "Arm:1", "--save", at(assemblyName("plain"))});
  const auto tree = nlohmann::json::parse(json(at(assemblyName("plain"))));
  EXPECT_EQ(tree["bodies"][0]["own"]["colour"], "#FF0000");
  EXPECT_TRUE(tree["occurrences"][0]["occurrences"][0]["bodies"][0]["own"].is_null());
}

TEST_F(CliTest, NothingToRemoveIsSaidAndSavedAllTheSame) {
  EXPECT_THAT(
      succeed({"clear", rig(), "--filter", "body", "--select", "Arm:1/Beam", "--save", at(assemblyName("plain"))}),
      StartsWith("Nothing to remove: no appearance is applied to 1 body"));
  EXPECT_TRUE(exists(assemblyName("plain")));
}

TEST_F(CliTest, PickedFacesCannotBeCleared) {
  EXPECT_THAT(
      fail(1, {"clear", rig(), "--filter", "face", "--select", "*/Shaft/*", "--save", at(assemblyName("plain"))}),
      HasSubstr("pick their bodies instead"));
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("rig")));
}

}  // namespace
}  // namespace tests
