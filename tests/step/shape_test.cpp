// Placements of designs and of the kernel are the same.
#include "host/step/shape.h"

#include <gtest/gtest.h>

#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>

#include "tests/step/made_designs.h"

namespace headless::step {
namespace {

TEST(Shape, PlacementsComeBackFromTheKernel) {
  gp_Trsf turn;
  turn.SetRotation(gp_Ax1(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 0)), 0.7);
  const model::Placement placement = placementOf(TopLoc_Location(turn));
  const model::Placement again = placementOf(locationOf(placement));
  for (std::size_t i = 0; i < placement.size(); ++i) {
    EXPECT_NEAR(again[i], placement[i], 1e-12) << i;
  }
}

TEST(Shape, TranslationsStandBehindTheRotationsRows) {
  const gp_Pnt point = gp_Pnt(1, 2, 3).Transformed(locationOf(moved(10, 20, 30)).Transformation());
  EXPECT_NEAR(point.X(), 11, 1e-12);
  EXPECT_NEAR(point.Y(), 22, 1e-12);
  EXPECT_NEAR(point.Z(), 33, 1e-12);
}

TEST(Shape, NothingMovesWithoutPlacement) {
  EXPECT_TRUE(locationOf(model::identityPlacement).IsIdentity());
  EXPECT_EQ(placementOf(TopLoc_Location()), model::identityPlacement);
}

}  // namespace
}  // namespace headless::step
