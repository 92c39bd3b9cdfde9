#include "tests/shell/toolbar_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

using ToolbarRemoval = Toolbar;

TEST_F(ToolbarRemoval, IsRemovedInThisOrder) {
  start();
  host().gate().startTrace();
  ASSERT_TRUE(session().stopAddIn());
  const std::vector<std::string> expected = {
      "UserInterface.workspaces()",
      R"(Workspaces.itemById("FusionSolidEnvironment"))",
      "Workspace(FusionSolidEnvironment).toolbarPanels()",
      R"(ToolbarPanels(FusionSolidEnvironment).itemById("id_QV_Tools_Tnt"))",
      "ToolbarPanel(id_QV_Tools_Tnt).deleteMe()",
      "UserInterface.commandDefinitions()",
      R"(CommandDefinitions.itemById("idAssetsMatMng"))",
      "CommandDefinition(idAssetsMatMng).deleteMe()",
      "ToolbarPanel(id_QV_Tools_Tnt).controls()",
      R"(ToolbarControls(id_QV_Tools_Tnt).itemById("idAssetsMatMng"))",
      "UserInterface.commandDefinitions()",
      R"(CommandDefinitions.itemById("idOpenHelp"))",
      "CommandDefinition(idOpenHelp).deleteMe()",
      "ToolbarPanel(id_QV_Tools_Tnt).controls()",
      R"(ToolbarControls(id_QV_Tools_Tnt).itemById("idOpenHelp"))",
      "Workspace(FusionSolidEnvironment).toolbarPanels()",
      R"(ToolbarPanels(FusionSolidEnvironment).itemById("id_QV_Tools_TntOnTools"))",
      "ToolbarPanel(id_QV_Tools_TntOnTools).deleteMe()",
      "UserInterface.commandDefinitions()",
      R"(CommandDefinitions.itemById("idAssetsMatMngOnTools"))",
      "CommandDefinition(idAssetsMatMngOnTools).deleteMe()",
      "ToolbarPanel(id_QV_Tools_TntOnTools).controls()",
      R"(ToolbarControls(id_QV_Tools_TntOnTools).itemById("idAssetsMatMngOnTools"))",
      "UserInterface.commandDefinitions()",
      R"(CommandDefinitions.itemById("idOpenHelpOnTools"))",
      "CommandDefinition(idOpenHelpOnTools).deleteMe()",
      "ToolbarPanel(id_QV_Tools_TntOnTools).controls()",
      R"(ToolbarControls(id_QV_Tools_TntOnTools).itemById("idOpenHelpOnTools"))"};
  EXPECT_THAT(callsIn(host().gate()), ElementsAreArray(expected));
}

TEST_F(ToolbarRemoval, ControlsThatOutliveTheirPanelAreDeletedAfterTheirDefinitions) {
  start();
  host().gate().startTrace();
  host().gate().setFault({1, FaultAnswer::Nothing, "ToolbarPanel.deleteMe"});
  ASSERT_TRUE(session().stopAddIn());
  EXPECT_THAT(callsWith(host().gate(), {"deleteMe"}),
              ElementsAre("ToolbarPanel(id_QV_Tools_Tnt).deleteMe()", "CommandDefinition(idAssetsMatMng).deleteMe()",
                          "CommandControl(idAssetsMatMng).deleteMe()", "CommandDefinition(idOpenHelp).deleteMe()",
                          "CommandControl(idOpenHelp).deleteMe()", "ToolbarPanel(id_QV_Tools_TntOnTools).deleteMe()",
                          "CommandDefinition(idAssetsMatMngOnTools).deleteMe()",
                          "CommandDefinition(idOpenHelpOnTools).deleteMe()"));
}

TEST_F(ToolbarRemoval, PanelGoesWithTheControlsOfOtherTools) {
  start();
  host().ui().definitions().addNative("idOtherTool", "Other tool");
  const auto definition =
      adsk::core::Application::get()->userInterface()->commandDefinitions()->itemById("idOtherTool");
  ASSERT_TRUE(workspace().findPanel(solidPanel)->controls()->addCommand(definition, "", true));
  ASSERT_TRUE(session().stopAddIn());
  EXPECT_THAT(session().toolbar(), IsEmpty());
  EXPECT_EQ(registered().panels, 0U);
}

TEST_F(ToolbarRemoval, DefinitionsAreDeletedAlthoughSomebodyElseTookThePanels) {
  start();
  workspace().findPanel(solidPanel)->deleteMe();
  workspace().findPanel(toolsPanel)->deleteMe();
  host().gate().startTrace();
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_EQ(registered(), (Registered{0, 0, 0, 0, 1}));
  EXPECT_THAT(callsWith(host().gate(), {"controls()"}), IsEmpty());
}

TEST_F(ToolbarRemoval, ButtonsThatSomebodyElseTookAreSkipped) {
  start();
  host().ui().definitions().find("idAssetsMatMng")->deleteMe();
  workspace().findPanel(toolsPanel)->controlList().find("idOpenHelpOnTools")->deleteMe();
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_EQ(registered(), (Registered{0, 0, 0, 0, 1}));
}

TEST_F(ToolbarRemoval, NothingIsDeletedWithoutTheWorkspace) {
  start();
  ASSERT_TRUE(host().ui().workspaceList().remove(workspaceId));
  EXPECT_FALSE(session().stopAddIn());
  EXPECT_EQ(registered().definitions, 4U);
}

TEST_F(ToolbarRemoval, HostWithoutControlsOfADeletedPanelHasEachStopEndThere) {
  headless::Profile profile = usualProfile();
  profile.deletedPanelControls = headless::DeletedPanelControls::Nothing;
  start(profile);
  EXPECT_FALSE(session().stopAddIn());
  EXPECT_THAT(takeErrorKinds(), ElementsAre("std::exception"));
  EXPECT_EQ(registered(), (Registered{1, 3, 2, 3, 1}));
  EXPECT_FALSE(session().stopAddIn());
  EXPECT_THAT(takeErrorKinds(), ElementsAre("std::exception"));
  EXPECT_EQ(registered(), (Registered{0, 1, 0, 1, 1}));
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_EQ(registered(), (Registered{0, 0, 0, 0, 1}));
}

class ToolbarStop : public RefusedCall {};

TABLE(Refused, ToolbarStop, nameOf,
      {Refusal{"UserInterface.workspaces", 1, Ending::Raises, everything},
       Refusal{"Workspaces.itemById", 1, Ending::False, everything},
       Refusal{"Workspace.toolbarPanels", 1, Ending::Raises, everything},
       Refusal{"ToolbarPanels.itemById", 1, Ending::True, {1, 0, 2, 0, 1}},
       Refusal{"ToolbarPanel.deleteMe", 1, Ending::True, {1, 0, 0, 0, 1}},
       Refusal{"UserInterface.commandDefinitions", 1, Ending::Raises, {1, 4, 2, 4, 1}},
       Refusal{"CommandDefinitions.itemById", 1, Ending::True, {0, 1, 0, 1, 1}},
       Refusal{"ToolbarPanel.controls", 1, Ending::Raises, {1, 3, 2, 3, 1}},
       Refusal{"UserInterface.commandDefinitions", 2, Ending::Raises, {1, 3, 2, 3, 1}},
       Refusal{"CommandDefinitions.itemById", 2, Ending::True, {0, 1, 0, 1, 1}},
       Refusal{"ToolbarPanel.controls", 2, Ending::Raises, {1, 2, 2, 2, 1}},
       Refusal{"Workspace.toolbarPanels", 2, Ending::Raises, {1, 2, 2, 2, 1}},
       Refusal{"ToolbarPanels.itemById", 2, Ending::True, {1, 0, 2, 0, 1}},
       Refusal{"UserInterface.commandDefinitions", 3, Ending::Raises, {0, 2, 0, 2, 1}},
       Refusal{"CommandDefinitions.itemById", 3, Ending::True, {0, 1, 0, 1, 1}},
       Refusal{"ToolbarPanel.controls", 3, Ending::Raises, {0, 1, 0, 1, 1}},
       Refusal{"UserInterface.commandDefinitions", 4, Ending::Raises, {0, 1, 0, 1, 1}},
       Refusal{"CommandDefinitions.itemById", 4, Ending::True, {0, 1, 0, 1, 1}},
       Refusal{"ToolbarPanel.controls", 4, Ending::Raises, {0, 0, 0, 0, 1}}});

TABLE_TEST(ToolbarStop, SkipsWhatIsMissingAndRaisesWhereACollectionIs) {
  start();
  refuse();
  expectEnding(session().stopAddIn());
}

}  // namespace
}  // namespace tests
