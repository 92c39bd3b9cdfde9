#include "host/cli/picking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/cli/failure.h"
#include "tests/support/designs.h"

namespace headless::cli {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> pathsOf(PickKind kind, const std::vector<std::string>& patterns) {
  const auto design = tests::machine();
  std::vector<std::string> paths;
  for (const Pickable& each : matching(*design, "machine.step", kind, patterns)) {
    paths.push_back(each.path);
  }
  return paths;
}

TEST(Picking, AStarCrossesEverySeparator) {
  EXPECT_THAT(pathsOf(PickKind::Body, {"Frame:1*Head"}), ElementsAre("Frame:1+Bolt:1/Head"));
  EXPECT_THAT(pathsOf(PickKind::Component, {"*Bolt:?"}), ElementsAre("Frame:1+Bolt:1", "Frame:2+Bolt:1", "Bolt:2"));
}

TEST(Picking, SetsOfCharactersAndEscapes) {
  EXPECT_THAT(pathsOf(PickKind::Component, {"Frame:[2]"}), ElementsAre("Frame:2"));
  EXPECT_THROW(pathsOf(PickKind::Component, {"Frame\\:*\\*"}), Failure);
}

TEST(Picking, WhatSeveralPatternsMatchIsPickedOnceInTheOrderOfTheTree) {
  EXPECT_THAT(pathsOf(PickKind::Face, {"Base/Face2", "Base/*", "Base/Face1"}), ElementsAre("Base/Face1", "Base/Face2"));
}

TEST(Picking, APathWithBracketsIsTakenAsItStands) {
  model::Design design("Root");
  design.root().addBody("Part [a]");
  EXPECT_EQ(matching(design, "root.step", PickKind::Body, {"Part [a]"}).size(), 1U);
}

TEST(Picking, WithoutAnyOfItsKindTheMessageSaysSoAndNamesTheFile) {
  model::Design design("Root");
  try {
    matching(design, "root.step", PickKind::Body, {"x"});
    FAIL() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_STREQ(failure.what(), "root.step: no body of Root matches \"x\"; there are none in this design");
  }
}

}  // namespace
}  // namespace headless::cli
