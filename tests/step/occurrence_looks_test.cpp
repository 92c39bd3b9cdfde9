// Looks of instances and paths on the tree.
#include "host/step/occurrence_looks.h"

#include <gtest/gtest.h>

#include "tests/step/made_designs.h"

namespace headless::step {
namespace {

class OccurrenceLooksTest : public ::testing::Test {
 protected:
  const model::Instance* instance(const std::string& component, std::size_t index) const {
    return componentNamed(*design, component).instances[index].get();
  }

  std::string lookAt(const std::string& path) const {
    const auto& look = occurrenceAt(*design, path).appearance;
    return look ? model::hexText(look->colour) : "none";
  }

  std::unique_ptr<model::Design> design = makeMachine();
  OccurrenceLooks looks;
};

TEST_F(OccurrenceLooksTest, APathOfOneReachesEveryUse) {
  looks.add({instance("Joint", 0)}, colour("#FF0000"));
  looks.applyTo(*design);
  EXPECT_EQ(lookAt("Frame:1+Joint:1+Bolt:1"), "#FF0000");
  EXPECT_EQ(lookAt("Frame:2+Joint:2+Bolt:1"), "#FF0000");
  EXPECT_EQ(lookAt("Frame:2+Joint:2+Nut:1"), "none");
}

TEST_F(OccurrenceLooksTest, TheLongestPathWins) {
  looks.add({instance("Machine", 1), instance("Frame", 1), instance("Joint", 0)}, colour("#0000FF"));
  looks.add({instance("Joint", 0)}, colour("#FF0000"));
  looks.add({instance("Frame", 1), instance("Joint", 0)}, colour("#00FF00"));
  looks.applyTo(*design);
  EXPECT_EQ(lookAt("Frame:2+Joint:1+Bolt:1"), "#0000FF");
  EXPECT_EQ(lookAt("Frame:1+Joint:1+Bolt:1"), "#00FF00");
  EXPECT_EQ(lookAt("Frame:1+Joint:2+Bolt:1"), "#FF0000");
}

TEST_F(OccurrenceLooksTest, ALaterLookReplacesAnEarlierOne) {
  looks.add({instance("Machine", 0)}, colour("#FF0000"));
  looks.add({instance("Machine", 0)}, colour("#00FF00"));
  looks.applyTo(*design);
  EXPECT_EQ(lookAt("Frame:1"), "#00FF00");
}

TEST_F(OccurrenceLooksTest, WithoutLooksTheTreeIsNotMade) {
  looks.applyTo(*design);
  EXPECT_FALSE(design->root().isExpanded());
}

}  // namespace
}  // namespace headless::step
