#include "host/ui/toolbar.h"

#include <algorithm>
#include <utility>

namespace headless {

using adsk::core::Ptr;

namespace {

template <class Object, class Test>
Object* findIn(const std::vector<Ptr<Object>>& objects, Test test) {
  const auto found = std::find_if(objects.begin(), objects.end(), [&](const Ptr<Object>& o) { return test(*o.get()); });
  return found == objects.end() ? nullptr : found->get();
}

template <class Object>
void eraseFrom(std::vector<Ptr<Object>>& objects, const Object* gone) {
  objects.erase(std::remove_if(objects.begin(), objects.end(), [&](const auto& each) { return each.get() == gone; }),
                objects.end());
}

template <class Interface, class Object>
Ptr<Interface> handleOf(Object* object) {
  return Ptr<Interface>(Ptr<Object>(object, false));
}

template <class Interface, class Object>
Ptr<Interface> handleAt(const std::vector<Ptr<Object>>& objects, size_t index) {
  return index < objects.size() ? Ptr<Interface>(objects[index]) : nullptr;
}

// Where a new member goes: before or after the one that is named, else to the end.
std::size_t positionFor(std::size_t named, bool isNamed, bool isBefore, std::size_t end) {
  return isNamed ? named + (isBefore ? 0 : 1) : end;
}

}  // namespace

ControlObject::ControlObject(PanelObject& owner, const Ptr<DefinitionObject>& shown)
    : panel(owner), definition_(shown), id_(definition_->texts().id) {}

std::string ControlObject::id() const {
  return call("id", [this] { return id_; });
}

size_t ControlObject::index() const {
  return call("index", [this] {
    const auto& controls = panel.controlList().all();
    return static_cast<size_t>(
        std::find_if(controls.begin(), controls.end(), [this](const auto& each) { return each.get() == this; }) -
        controls.begin());
  });
}

bool ControlObject::isVisible() const {
  return call("isVisible", [this] { return visible; });
}

bool ControlObject::isVisible(bool value) {
  return call(
      "isVisible=",
      [&] {
        visible = value;
        return true;
      },
      value);
}

Ptr<adsk::core::Base> ControlObject::parent() const {
  return call("parent", [this] { return handleOf<adsk::core::Base>(&panel.controlList()); });
}

bool ControlObject::deleteMe() {
  return call("deleteMe", [this] {
    panel.controlList().remove(*this);
    return true;
  });
}

Ptr<adsk::core::CommandDefinition> ControlObject::commandDefinition() const {
  return call("commandDefinition", [this]() -> Ptr<adsk::core::CommandDefinition> {
    return definition_->isAlive() ? Ptr<adsk::core::CommandDefinition>(definition_) : nullptr;
  });
}

bool ControlObject::isPromoted() const {
  return call("isPromoted", [this] { return promoted; });
}

bool ControlObject::isPromoted(bool value) {
  return call(
      "isPromoted=",
      [&] {
        promoted = value;
        return true;
      },
      value);
}

bool ControlObject::isPromotedByDefault() const {
  return call("isPromotedByDefault", [this] { return promotedByDefault; });
}

bool ControlObject::isPromotedByDefault(bool value) {
  return call(
      "isPromotedByDefault=",
      [&] {
        promotedByDefault = value;
        return true;
      },
      value);
}

Ptr<adsk::core::ToolbarControl> ControlsObject::item(size_t index) const {
  return call(
      "item", [&] { return handleAt<adsk::core::ToolbarControl>(controls, index); }, index);
}

size_t ControlsObject::count() const {
  return call("count", [this] { return controls.size(); });
}

Ptr<adsk::core::ToolbarControl> ControlsObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return handleOf<adsk::core::ToolbarControl>(find(id)); }, id);
}

Ptr<adsk::core::CommandControl> ControlsObject::addCommand(const Ptr<adsk::core::CommandDefinition>& commandDefinition,
                                                           const std::string& positionID, bool isBefore) {
  return call(
      "addCommand",
      [&]() -> Ptr<adsk::core::CommandControl> {
        auto* definition = objectBehind<DefinitionObject>(commandDefinition);
        // A panel that is gone keeps an empty collection that nothing can be added to.
        if (definition == nullptr || !definition->isAlive() || !panel.isAlive() ||
            find(definition->texts().id) != nullptr) {
          return nullptr;
        }
        const auto named = std::find_if(controls.begin(), controls.end(),
                                        [&](const auto& each) { return each->controlId() == positionID; });
        const auto position = positionFor(static_cast<std::size_t>(named - controls.begin()), named != controls.end(),
                                          isBefore, controls.size());
        const auto added = makeObject<ControlObject>(panel, Ptr<DefinitionObject>(definition, false));
        controls.insert(controls.begin() + static_cast<std::ptrdiff_t>(position), added);
        return added;
      },
      commandDefinition, positionID, isBefore);
}

ControlObject* ControlsObject::find(const std::string& id) const {
  return findIn(controls, [&](const ControlObject& each) { return each.controlId() == id; });
}

void ControlsObject::remove(ControlObject& control) {
  control.markDeleted();
  eraseFrom(controls, &control);
}

void ControlsObject::removeAll() {
  for (const Ptr<ControlObject>& control : controls) {
    control->markDeleted();
  }
  controls.clear();
}

std::string ControlsObject::traceDetail() const {
  return isAlive() ? panel.panelId() : std::string();
}

PanelObject::PanelObject(TabObject& owner, std::string panelId, std::string panelName, DeletedPanelControls whenDeleted)
    : tab(owner),
      id_(std::move(panelId)),
      name_(std::move(panelName)),
      afterDeletion(whenDeleted),
      controls_(makeObject<ControlsObject>(*this)) {}

PanelObject::~PanelObject() {
  markGone();
}

void PanelObject::markGone() {
  controls_->removeAll();
  controls_->markDeleted();
  markDeleted();
}

std::string PanelObject::id() const {
  return call("id", [this] { return id_; });
}

std::string PanelObject::name() const {
  return call("name", [this] { return name_; });
}

Ptr<adsk::core::ToolbarControls> PanelObject::controls() const {
  const bool answersAfterDeletion = afterDeletion == DeletedPanelControls::EmptyCollection && controls_->isAlive();
  return CallGate::pass(classType(), this, isAlive() || answersAfterDeletion, "controls",
                        [this] { return Ptr<adsk::core::ToolbarControls>(controls_); });
}

size_t PanelObject::index() const {
  return call("index", [this] {
    const auto panels = tab.home().panels();
    return static_cast<size_t>(std::find(panels.begin(), panels.end(), this) - panels.begin());
  });
}

bool PanelObject::deleteMe() {
  return call("deleteMe", [this] {
    controls_->removeAll();
    markDeleted();
    tab.remove(*this);
    return true;
  });
}

std::vector<PanelObject*> PanelsObject::all() const {
  if (tab == nullptr) {
    return workspace.panels();
  }
  std::vector<PanelObject*> panels;
  for (const Ptr<PanelObject>& panel : tab->panels()) {
    panels.push_back(panel.get());
  }
  return panels;
}

Ptr<adsk::core::ToolbarPanel> PanelsObject::item(size_t index) const {
  return call(
      "item",
      [&]() -> Ptr<adsk::core::ToolbarPanel> {
        const auto panels = all();
        return index < panels.size() ? handleOf<adsk::core::ToolbarPanel>(panels[index]) : nullptr;
      },
      index);
}

size_t PanelsObject::count() const {
  return call("count", [this] { return all().size(); });
}

Ptr<adsk::core::ToolbarPanel> PanelsObject::itemById(const std::string& id) const {
  return call(
      "itemById",
      [&]() -> Ptr<adsk::core::ToolbarPanel> {
        const auto panels = all();
        const auto found =
            std::find_if(panels.begin(), panels.end(), [&](const PanelObject* each) { return each->panelId() == id; });
        return found == panels.end() ? nullptr : handleOf<adsk::core::ToolbarPanel>(*found);
      },
      id);
}

Ptr<adsk::core::ToolbarPanel> PanelsObject::add(const std::string& id, const std::string& name,
                                                const std::string& positionID, bool isBefore) {
  return call(
      "add",
      [&]() -> Ptr<adsk::core::ToolbarPanel> {
        if (id.empty() || workspace.findPanel(id) != nullptr) {
          return nullptr;
        }
        TabObject& home = tab != nullptr ? *tab : workspace.toolsTab();
        const auto& panels = home.panels();
        const auto named =
            std::find_if(panels.begin(), panels.end(), [&](const auto& each) { return each->panelId() == positionID; });
        const auto position = positionFor(static_cast<std::size_t>(named - panels.begin()), named != panels.end(),
                                          isBefore, panels.size());
        return handleOf<adsk::core::ToolbarPanel>(&home.insert(id, name, position));
      },
      id, name, positionID, isBefore);
}

std::string PanelsObject::traceDetail() const {
  if (!isAlive()) {
    return {};
  }
  return tab != nullptr ? tab->tabId() : workspace.workspaceId();
}

TabObject::TabObject(WorkspaceObject& owner, std::string tabId, std::string tabName)
    : workspace(owner),
      id_(std::move(tabId)),
      name_(std::move(tabName)),
      collection(makeObject<PanelsObject>(owner, this)) {}

TabObject::~TabObject() {
  markGone();
}

void TabObject::markGone() {
  for (const Ptr<PanelObject>& panel : panels_) {
    panel->markGone();
  }
  collection->markDeleted();
  markDeleted();
}

std::string TabObject::id() const {
  return call("id", [this] { return id_; });
}

std::string TabObject::name() const {
  return call("name", [this] { return name_; });
}

Ptr<adsk::core::ToolbarPanels> TabObject::toolbarPanels() const {
  return call("toolbarPanels", [this] { return Ptr<adsk::core::ToolbarPanels>(collection); });
}

size_t TabObject::index() const {
  return call("index", [this] {
    const auto& tabs = workspace.tabs();
    return static_cast<size_t>(
        std::find_if(tabs.begin(), tabs.end(), [this](const auto& each) { return each.get() == this; }) - tabs.begin());
  });
}

bool TabObject::isNative() const {
  return call("isNative", [] { return true; });
}

PanelObject& TabObject::insert(const std::string& panelId, const std::string& panelName, std::size_t position) {
  const auto added = makeObject<PanelObject>(*this, panelId, panelName, workspace.hostProfile().deletedPanelControls);
  panels_.insert(panels_.begin() + static_cast<std::ptrdiff_t>(position), added);
  return *added.get();
}

void TabObject::remove(PanelObject& panel) {
  eraseFrom(panels_, &panel);
}

Ptr<adsk::core::ToolbarTab> TabsObject::item(size_t index) const {
  return call(
      "item", [&] { return handleAt<adsk::core::ToolbarTab>(workspace.tabs(), index); }, index);
}

size_t TabsObject::count() const {
  return call("count", [this] { return workspace.tabs().size(); });
}

Ptr<adsk::core::ToolbarTab> TabsObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return handleOf<adsk::core::ToolbarTab>(workspace.findTab(id)); }, id);
}

WorkspaceObject::WorkspaceObject(std::string workspaceId, std::string workspaceName, const Profile& hostProfile)
    : id_(std::move(workspaceId)),
      name_(std::move(workspaceName)),
      profile(hostProfile),
      tabCollection(makeObject<TabsObject>(*this)),
      panelCollection(makeObject<PanelsObject>(*this, nullptr)) {}

WorkspaceObject::~WorkspaceObject() {
  markGone();
}

void WorkspaceObject::markGone() {
  for (const Ptr<TabObject>& tab : tabs_) {
    tab->markGone();
  }
  tabCollection->markDeleted();
  panelCollection->markDeleted();
  markDeleted();
}

std::string WorkspaceObject::id() const {
  return call("id", [this] { return id_; });
}

std::string WorkspaceObject::name() const {
  return call("name", [this] { return name_; });
}

Ptr<adsk::core::ToolbarTabs> WorkspaceObject::toolbarTabs() const {
  return call("toolbarTabs", [this] { return Ptr<adsk::core::ToolbarTabs>(tabCollection); });
}

Ptr<adsk::core::ToolbarPanels> WorkspaceObject::toolbarPanels() const {
  return call("toolbarPanels", [this] { return Ptr<adsk::core::ToolbarPanels>(panelCollection); });
}

bool WorkspaceObject::isActive() const {
  return call("isActive", [] { return true; });
}

bool WorkspaceObject::isNative() const {
  return call("isNative", [] { return true; });
}

TabObject* WorkspaceObject::findTab(const std::string& tabId) const {
  return findIn(tabs_, [&](const TabObject& each) { return each.tabId() == tabId; });
}

TabObject& WorkspaceObject::addTab(const std::string& tabId, const std::string& tabName) {
  tabs_.push_back(makeObject<TabObject>(*this, tabId, tabName));
  return *tabs_.back().get();
}

TabObject& WorkspaceObject::toolsTab() {
  TabObject* found = findTab("ToolsTab");
  return found != nullptr ? *found : addTab("ToolsTab", "UTILITIES");
}

bool WorkspaceObject::removeTab(const std::string& tabId) {
  TabObject* gone = findTab(tabId);
  if (gone == nullptr) {
    return false;
  }
  gone->markGone();
  eraseFrom(tabs_, gone);
  return true;
}

std::vector<PanelObject*> WorkspaceObject::panels() const {
  std::vector<PanelObject*> all;
  for (const Ptr<TabObject>& tab : tabs_) {
    for (const Ptr<PanelObject>& panel : tab->panels()) {
      all.push_back(panel.get());
    }
  }
  return all;
}

PanelObject* WorkspaceObject::findPanel(const std::string& panelId) const {
  for (PanelObject* panel : panels()) {
    if (panel->panelId() == panelId) {
      return panel;
    }
  }
  return nullptr;
}

Ptr<adsk::core::Workspace> WorkspacesObject::item(size_t index) const {
  return call(
      "item", [&] { return handleAt<adsk::core::Workspace>(workspaces, index); }, index);
}

size_t WorkspacesObject::count() const {
  return call("count", [this] { return workspaces.size(); });
}

Ptr<adsk::core::Workspace> WorkspacesObject::itemById(const std::string& id) const {
  return call(
      "itemById", [&] { return handleOf<adsk::core::Workspace>(find(id)); }, id);
}

WorkspaceObject* WorkspacesObject::find(const std::string& id) const {
  return findIn(workspaces, [&](const WorkspaceObject& each) { return each.workspaceId() == id; });
}

WorkspaceObject& WorkspacesObject::add(const std::string& id, const std::string& name, const Profile& profile) {
  workspaces.push_back(makeObject<WorkspaceObject>(id, name, profile));
  return *workspaces.back().get();
}

bool WorkspacesObject::remove(const std::string& id) {
  WorkspaceObject* gone = find(id);
  if (gone == nullptr) {
    return false;
  }
  gone->markGone();
  eraseFrom(workspaces, gone);
  return true;
}

void WorkspacesObject::markGone() {
  for (const Ptr<WorkspaceObject>& workspace : workspaces) {
    workspace->markGone();
  }
  markDeleted();
}

}  // namespace headless
