#include "host/ui/toolbar.h"

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;

class HostToolbar : public HostTest {
 protected:
  Ptr<ToolbarPanels> panelsOf(const std::string& tab) const {
    return workspace()->toolbarTabs()->itemById(tab)->toolbarPanels();
  }
  Ptr<CommandDefinition> define(const std::string& id) const {
    return ui()->commandDefinitions()->addButtonDefinition(id, id + " name", id + " tip", id + " icon");
  }
  template <class Collection>
  static Log idsIn(const Ptr<Collection>& collection) {
    Log ids;
    for (const auto& each : collection) {
      ids.push_back(each->id());
    }
    return ids;
  }
  Log buttons() {
    Log ids;
    for (const headless::ButtonView& each : session().toolbar()) {
      ids.push_back(each.tab + "/" + each.panelId + "/" + each.id);
    }
    return ids;
  }
};

TEST_F(HostToolbar, HasTheDocumentedWorkspaceAndTabs) {
  EXPECT_EQ(idsIn(ui()->workspaces()), Log({"FusionSolidEnvironment"}));
  EXPECT_TRUE(workspace()->isActive() && workspace()->isNative());
  EXPECT_EQ(idsIn(workspace()->toolbarTabs()), Log({"SolidTab", "ToolsTab"}));
  const auto tab = workspace()->toolbarTabs()->itemById("ToolsTab");
  EXPECT_EQ(tab->index(), 1U);
  EXPECT_TRUE(tab->isNative());
  EXPECT_EQ(tab->name(), "UTILITIES");
  EXPECT_FALSE(ui()->workspaces()->itemById("x") || ui()->workspaces()->item(1));
  EXPECT_FALSE(workspace()->toolbarTabs()->itemById("x") || workspace()->toolbarTabs()->item(2));
}

TEST_F(HostToolbar, ShowsAPanelOfATabInTheWorkspaceToo) {
  const auto made = panelsOf("SolidTab")->add("panel", "PANEL");
  EXPECT_EQ(made->id() + made->name(), "panelPANEL");
  EXPECT_EQ(panelsOf("SolidTab")->itemById("panel"), made);
  EXPECT_EQ(workspace()->toolbarPanels()->itemById("panel"), made);
  EXPECT_FALSE(panelsOf("ToolsTab")->itemById("panel"));
}

TEST_F(HostToolbar, CountsPanelsOverAllTabs) {
  panelsOf("ToolsTab")->add("tools", "");
  panelsOf("SolidTab")->add("solid", "");
  EXPECT_EQ(idsIn(workspace()->toolbarPanels()), Log({"solid", "tools"}));
  EXPECT_EQ(workspace()->toolbarPanels()->itemById("tools")->index(), 1U);
  EXPECT_FALSE(workspace()->toolbarPanels()->item(2));
}

TEST_F(HostToolbar, HasUniquePanelIdsInAllTabs) {
  const auto made = panelsOf("SolidTab")->add("panel", "PANEL");
  EXPECT_FALSE(panelsOf("SolidTab")->add("panel", "OTHER"));
  EXPECT_FALSE(panelsOf("ToolsTab")->add("panel", "OTHER"));
  EXPECT_FALSE(panelsOf("SolidTab")->add("", "OTHER"));
  EXPECT_EQ(made->name(), "PANEL");
}

TEST_F(HostToolbar, PutsPanelsBeforeOrAfterAnother) {
  const auto panels = panelsOf("SolidTab");
  panels->add("b", "");
  panels->add("a", "", "b");
  panels->add("d", "", "b", false);
  panels->add("c", "", "d", true);
  panels->add("e", "", "", true);
  panels->add("f", "", "unknown", true);
  EXPECT_EQ(idsIn(panels), Log({"a", "b", "c", "d", "e", "f"}));
}

TEST_F(HostToolbar, PutsPanelsWithoutATabIntoTheToolsTab) {
  workspace()->toolbarPanels()->add("panel", "");
  EXPECT_EQ(idsIn(panelsOf("ToolsTab")), Log({"panel"}));
}

TEST_F(HostToolbar, MakesTheToolsTabWhenItIsMissing) {
  EXPECT_TRUE(host().ui().workspaceList().find("FusionSolidEnvironment")->removeTab("ToolsTab"));
  EXPECT_EQ(workspace()->toolbarTabs()->count(), 1U);
  workspace()->toolbarPanels()->add("panel", "");
  EXPECT_EQ(idsIn(panelsOf("ToolsTab")), Log({"panel"}));
}

TEST_F(HostToolbar, GivesAControlTheIdOfItsDefinition) {
  const auto definition = define("id");
  const auto control = panel()->controls()->addCommand(definition);
  EXPECT_EQ(control->id(), "id");
  EXPECT_EQ(control->commandDefinition(), definition);
  EXPECT_EQ(panel()->controls()->itemById("id"), control);
  EXPECT_EQ(control->parent(), panel()->controls());
  EXPECT_FALSE(panel()->controls()->itemById("other"));
}

TEST_F(HostToolbar, HasUniqueControlIdsInAPanelOnly) {
  const auto definition = define("id");
  EXPECT_TRUE(panel()->controls()->addCommand(definition));
  EXPECT_FALSE(panel()->controls()->addCommand(definition));
  EXPECT_TRUE(panelsOf("ToolsTab")->add("other", "")->controls()->addCommand(definition));
  EXPECT_EQ(panel()->controls()->count(), 1U);
}

TEST_F(HostToolbar, AddsNoControlWithoutADefinition) {
  const auto deleted = define("id");
  deleted->deleteMe();
  EXPECT_FALSE(panel()->controls()->addCommand(nullptr));
  EXPECT_FALSE(panel()->controls()->addCommand(deleted));
}

TEST_F(HostToolbar, PutsControlsBeforeOrAfterAnother) {
  const auto controls = panel()->controls();
  controls->addCommand(define("b"));
  controls->addCommand(define("a"), "b");
  controls->addCommand(define("d"), "b", false);
  controls->addCommand(define("c"), "d", true);
  EXPECT_EQ(idsIn(controls), Log({"a", "b", "c", "d"}));
  EXPECT_EQ(controls->itemById("c")->index(), 2U);
  EXPECT_FALSE(controls->item(4));
}

TEST_F(HostToolbar, PromotesControlsAndKeepsTheDefaultApart) {
  const auto control = panel()->controls()->addCommand(define("id"));
  EXPECT_FALSE(control->isPromoted() || control->isPromotedByDefault());
  EXPECT_TRUE(control->isPromoted(true));
  EXPECT_TRUE(control->isPromoted());
  EXPECT_FALSE(control->isPromotedByDefault());
  EXPECT_TRUE(control->isPromotedByDefault(true) && control->isPromotedByDefault());
  EXPECT_TRUE(session().toolbar().front().isPromoted);
}

TEST_F(HostToolbar, ShowsVisibleControlsOnly) {
  const auto control = panel()->controls()->addCommand(define("id"));
  EXPECT_EQ(buttons(), Log({"SOLID/Panel/id"}));
  EXPECT_TRUE(control->isVisible(false));
  EXPECT_FALSE(control->isVisible());
  EXPECT_EQ(buttons(), Log({}));
  EXPECT_THAT(refusalOf([this] { session().press("id"); }), testing::HasSubstr("there is no button id"));
}

TEST_F(HostToolbar, ShowsTheTextsOfTheDefinition) {
  panel()->controls()->addCommand(define("id"));
  const headless::ButtonView button = session().toolbar().at(0);
  EXPECT_EQ(button.panel, "PANEL");
  EXPECT_EQ(button.name + button.tooltip + button.icon, "id nameid tipid icon");
}

TEST_F(HostToolbar, LosesADeletedControl) {
  const auto control = panel()->controls()->addCommand(define("id"));
  EXPECT_TRUE(control->deleteMe());
  EXPECT_FALSE(control->isValid() || control->deleteMe() || control->commandDefinition());
  EXPECT_EQ(panel()->controls()->count(), 0U);
}

TEST_F(HostToolbar, KeepsADeadButtonWhenItsDefinitionIsDeleted) {
  const auto definition = define("id");
  const auto control = panel()->controls()->addCommand(definition);
  definition->deleteMe();
  EXPECT_TRUE(control->isValid());
  EXPECT_FALSE(control->commandDefinition());
  EXPECT_TRUE(session().toolbar().at(0).isDead);
  EXPECT_THAT(refusalOf([this] { session().press("id"); }), testing::HasSubstr("is dead"));
  EXPECT_TRUE(control->deleteMe());
}

TEST_F(HostToolbar, StartsTheLiveButtonOfAnIdThatADeadOneHasToo) {
  const auto before = define("id");
  panel()->controls()->addCommand(before);
  before->deleteMe();
  panelsOf("ToolsTab")->add("other", "")->controls()->addCommand(define("id"));
  EXPECT_EQ(refusalOf([this] { session().press("id"); }), "");
}

TEST_F(HostToolbar, LosesAPanelWithAllItsControls) {
  const auto gone = panel();
  const auto control = gone->controls()->addCommand(define("id"));
  EXPECT_TRUE(gone->deleteMe());
  EXPECT_FALSE(gone->isValid() || control->isValid() || gone->deleteMe());
  EXPECT_FALSE(workspace()->toolbarPanels()->itemById("Panel"));
  EXPECT_EQ(gone->name(), "");
  EXPECT_EQ(buttons(), Log({}));
  EXPECT_TRUE(panelsOf("SolidTab")->add("Panel", "")) << "the id is free again";
}

TEST_F(HostToolbar, GivesADeletedPanelNoControlsButACollection) {
  const auto definition = define("id");
  const auto gone = panel();
  gone->controls()->addCommand(definition);
  gone->deleteMe();
  ASSERT_TRUE(gone->controls());
  EXPECT_EQ(gone->controls()->count(), 0U);
  EXPECT_FALSE(gone->controls()->itemById("id") || gone->controls()->addCommand(definition));
}

TEST_F(HostToolbar, GivesADeletedPanelNoCollectionInHostsThatDoSo) {
  start(profileWith(
      [](headless::Profile& profile) { profile.deletedPanelControls = headless::DeletedPanelControls::Nothing; }));
  const auto gone = panel();
  EXPECT_TRUE(gone->controls());
  gone->deleteMe();
  EXPECT_FALSE(gone->controls());
}

TEST_F(HostToolbar, LosesEverythingWithAWorkspace) {
  const auto goneWorkspace = workspace();
  const auto tab = goneWorkspace->toolbarTabs()->item(0);
  const auto gone = panel();
  const auto control = gone->controls()->addCommand(define("id"));
  EXPECT_TRUE(host().ui().workspaceList().remove("FusionSolidEnvironment"));
  EXPECT_FALSE(host().ui().workspaceList().remove("FusionSolidEnvironment"));
  EXPECT_FALSE(goneWorkspace->isValid() || tab->isValid() || gone->isValid() || control->isValid());
  EXPECT_FALSE(tab->toolbarPanels() || goneWorkspace->toolbarTabs());
  EXPECT_EQ(gone->index() + control->index(), 0U);
}

TEST_F(HostToolbar, OutlivesTheHostAndAnswersWithNothing) {
  const auto workspaces = ui()->workspaces();
  const auto design = workspace();
  const auto tabs = design->toolbarTabs();
  const auto tab = tabs->item(0);
  const auto panels = tab->toolbarPanels();
  const auto kept = panel();
  const auto controls = kept->controls();
  const auto control = controls->addCommand(define("id"));
  end();
  const std::vector<Ptr<Base>> all{workspaces, design, tabs, tab, panels, kept, controls, control};
  for (const Ptr<Base>& each : all) {
    EXPECT_FALSE(each->isValid()) << each->objectType();
  }
  EXPECT_FALSE(design->toolbarTabs() || tabs->item(0) || panels->add("x", "") || kept->controls() || control->parent());
  EXPECT_EQ(design->name() + tab->name() + kept->id() + control->id(), "");
  EXPECT_FALSE(control->deleteMe() || kept->deleteMe());
}

}  // namespace
}  // namespace tests
