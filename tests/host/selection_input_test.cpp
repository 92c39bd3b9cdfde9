#include "host/ui/inputs.h"

#include "tests/host/host_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace adsk::core;
using adsk::fusion::Component;
using adsk::fusion::Design;

class SelectionInputs : public HostDialogTest {
 protected:
  /// Opens a dialog that asks for any number of whatever passes the filters.
  void openWith(const std::vector<std::string>& filters) {
    open([filters](const Inputs& inputs) {
      const auto selection = inputs->addSelectionInput("selection", "", "Select");
      selection->setSelectionLimits(0);
      selection->selectionFilters(filters);
    });
  }
  Ptr<SelectionCommandInput> selection() const { return input<SelectionCommandInput>("selection"); }
  Ptr<Component> root() const { return Ptr<Design>(Application::get()->activeProduct())->rootComponent(); }
};

TEST_F(SelectionInputs, AskForExactlyOneOfAnythingUntilTold) {
  open([](const Inputs& inputs) { inputs->addSelectionInput("selection", "", "Select"); });
  std::size_t minimum = 0;
  std::size_t maximum = 0;
  EXPECT_TRUE(selection()->getSelectionLimits(minimum, maximum));
  EXPECT_EQ(minimum, 1U);
  EXPECT_EQ(maximum, 1U);
  EXPECT_TRUE(selection()->selectionFilters().empty());
  EXPECT_EQ(selection()->commandPrompt(), "Select");
  EXPECT_TRUE(selection()->hasFocus());
}

TEST_F(SelectionInputs, TakeLimitsThatMakeSense) {
  openWith({});
  std::size_t minimum = 0;
  std::size_t maximum = 0;
  EXPECT_TRUE(selection()->setSelectionLimits(2, 3));
  EXPECT_FALSE(selection()->setSelectionLimits(3, 2));
  selection()->getSelectionLimits(minimum, maximum);
  EXPECT_EQ(minimum, 2U);
  EXPECT_EQ(maximum, 3U);
  EXPECT_TRUE(selection()->setSelectionLimits(4)) << "no maximum";
}

TEST_F(SelectionInputs, KeepTheirListOfFilters) {
  openWith({"Bodies"});
  EXPECT_TRUE(selection()->addSelectionFilter("Faces"));
  EXPECT_FALSE(selection()->addSelectionFilter("Thoughts"));
  EXPECT_FALSE(selection()->selectionFilters({"Bodies", "Thoughts"}));
  EXPECT_EQ(selection()->selectionFilters(), Log({"Bodies", "Faces"}));
  EXPECT_TRUE(selection()->clearSelectionFilter());
  EXPECT_TRUE(selection()->selectionFilters().empty());
  EXPECT_TRUE(selection()->selectionFilters({"Occurrences"}));
  EXPECT_EQ(session().input("selection").filters, Log({"Occurrences"}));
}

TEST_F(SelectionInputs, ShowTheirPrompt) {
  openWith({});
  EXPECT_TRUE(selection()->commandPrompt("Pick one"));
  EXPECT_EQ(session().input("selection").text, "Pick one");
}

struct FilterCase {
  std::string name;
  std::vector<std::string> filters;
  /// Which of occurrence, body, face, root component and another component pass.
  std::vector<bool> passes;
};

class SelectionInputFilter : public SelectionInputs, public WithRow<FilterCase> {};

TABLE(Documented, SelectionInputFilter, byName,
      {{"none", {}, {true, true, true, true, true}},
       {"occurrences", {"Occurrences"}, {true, false, false, false, false}},
       {"rootComponents", {"RootComponents"}, {false, false, false, true, false}},
       {"bodies", {"Bodies"}, {false, true, false, false, false}},
       {"faces", {"Faces"}, {false, false, true, false, false}},
       {"bodiesOrFaces", {"Bodies", "Faces"}, {false, true, true, false, false}}});

TABLE_TEST(SelectionInputFilter, LetsThroughWhatItNames) {
  openWith(row().filters);
  const auto occurrence = root()->allOccurrences()->item(0);
  const auto body = root()->bRepBodies()->item(0);
  const std::vector<Ptr<Base>> candidates{occurrence, body, body->faces()->item(0), root(), occurrence->component()};
  std::vector<bool> passed;
  for (const Ptr<Base>& each : candidates) {
    passed.push_back(selection()->addSelection(each));
  }
  EXPECT_EQ(passed, row().passes);
  EXPECT_EQ(selection()->selectionCount(), static_cast<std::size_t>(std::count(passed.begin(), passed.end(), true)));
}

TEST_F(SelectionInputs, TakeNothingByProgramWhileTheDialogIsBuilt) {
  open([this](const Inputs& inputs) {
    const auto built = inputs->addSelectionInput("selection", "", "");
    EXPECT_FALSE(built->addSelection(root()));
    EXPECT_TRUE(built->clearSelection());
  });
  EXPECT_TRUE(selection()->addSelection(root()));
}

TEST_F(SelectionInputs, MayBeFilledWhenTheDialogIsActivated) {
  dialog->activate.then = [this](const auto&) { EXPECT_TRUE(selection()->addSelection(root())); };
  openWith({});
  EXPECT_EQ(selection()->selectionCount(), 1U);
}

TEST_F(SelectionInputs, TakeAnEntityOnce) {
  openWith({});
  EXPECT_TRUE(selection()->addSelection(root()));
  EXPECT_FALSE(selection()->addSelection(root()));
  EXPECT_FALSE(selection()->addSelection(nullptr));
  EXPECT_EQ(selection()->selectionCount(), 1U);
}

TEST_F(SelectionInputs, KnowAnEntityAgainByAnotherHandle) {
  start(profileWith([](headless::Profile& profile) { profile.freshWrappers = true; }));
  openWith({});
  EXPECT_NE(root(), root());
  EXPECT_TRUE(selection()->addSelection(root()));
  EXPECT_FALSE(selection()->addSelection(root()));
}

TEST_F(SelectionInputs, TellOneBodySeenThroughTwoOccurrencesApart) {
  openWith({});
  session().pick("Frame:1+Bolt:1/Head");
  session().pick("Frame:2+Bolt:1/Head");
  EXPECT_EQ(session().picked(), Log({"Frame:1+Bolt:1/Head", "Frame:2+Bolt:1/Head"}));
}

TEST_F(SelectionInputs, TakeNoMoreThanTheirMaximum) {
  openWith({});
  selection()->setSelectionLimits(0, 2);
  EXPECT_TRUE(selection()->addSelection(root()));
  EXPECT_TRUE(selection()->addSelection(root()->bRepBodies()->item(0)));
  EXPECT_FALSE(selection()->addSelection(root()->allOccurrences()->item(0)));
}

TEST_F(SelectionInputs, TakeNoEntityOfADocumentThatWasClosed) {
  const auto gone = root();
  session().openDesign(machine());
  openWith({});
  EXPECT_FALSE(selection()->addSelection(gone));
}

TEST_F(SelectionInputs, GiveTheirSelectionsInTheOrderOfPicking) {
  openWith({});
  session().pick("Base");
  session().pick("Frame:1");
  EXPECT_EQ(selection()->selection(0)->entity(), Ptr<Base>(root()->bRepBodies()->item(0)));
  EXPECT_STREQ(selection()->selection(1)->entity()->objectType(), "adsk::fusion::Occurrence");
  EXPECT_FALSE(selection()->selection(2));
}

TEST_F(SelectionInputs, InvalidateSelectionsThatAreCleared) {
  openWith({});
  session().pick("Base");
  session().pick("Frame:1");
  const auto first = selection()->selection(0);
  const auto second = selection()->selection(1);
  session().pick("Base");
  EXPECT_FALSE(first->isValid());
  EXPECT_FALSE(first->entity());
  EXPECT_TRUE(second->isValid());
  EXPECT_TRUE(selection()->clearSelection());
  EXPECT_FALSE(second->isValid());
  EXPECT_EQ(selection()->selectionCount(), 0U);
}

TEST_F(SelectionInputs, AreEmptiedWhenTheyAreHidden) {
  openWith({});
  session().pick("Base");
  selection()->isVisible(false);
  EXPECT_EQ(selection()->selectionCount(), 0U);
}

TEST_F(SelectionInputs, PassTheFocusAmongThemselves) {
  open([](const Inputs& inputs) {
    inputs->addSelectionInput("second", "", "");
    inputs->addGroupCommandInput("group", "")->children()->addSelectionInput("first", "", "");
  });
  const auto second = input<SelectionCommandInput>("second");
  const auto first = input<SelectionCommandInput>("first");
  EXPECT_TRUE(second->hasFocus()) << "the first one that was made";
  EXPECT_FALSE(first->hasFocus());
  session().pick("Base");
  EXPECT_TRUE(first->hasFocus(true));
  EXPECT_FALSE(second->hasFocus());
  session().pick("Frame:1");
  EXPECT_EQ(second->selectionCount(), 1U);
  EXPECT_EQ(first->selectionCount(), 1U);
  EXPECT_STREQ(first->selection(0)->entity()->objectType(), "adsk::fusion::Occurrence");
}

TEST_F(SelectionInputs, HaveTheFocusWhenTheyAreEnabledAndNeverWhenHidden) {
  openWith({});
  EXPECT_TRUE(selection()->isEnabled(false));
  EXPECT_FALSE(selection()->hasFocus());
  EXPECT_TRUE(selection()->isEnabled(true));
  EXPECT_TRUE(selection()->hasFocus());
  selection()->isVisible(false);
  EXPECT_FALSE(selection()->hasFocus());
  EXPECT_FALSE(selection()->hasFocus(true) || selection()->isEnabled(true));
  selection()->isVisible(true);
  EXPECT_TRUE(selection()->hasFocus(true));
}

TEST_F(SelectionInputs, RefuseOkBelowTheirMinimumUnlessHidden) {
  open([](const Inputs& inputs) { inputs->addSelectionInput("selection", "", "")->setSelectionLimits(2); });
  session().pick("Base");
  EXPECT_THAT(refusalOf([this] { session().pressOk(); }), testing::HasSubstr("greyed out"));
  selection()->isVisible(false);
  session().pressOk();
  EXPECT_FALSE(session().isDialogOpen());
}

}  // namespace
}  // namespace tests
