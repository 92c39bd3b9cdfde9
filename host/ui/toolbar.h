// Workspaces with their tabs, panels and controls.
#pragma once

#include <Core/CoreAll.h>

#include <functional>
#include <string>
#include <vector>

#include "host/runtime/object.h"
#include "host/runtime/profile.h"
#include "host/ui/command_definitions.h"

namespace headless {

class PanelObject;
class TabObject;
class WorkspaceObject;

/// A button on a panel. Dead once its definition was deleted.
class ControlObject final : public HostObject<adsk::core::CommandControl> {
 public:
  ControlObject(PanelObject& owner, const adsk::core::Ptr<DefinitionObject>& shown);

  std::string id() const override;
  size_t index() const override;
  bool isVisible() const override;
  bool isVisible(bool value) override;
  adsk::core::Ptr<adsk::core::Base> parent() const override;
  bool deleteMe() override;
  adsk::core::Ptr<adsk::core::CommandDefinition> commandDefinition() const override;
  bool isPromoted() const override;
  bool isPromoted(bool value) override;
  bool isPromotedByDefault() const override;
  bool isPromotedByDefault(bool value) override;

  /// For the host's own use.
  const std::string& controlId() const { return id_; }
  DefinitionObject& definition() const { return *definition_.get(); }
  bool visible = true;
  bool promoted = false;

 protected:
  std::string traceDetail() const override { return id_; }

 private:
  PanelObject& panel;
  adsk::core::Ptr<DefinitionObject> definition_;
  std::string id_;
  bool promotedByDefault = false;
};

/// The controls of a panel; ids are unique in it.
class ControlsObject final : public HostObject<adsk::core::ToolbarControls> {
 public:
  explicit ControlsObject(PanelObject& owner) : panel(owner) {}

  adsk::core::Ptr<adsk::core::ToolbarControl> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::ToolbarControl> itemById(const std::string& id) const override;
  adsk::core::Ptr<adsk::core::CommandControl> addCommand(
      const adsk::core::Ptr<adsk::core::CommandDefinition>& commandDefinition, const std::string& positionID,
      bool isBefore) override;

  /// For the host's own use.
  const std::vector<adsk::core::Ptr<ControlObject>>& all() const { return controls; }
  ControlObject* find(const std::string& id) const;
  void remove(ControlObject& control);
  void removeAll();

 protected:
  std::string traceDetail() const override;

 private:
  PanelObject& panel;
  std::vector<adsk::core::Ptr<ControlObject>> controls;
};

/// A panel of a tab. Deleting it takes its controls away.
class PanelObject final : public HostObject<adsk::core::ToolbarPanel> {
 public:
  PanelObject(TabObject& owner, std::string panelId, std::string panelName, DeletedPanelControls whenDeleted);
  ~PanelObject() override;

  std::string id() const override;
  std::string name() const override;
  adsk::core::Ptr<adsk::core::ToolbarControls> controls() const override;
  size_t index() const override;
  bool deleteMe() override;

  /// For the host's own use.
  const std::string& panelId() const { return id_; }
  const std::string& panelName() const { return name_; }
  ControlsObject& controlList() const { return *controls_.get(); }
  /// The panel and everything on it answer with nothing from now on.
  void markGone();

 protected:
  std::string traceDetail() const override { return id_; }

 private:
  TabObject& tab;
  std::string id_;
  std::string name_;
  DeletedPanelControls afterDeletion;
  adsk::core::Ptr<ControlsObject> controls_;
};

/// The panels of one tab or, without a tab, of all tabs of a workspace.
class PanelsObject final : public HostObject<adsk::core::ToolbarPanels> {
 public:
  PanelsObject(WorkspaceObject& owner, TabObject* ofTab) : workspace(owner), tab(ofTab) {}

  adsk::core::Ptr<adsk::core::ToolbarPanel> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::ToolbarPanel> itemById(const std::string& id) const override;
  adsk::core::Ptr<adsk::core::ToolbarPanel> add(const std::string& id, const std::string& name,
                                                const std::string& positionID, bool isBefore) override;

 protected:
  std::string traceDetail() const override;

 private:
  std::vector<PanelObject*> all() const;

  WorkspaceObject& workspace;
  TabObject* tab;
};

class TabObject final : public HostObject<adsk::core::ToolbarTab> {
 public:
  TabObject(WorkspaceObject& owner, std::string tabId, std::string tabName);
  ~TabObject() override;

  std::string id() const override;
  std::string name() const override;
  adsk::core::Ptr<adsk::core::ToolbarPanels> toolbarPanels() const override;
  size_t index() const override;
  bool isNative() const override;

  /// For the host's own use.
  const std::string& tabId() const { return id_; }
  const std::string& tabName() const { return name_; }
  WorkspaceObject& home() const { return workspace; }
  const std::vector<adsk::core::Ptr<PanelObject>>& panels() const { return panels_; }
  PanelObject& insert(const std::string& panelId, const std::string& panelName, std::size_t position);
  void remove(PanelObject& panel);
  void markGone();

 protected:
  std::string traceDetail() const override { return id_; }

 private:
  WorkspaceObject& workspace;
  std::string id_;
  std::string name_;
  std::vector<adsk::core::Ptr<PanelObject>> panels_;
  adsk::core::Ptr<PanelsObject> collection;
};

class TabsObject final : public HostObject<adsk::core::ToolbarTabs> {
 public:
  explicit TabsObject(WorkspaceObject& owner) : workspace(owner) {}
  adsk::core::Ptr<adsk::core::ToolbarTab> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::ToolbarTab> itemById(const std::string& id) const override;

 private:
  WorkspaceObject& workspace;
};

class WorkspaceObject final : public HostObject<adsk::core::Workspace> {
 public:
  WorkspaceObject(std::string workspaceId, std::string workspaceName, const Profile& hostProfile);
  ~WorkspaceObject() override;

  std::string id() const override;
  std::string name() const override;
  adsk::core::Ptr<adsk::core::ToolbarTabs> toolbarTabs() const override;
  adsk::core::Ptr<adsk::core::ToolbarPanels> toolbarPanels() const override;
  bool isActive() const override;
  bool isNative() const override;

  /// For the host's own use.
  const std::string& workspaceId() const { return id_; }
  const Profile& hostProfile() const { return profile; }
  const std::vector<adsk::core::Ptr<TabObject>>& tabs() const { return tabs_; }
  TabObject* findTab(const std::string& tabId) const;
  TabObject& addTab(const std::string& tabId, const std::string& tabName);
  /// Where panels without a tab go; made when it is missing.
  TabObject& toolsTab();
  /// False when there is no such tab.
  bool removeTab(const std::string& tabId);
  /// All panels in the order of tabs and panels.
  std::vector<PanelObject*> panels() const;
  PanelObject* findPanel(const std::string& panelId) const;
  void markGone();

 protected:
  std::string traceDetail() const override { return id_; }

 private:
  std::string id_;
  std::string name_;
  const Profile& profile;
  std::vector<adsk::core::Ptr<TabObject>> tabs_;
  adsk::core::Ptr<TabsObject> tabCollection;
  adsk::core::Ptr<PanelsObject> panelCollection;
};

class WorkspacesObject final : public HostObject<adsk::core::Workspaces> {
 public:
  adsk::core::Ptr<adsk::core::Workspace> item(size_t index) const override;
  size_t count() const override;
  adsk::core::Ptr<adsk::core::Workspace> itemById(const std::string& id) const override;

  /// For the host's own use.
  WorkspaceObject* find(const std::string& id) const;
  WorkspaceObject& add(const std::string& id, const std::string& name, const Profile& profile);
  /// False when there is no such workspace.
  bool remove(const std::string& id);
  const std::vector<adsk::core::Ptr<WorkspaceObject>>& all() const { return workspaces; }
  /// Every workspace and everything in it answer with nothing from now on.
  void markGone();

 private:
  std::vector<adsk::core::Ptr<WorkspaceObject>> workspaces;
};

}  // namespace headless
