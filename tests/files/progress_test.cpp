// Progress is told in order and not too often.
#include "host/files/progress.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace headless::files {
namespace {

TEST(Progress, BeginsWithZeroAndEndsWithOne) {
  std::vector<double> told;
  const Progress progress = [&](const std::string& phase, double fraction) {
    EXPECT_EQ(phase, "meshing");
    told.push_back(fraction);
  };
  Phase phase(progress, "meshing");
  phase.reached(0.5);
  phase.finish();
  phase.finish();
  EXPECT_EQ(told, (std::vector<double>{0.0, 0.5, 1.0}));
}

TEST(Progress, LeavesOutSmallStepsAndStepsBack) {
  std::vector<double> told;
  const Progress progress = [&](const std::string&, double fraction) { told.push_back(fraction); };
  Phase phase(progress, "writing");
  for (int i = 0; i <= 10000; ++i) {
    phase.reached(i / 10000.0);
  }
  phase.reached(0.3);
  phase.reached(7.0);
  EXPECT_LE(told.size(), 101u);
  EXPECT_GE(told.size(), 90u);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(told.back(), 1.0);
}

TEST(Progress, MayBeAskedForByNobody) {
  const Progress nobody;
  Phase phase(nobody, "reading");
  EXPECT_NO_THROW(phase.finish());
}

}  // namespace
}  // namespace headless::files
