// Registration of the two buttons, and its undoing.
#include "shell/toolbar.h"

#include <string>

#include "shell/command_ids.h"
#include "shell/event_handlers.h"
#include "shell/globals.h"
#include "shell/host_objects.h"
#include "shell/text.h"

namespace tintora {

namespace {

constexpr const char* workspaceId = "FusionSolidEnvironment";
constexpr const char* solidTabId = "SolidTab";
constexpr const char* toolsTabId = "ToolsTab";
constexpr const char* solidPanelId = "id_QV_Tools_Tnt";
constexpr const char* toolsPanelId = "id_QV_Tools_TntOnTools";
constexpr const char* panelName = "QV Tools";

constexpr const wchar_t* commandName = L"Tintora";
constexpr const wchar_t* commandTooltip = L"Command assignings Appearance/Material to selected COMPONENT, BODY or FACE";
constexpr const char* commandIcons = "resources/Button";
constexpr const wchar_t* helpName = L"Open Help";
constexpr const wchar_t* helpTooltip = L"Open User Guide";
constexpr const char* helpIcons = "resources/Help";

// With an empty position reference, panels and controls go to the end whatever the placement flag says.
constexpr const char* noReference = "";
constexpr bool placementFlag = true;

/// The panel is shared by the tools of one family: another of them may have made it already.
Ptr<core::ToolbarPanel> findOrAddPanel(const Ptr<core::ToolbarTab>& tab, const char* panelId) {
  const Ptr<core::ToolbarPanels> panels = tab->toolbarPanels();
  Ptr<core::ToolbarPanel> panel = panels->itemById(panelId);
  if (!panel) {
    panel = panels->add(panelId, panelName, noReference, placementFlag);
  }
  return panel;
}

/// Adds the definition to the panel, with its button shown on the panel itself.
bool addPromotedControl(const Ptr<core::ToolbarPanel>& panel, const Ptr<core::CommandDefinition>& definition) {
  const Ptr<core::CommandControl> control = panel->controls()->addCommand(definition, noReference, placementFlag);
  if (!control) {
    return false;
  }
  control->isPromoted(true);
  return true;
}

bool attachToCreated(const Ptr<core::CommandDefinition>& onSolid, const Ptr<core::CommandDefinition>& onTools,
                     core::CommandCreatedEventHandler& handler) {
  const Ptr<core::CommandCreatedEvent> createdOnSolid = onSolid->commandCreated();
  if (!createdOnSolid) {
    return false;
  }
  const Ptr<core::CommandCreatedEvent> createdOnTools = onTools->commandCreated();
  if (!createdOnTools) {
    return false;
  }
  return createdOnSolid->add(&handler) && createdOnTools->add(&handler);
}

bool attachToTerminated() {
  const Ptr<core::ApplicationCommandEvent> terminated = uiHandle->commandTerminated();
  if (!terminated) {
    return false;
  }
  terminated->add(&commandEndingHandler);
  return true;
}

/// Deletes a button's definition and, if its panel was found, its control, whichever is still there.
void removeButton(const Ptr<core::ToolbarPanel>& panel, const char* id) {
  const Ptr<core::CommandDefinition> definition = uiHandle->commandDefinitions()->itemById(id);
  if (definition) {
    definition->deleteMe();
  }
  if (!panel) {
    return;
  }
  const Ptr<core::CommandControl> control = hostCast<core::CommandControl>(panel->controls()->itemById(id));
  if (control) {
    control->deleteMe();
  }
}

/// The panel goes first, as a whole, whoever else placed controls in it.
void removePanelAndButtons(const Ptr<core::Workspace>& workspace, const char* panelId, const char* mainId,
                           const char* helpId) {
  const Ptr<core::ToolbarPanel> panel = workspace->toolbarPanels()->itemById(panelId);
  if (panel) {
    panel->deleteMe();
  }
  removeButton(panel, mainId);
  removeButton(panel, helpId);
}

struct Buttons {
  Ptr<core::CommandDefinition> mainOnSolid;
  Ptr<core::CommandDefinition> mainOnTools;
  Ptr<core::CommandDefinition> helpOnSolid;
  Ptr<core::CommandDefinition> helpOnTools;
};

/// One after the other, up to the first that the host refuses.
bool addButtons(Buttons& buttons) {
  const Ptr<core::CommandDefinitions> definitions = uiHandle->commandDefinitions();
  const auto add = [&definitions](Ptr<core::CommandDefinition>& button, const char* id, const wchar_t* name,
                                  const wchar_t* tooltip, const char* icons) {
    button = definitions->addButtonDefinition(id, toUtf8(name), toUtf8(tooltip), icons);
    return static_cast<bool>(button);
  };
  return add(buttons.mainOnSolid, mainCommandId, commandName, commandTooltip, commandIcons) &&
         add(buttons.mainOnTools, mainCommandOnToolsId, commandName, commandTooltip, commandIcons) &&
         add(buttons.helpOnSolid, helpCommandId, helpName, helpTooltip, helpIcons) &&
         add(buttons.helpOnTools, helpCommandOnToolsId, helpName, helpTooltip, helpIcons);
}

}  // namespace

bool setupUserInterface() {
  const Ptr<core::Workspace> workspace = uiHandle->workspaces()->itemById(workspaceId);
  if (!workspace) {
    return false;
  }
  const Ptr<core::ToolbarTab> solidTab = workspace->toolbarTabs()->itemById(solidTabId);
  if (!solidTab) {
    return false;
  }
  const Ptr<core::ToolbarTab> toolsTab = workspace->toolbarTabs()->itemById(toolsTabId);
  if (!toolsTab) {
    return false;
  }
  const Ptr<core::ToolbarPanel> solidPanel = findOrAddPanel(solidTab, solidPanelId);
  const Ptr<core::ToolbarPanel> toolsPanel = findOrAddPanel(toolsTab, toolsPanelId);

  Buttons buttons;
  return addButtons(buttons) && addPromotedControl(solidPanel, buttons.mainOnSolid) &&
         addPromotedControl(toolsPanel, buttons.mainOnTools) && addPromotedControl(solidPanel, buttons.helpOnSolid) &&
         addPromotedControl(toolsPanel, buttons.helpOnTools) &&
         attachToCreated(buttons.mainOnSolid, buttons.mainOnTools, cmdCreatedHandler) &&
         attachToCreated(buttons.helpOnSolid, buttons.helpOnTools, cmdHelpCreatedHandler) && attachToTerminated();
}

bool removeUserInterface() {
  const Ptr<core::Workspace> workspace = uiHandle->workspaces()->itemById(workspaceId);
  if (!workspace) {
    return false;
  }
  removePanelAndButtons(workspace, solidPanelId, mainCommandId, helpCommandId);
  removePanelAndButtons(workspace, toolsPanelId, mainCommandOnToolsId, helpCommandOnToolsId);
  return true;
}

}  // namespace tintora
