#include <nlohmann/json.hpp>

#include "tests/cli/cli_fixture.h"

namespace tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class ClearUnderProfile : public CliTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(ClearUnderProfile, RemovesTheAppearancesOfBodiesAndTheirFaces) {
  EXPECT_EQ(succeed({"clear", rig(), "--filter", "body", "--select", "*", "--save", at("plain.step"), "--profile",
                     GetParam()}),
            "Removed the applied appearances of 5 bodies and all below\nSaved " + at("plain.step") + "\n");
  EXPECT_THAT(json(at("plain.step")), ::testing::Not(HasSubstr("Opaque")));
}

INSTANTIATE_TEST_SUITE_P(Profiles, ClearUnderProfile, ::testing::Values("lenient", "documented", "hostile"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(CliTest, ClearingAComponentLeavesTheOthers) {
  succeed({"clear", rig(), "--filter", "component", "--select", "Arm:1", "--save", at("plain.step")});
  const auto tree = nlohmann::json::parse(json(at("plain.step")));
  EXPECT_EQ(tree["bodies"][0]["own"]["colour"], "#FF0000");
  EXPECT_TRUE(tree["occurrences"][0]["occurrences"][0]["bodies"][0]["own"].is_null());
}

TEST_F(CliTest, NothingToRemoveIsSaidAndSavedAllTheSame) {
  EXPECT_THAT(succeed({"clear", rig(), "--filter", "body", "--select", "Arm:1/Beam", "--save", at("plain.step")}),
              StartsWith("Nothing to remove: no appearance is applied to 1 body"));
  EXPECT_TRUE(exists("plain.step"));
}

TEST_F(CliTest, PickedFacesCannotBeCleared) {
  EXPECT_THAT(fail(1, {"clear", rig(), "--filter", "face", "--select", "*/Shaft/*", "--save", at("plain.step")}),
              HasSubstr("pick their bodies instead"));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

}  // namespace
}  // namespace tests
