#include "tests/shell/toolbar_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::ButtonView;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct ExpectedButton {
  const char* tab;
  const char* panelId;
  const char* id;
  const char* name;
  const char* tooltip;
  const char* icons;
};

constexpr const char* mainTooltip = "Command assignings Appearance/Material to selected COMPONENT, BODY or FACE";

const std::vector<ExpectedButton> expectedButtons = {
    {"SOLID", solidPanel, "idAssetsMatMng", "Tintora", mainTooltip, "resources/Button"},
    {"SOLID", solidPanel, "idOpenHelp", "Open Help", "Open User Guide", "resources/Help"},
    {"UTILITIES", toolsPanel, "idAssetsMatMngOnTools", "Tintora", mainTooltip, "resources/Button"},
    {"UTILITIES", toolsPanel, "idOpenHelpOnTools", "Open Help", "Open User Guide", "resources/Help"}};

class ToolbarButtons : public AddInTest, public WithRow<std::size_t> {};

TABLE(
    All, ToolbarButtons, [](const auto& row) { return std::string(expectedButtons[row].id); }, numbersBelow(4));

TABLE_TEST(ToolbarButtons, ShowNameTooltipAndIconOnTheirPanel) {
  start();
  const std::vector<ButtonView> buttons = session().toolbar();
  ASSERT_EQ(buttons.size(), expectedButtons.size());
  const ButtonView& button = buttons[row()];
  const ExpectedButton& expected = expectedButtons[row()];
  EXPECT_EQ(button.tab, expected.tab);
  EXPECT_EQ(button.panelId, expected.panelId);
  EXPECT_EQ(button.panel, "QV Tools");
  EXPECT_EQ(button.id, expected.id);
  EXPECT_EQ(button.name, expected.name);
  EXPECT_EQ(button.tooltip, expected.tooltip);
  EXPECT_EQ(button.icon, expected.icons);
  EXPECT_TRUE(button.isPromoted);
  EXPECT_FALSE(button.isDead);
}

TEST_F(Toolbar, IsRegisteredInThisOrder) {
  load();
  host().gate().startTrace();
  ASSERT_TRUE(session().runAddIn());
  const std::string mainTexts = std::string(R"("Tintora", ")") + mainTooltip + R"(", "resources/Button")";
  const std::vector<std::string> expected = {
      "Application.get()",
      "Application.userInterface()",
      "UserInterface.workspaces()",
      R"(Workspaces.itemById("FusionSolidEnvironment"))",
      "Workspace(FusionSolidEnvironment).toolbarTabs()",
      R"(ToolbarTabs.itemById("SolidTab"))",
      "Workspace(FusionSolidEnvironment).toolbarTabs()",
      R"(ToolbarTabs.itemById("ToolsTab"))",
      "ToolbarTab(SolidTab).toolbarPanels()",
      R"(ToolbarPanels(SolidTab).itemById("id_QV_Tools_Tnt"))",
      R"(ToolbarPanels(SolidTab).add("id_QV_Tools_Tnt", "QV Tools", "", true))",
      "ToolbarTab(ToolsTab).toolbarPanels()",
      R"(ToolbarPanels(ToolsTab).itemById("id_QV_Tools_TntOnTools"))",
      R"(ToolbarPanels(ToolsTab).add("id_QV_Tools_TntOnTools", "QV Tools", "", true))",
      "UserInterface.commandDefinitions()",
      R"(CommandDefinitions.addButtonDefinition("idAssetsMatMng", )" + mainTexts + ")",
      R"(CommandDefinitions.addButtonDefinition("idAssetsMatMngOnTools", )" + mainTexts + ")",
      R"(CommandDefinitions.addButtonDefinition("idOpenHelp", "Open Help", "Open User Guide", "resources/Help"))",
      R"(CommandDefinitions.addButtonDefinition("idOpenHelpOnTools", "Open Help", "Open User Guide", "resources/Help"))",
      "ToolbarPanel(id_QV_Tools_Tnt).controls()",
      R"(ToolbarControls(id_QV_Tools_Tnt).addCommand(CommandDefinition(idAssetsMatMng), "", true))",
      "CommandControl(idAssetsMatMng).isPromoted=(true)",
      "ToolbarPanel(id_QV_Tools_TntOnTools).controls()",
      R"(ToolbarControls(id_QV_Tools_TntOnTools).addCommand(CommandDefinition(idAssetsMatMngOnTools), "", true))",
      "CommandControl(idAssetsMatMngOnTools).isPromoted=(true)",
      "ToolbarPanel(id_QV_Tools_Tnt).controls()",
      R"(ToolbarControls(id_QV_Tools_Tnt).addCommand(CommandDefinition(idOpenHelp), "", true))",
      "CommandControl(idOpenHelp).isPromoted=(true)",
      "ToolbarPanel(id_QV_Tools_TntOnTools).controls()",
      R"(ToolbarControls(id_QV_Tools_TntOnTools).addCommand(CommandDefinition(idOpenHelpOnTools), "", true))",
      "CommandControl(idOpenHelpOnTools).isPromoted=(true)",
      "CommandDefinition(idAssetsMatMng).commandCreated()",
      "CommandDefinition(idAssetsMatMngOnTools).commandCreated()",
      "CommandCreatedEvent(commandCreated).add(handler)",
      "CommandCreatedEvent(commandCreated).add(handler)",
      "CommandDefinition(idOpenHelp).commandCreated()",
      "CommandDefinition(idOpenHelpOnTools).commandCreated()",
      "CommandCreatedEvent(commandCreated).add(handler)",
      "CommandCreatedEvent(commandCreated).add(handler)",
      "UserInterface.commandTerminated()",
      "ApplicationCommandEvent(commandTerminated).add(handler)"};
  EXPECT_THAT(callsIn(host().gate()), ElementsAreArray(expected));
  EXPECT_EQ(registered(), everything);
}

TEST_F(Toolbar, PanelOfAnotherToolIsUsedAsItStands) {
  load();
  workspace().findTab("SolidTab")->insert(solidPanel, "Made by another tool", 0);
  workspace().findTab("ToolsTab")->insert(toolsPanel, "Made by another tool", 0);
  host().gate().startTrace();
  ASSERT_TRUE(session().runAddIn());
  EXPECT_THAT(callsWith(host().gate(), {"ToolbarPanels(SolidTab).add(", "ToolbarPanels(ToolsTab).add("}), IsEmpty());
  EXPECT_EQ(registered(), everything);
  EXPECT_THAT(buttonsOn(solidPanel), ElementsAre("idAssetsMatMng", "idOpenHelp"));
  EXPECT_EQ(session().toolbar().front().panel, "Made by another tool");
}

TEST_F(Toolbar, PanelIsMadeOnlyOnTheTabThatLacksIt) {
  load();
  workspace().findTab("ToolsTab")->insert(toolsPanel, "QV Tools", 0);
  host().gate().startTrace();
  ASSERT_TRUE(session().runAddIn());
  EXPECT_THAT(callsWith(host().gate(), {".add(\"id_QV"}), ElementsAre(StartsWith("ToolbarPanels(SolidTab).add(")));
}

TEST_F(Toolbar, NothingIsMadeWithoutTheWorkspace) {
  load();
  ASSERT_TRUE(host().ui().workspaceList().remove(workspaceId));
  EXPECT_FALSE(session().runAddIn());
  EXPECT_EQ(registered(), Registered());
}

class ToolbarTabs : public Toolbar, public WithRow<std::string> {};

TABLE(Each, ToolbarTabs, byText, {"SolidTab", "ToolsTab"});

TABLE_TEST(ToolbarTabs, AreBothNeededBeforeAnythingIsMade) {
  load();
  ASSERT_TRUE(workspace().removeTab(row()));
  EXPECT_FALSE(session().runAddIn());
  EXPECT_EQ(registered(), Registered());
}

class ToolbarStart : public RefusedCall {};

TABLE(Refused, ToolbarStart, nameOf,
      {Refusal{"Application.get", 1, Ending::False, {}},
       Refusal{"Application.userInterface", 1, Ending::False, {}},
       Refusal{"UserInterface.workspaces", 1, Ending::Raises, {}},
       Refusal{"Workspaces.itemById", 1, Ending::False, {}},
       Refusal{"Workspace.toolbarTabs", 1, Ending::Raises, {}},
       Refusal{"ToolbarTabs.itemById", 1, Ending::False, {}},
       Refusal{"Workspace.toolbarTabs", 2, Ending::Raises, {}},
       Refusal{"ToolbarTabs.itemById", 2, Ending::False, {}},
       Refusal{"ToolbarTab.toolbarPanels", 1, Ending::Raises, {}},
       Refusal{"ToolbarPanels.add", 1, Ending::Raises, {1, 4}},
       Refusal{"ToolbarTab.toolbarPanels", 2, Ending::Raises, {1}},
       Refusal{"ToolbarPanels.add", 2, Ending::Raises, {1, 4, 1}},
       Refusal{"UserInterface.commandDefinitions", 1, Ending::Raises, {2}},
       Refusal{"CommandDefinitions.addButtonDefinition", 1, Ending::False, {2, 0}},
       Refusal{"CommandDefinitions.addButtonDefinition", 2, Ending::False, {2, 1}},
       Refusal{"CommandDefinitions.addButtonDefinition", 3, Ending::False, {2, 2}},
       Refusal{"CommandDefinitions.addButtonDefinition", 4, Ending::False, {2, 3}},
       Refusal{"ToolbarPanel.controls", 1, Ending::Raises, {2, 4, 0}},
       Refusal{"ToolbarPanel.controls", 2, Ending::Raises, {2, 4, 1}},
       Refusal{"ToolbarPanel.controls", 3, Ending::Raises, {2, 4, 2}},
       Refusal{"ToolbarPanel.controls", 4, Ending::Raises, {2, 4, 3}},
       Refusal{"ToolbarControls.addCommand", 1, Ending::False, {2, 4, 0}},
       Refusal{"ToolbarControls.addCommand", 2, Ending::False, {2, 4, 1}},
       Refusal{"ToolbarControls.addCommand", 3, Ending::False, {2, 4, 2}},
       Refusal{"ToolbarControls.addCommand", 4, Ending::False, {2, 4, 3}},
       Refusal{"CommandControl.isPromoted=", 1, Ending::True, everything},
       Refusal{"CommandDefinition.commandCreated", 1, Ending::False, {2, 4, 4, 0}},
       Refusal{"CommandDefinition.commandCreated", 2, Ending::False, {2, 4, 4, 0}},
       Refusal{"CommandCreatedEvent.add", 1, Ending::False, {2, 4, 4, 0}},
       Refusal{"CommandCreatedEvent.add", 2, Ending::False, {2, 4, 4, 1}},
       Refusal{"CommandDefinition.commandCreated", 3, Ending::False, {2, 4, 4, 2}},
       Refusal{"CommandDefinition.commandCreated", 4, Ending::False, {2, 4, 4, 2}},
       Refusal{"CommandCreatedEvent.add", 3, Ending::False, {2, 4, 4, 2}},
       Refusal{"CommandCreatedEvent.add", 4, Ending::False, {2, 4, 4, 3}},
       Refusal{"UserInterface.commandTerminated", 1, Ending::False, {2, 4, 4, 4, 0}},
       Refusal{"ApplicationCommandEvent.add", 1, Ending::True, {2, 4, 4, 4, 0}}});

TABLE_TEST(ToolbarStart, EndsWhereTheHostRefusesAndStopRemovesWhatIsThere) {
  load();
  refuse();
  expectEnding(session().runAddIn());
  EXPECT_TRUE(session().stopAddIn());
  EXPECT_EQ(registered(), (Registered{0, 0, 0, 0, row().left.terminatedHandlers}));
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

}  // namespace
}  // namespace tests
