#include "host/runtime/application.h"

#include <stdexcept>

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;

class TheApplication : public HostTest {
 protected:
  static Ptr<Application> app() { return Application::get(); }
};

TEST_F(TheApplication, IsOneObject) {
  EXPECT_TRUE(app());
  EXPECT_EQ(app(), app());
  EXPECT_EQ(app()->userInterface(), app()->userInterface());
}

TEST_F(TheApplication, IsGoneWithTheHost) {
  const auto kept = app();
  const auto keptUi = ui();
  end();
  EXPECT_FALSE(Application::get());
  EXPECT_FALSE(kept->isValid() || keptUi->isValid());
  EXPECT_FALSE(kept->userInterface() || kept->activeProduct() || kept->materialLibraries() || kept->currentUser());
  EXPECT_EQ(kept->userId() + keptUi->activeCommand(), "");
  EXPECT_FALSE(keptUi->commandDefinitions() || keptUi->workspaces() || keptUi->activeSelections());
  EXPECT_EQ(keptUi->messageBox("x"), DialogError);
}

TEST_F(TheApplication, IsAnotherOneInTheNextHost) {
  const auto before = app();
  start(headless::documentedProfile());
  EXPECT_NE(app(), before);
  EXPECT_TRUE(app()->isValid());
}

TEST_F(TheApplication, IsThereOnlyOnce) {
  EXPECT_THROW(headless::Host another(headless::documentedProfile()), std::logic_error);
  EXPECT_EQ(headless::Host::current(), &host());
  EXPECT_TRUE(app()->userInterface());
}

TEST_F(TheApplication, MayRunWithoutAnInterface) {
  host().state().hasUserInterface = false;
  EXPECT_FALSE(app()->userInterface());
}

TEST_F(TheApplication, KnowsWhoIsSignedIn) {
  host().state().account = headless::Account{"ID1", "smith", "A. Smith", "smith@example.com"};
  const auto user = app()->currentUser();
  EXPECT_EQ(user->userId() + user->userName() + user->displayName() + user->email(),
            "ID1smithA. Smithsmith@example.com");
  EXPECT_EQ(app()->userId() + app()->userName(), "ID1smith");
}

TEST_F(TheApplication, KnowsNobodyWhenNobodyIsSignedIn) {
  EXPECT_EQ(app()->userId(), "USER");
  host().state().account = std::nullopt;
  EXPECT_FALSE(app()->currentUser());
  EXPECT_EQ(app()->userId() + app()->userName(), "");
}

TEST_F(TheApplication, HasNoProductWithoutADocument) {
  EXPECT_FALSE(app()->activeProduct());
  EXPECT_TRUE(app()->materialLibraries());
  session().openDesign(machine());
  EXPECT_TRUE(app()->activeProduct());
  session().closeDocument();
  EXPECT_FALSE(app()->activeProduct());
}

TEST_F(TheApplication, MayHaveAProductThatIsNoDesign) {
  session().openDesign(machine());
  EXPECT_TRUE(Ptr<adsk::fusion::Design>(app()->activeProduct()));
  host().state().isOtherProductActive = true;
  EXPECT_TRUE(app()->activeProduct());
  EXPECT_FALSE(Ptr<adsk::fusion::Design>(app()->activeProduct()));
}

TEST_F(TheApplication, TellsTheLastError) {
  std::string text = "before";
  EXPECT_EQ(app()->getLastError(&text), Ok);
  EXPECT_EQ(text, "");
  const auto gone = panel();
  gone->deleteMe();
  EXPECT_EQ(gone->name(), "");
  EXPECT_EQ(app()->getLastError(), UnderlyingObjectDeletedError);
  EXPECT_EQ(app()->getLastError(&text), UnderlyingObjectDeletedError);
  EXPECT_EQ(text, "the add-in used ToolbarPanel(Panel) after it was deleted");
}

TEST_F(TheApplication, MakesSetsOfNamedValues) {
  EXPECT_TRUE(NamedValues::create());
  EXPECT_NE(NamedValues::create(), NamedValues::create());
}

TEST_F(TheApplication, ClosesADocumentWithAllItsHandles) {
  session().openDesign(machine());
  const Ptr<adsk::fusion::Design> design = app()->activeProduct();
  const auto root = design->rootComponent();
  const auto occurrence = root->allOccurrences()->itemByName("Bolt:2");
  const auto body = occurrence->bRepBodies()->item(0);
  const auto face = body->faces()->item(0);
  const auto material = body->material();
  session().closeDocument();
  EXPECT_FALSE(design->isValid() || root->isValid() || occurrence->isValid() || body->isValid() || face->isValid());
  EXPECT_EQ(root->name() + occurrence->fullPathName() + body->name(), "");
  EXPECT_FALSE(face->body() || body->appearance() || body->material(material) || face->appearance(nullptr));
  EXPECT_EQ(headless::pathOf(face), "");
}

class IdleSelectionOfAPerson : public HostTest {
 protected:
  IdleSelectionOfAPerson() { session().openDesign(machine()); }
  Ptr<adsk::fusion::Component> root() const {
    return Ptr<adsk::fusion::Design>(Application::get()->activeProduct())->rootComponent();
  }
};

TEST_F(IdleSelectionOfAPerson, IsAddedToAndCleared) {
  const auto selections = ui()->activeSelections();
  EXPECT_TRUE(selections->add(root()));
  EXPECT_FALSE(selections->add(root()) || selections->add(nullptr));
  const auto kept = selections->item(0);
  EXPECT_EQ(kept->entity(), Ptr<Base>(root()));
  EXPECT_FALSE(selections->item(1));
  EXPECT_TRUE(selections->clear());
  EXPECT_EQ(selections->count(), 0U);
  EXPECT_FALSE(kept->isValid());
}

TEST_F(IdleSelectionOfAPerson, IsWhatAPersonPicksWithoutADialog) {
  session().pick("Base");
  session().pick("Frame:1");
  session().pick("Base");
  EXPECT_EQ(ui()->activeSelections()->count(), 1U);
  EXPECT_EQ(headless::pathOf(ui()->activeSelections()->item(0)->entity()), "Frame:1");
  session().clearPicks();
  EXPECT_EQ(ui()->activeSelections()->count(), 0U);
}

TEST_F(IdleSelectionOfAPerson, IsLostWithTheFirstEdit) {
  session().pick("Base");
  root()->bRepBodies()->item(0)->appearance(root()->bRepBodies()->item(0)->appearance());
  EXPECT_EQ(ui()->activeSelections()->count(), 0U);
}

TEST_F(IdleSelectionOfAPerson, IsLostWithTheDocument) {
  session().pick("Base");
  session().closeDocument();
  EXPECT_EQ(ui()->activeSelections()->count(), 0U);
}

}  // namespace
}  // namespace tests
