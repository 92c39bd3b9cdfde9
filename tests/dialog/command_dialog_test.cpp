#include "tests/support/addin_fixture.h"

namespace tests {
namespace {

using CommandDialog = AddInTest;

TEST_F(CommandDialog, OpensWithBodyFilterAndFirstItems) {
  startDialog();
  EXPECT_EQ(shown("idFilterSelect"), "Body");
  EXPECT_EQ(shown("idLibAssets"), "RAL_COLORS");
  EXPECT_EQ(shown("idAppearanceList"), "RAL 1000 Green beige");
  EXPECT_EQ(shown("idLibMaterials"), "Metals");
  EXPECT_EQ(shown("idMaterialList"), "Steel 37");
}

class CommandDialogUnderProfile : public AddInUnderProfile {};

TEST_P(CommandDialogUnderProfile, OpensAndClosesWithoutTrace) {
  startDialog(profile());
  session().pressCancel();
  EXPECT_FALSE(session().isDialogOpen());
}

INSTANTIATE_UNDER_ALL_PROFILES(CommandDialogUnderProfile);

}  // namespace
}  // namespace tests
