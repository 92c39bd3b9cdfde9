#include "dialog/selection_filter.h"

#include "tests/dialog/dialog_fixture.h"
#include "tests/support/linked_dialog.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using headless::InputView;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct Mode {
  const char* label;
  const char* hostFilter;
  const char* prompt;
  /// Something in the machine that can be picked in this mode.
  const char* pickable;
};

const std::vector<Mode> modes = {{"Component", "Occurrences", "Select Componet", "Bolt:2"},
                                 {"Body", "Bodies", "Select Body", "Base"},
                                 {"Face", "Faces", "Select Face", "Bolt:2/Head/Face1"}};

class SelectionFilter : public DialogTest {
 protected:
  void expectMode(const Mode& mode) {
    const InputView selection = session().input("idSelection");
    EXPECT_THAT(selection.filters, ElementsAre(mode.hostFilter));
    EXPECT_EQ(selection.text, mode.prompt);
    EXPECT_THAT(session().picked(), IsEmpty());
    EXPECT_EQ(markup("idActAppearance"), "");
    EXPECT_EQ(markup("idActMaterial"), "");
  }

  headless::ButtonRowInput& buttonRow() {
    return dynamic_cast<headless::ButtonRowInput&>(*command().findInput("idFilterSelect"));
  }
};

class SelectionFilterUnderProfile : public SelectionFilter, public WithRow<std::string> {
 protected:
  headless::Profile profile() const { return headless::profileNamed(row()); }
};

TABLE_OF_PROFILES(SelectionFilterUnderProfile);

TABLE_TEST(SelectionFilterUnderProfile, LetsBodiesThroughAtFirst) {
  startDialog(profile());
  expectMode(modes[1]);
}

TABLE_TEST(SelectionFilterUnderProfile, FollowsEveryChangeAndStartsTheSelectionAfresh) {
  startDialog(profile());
  for (const Mode& from : modes) {
    for (const Mode& to : modes) {
      if (from.label == to.label) {
        continue;
      }
      SCOPED_TRACE(std::string(from.label) + " to " + to.label);
      session().choose("idFilterSelect", from.label);
      session().pick(from.pickable);
      EXPECT_NE(markup("idActAppearance"), "");
      EXPECT_NE(markup("idActMaterial"), "");
      session().choose("idFilterSelect", to.label);
      expectMode(to);
    }
  }
}

TABLE_TEST(SelectionFilterUnderProfile, RefusesWhatItsModeDoesNotName) {
  startDialog(profile());
  for (const Mode& mode : modes) {
    session().choose("idFilterSelect", mode.label);
    for (const Mode& other : modes) {
      if (mode.label == other.label) {
        EXPECT_NO_THROW(session().pick(other.pickable));
      } else {
        EXPECT_THROW(session().pick(other.pickable), headless::UserError) << other.pickable << " as " << mode.label;
      }
    }
  }
}

class RestoredFilterMode : public SelectionFilter, public WithRow<std::size_t> {};

TABLE(
    All, RestoredFilterMode, [](const auto& row) { return std::string(modes[row].label); }, numbersBelow(3));

TABLE_TEST(RestoredFilterMode, IsTheOneOfTheSettingsFile) {
  folder.write(settingsFile(), std::to_string(row()));
  startDialog();
  EXPECT_EQ(shown("idFilterSelect"), modes[row()].label);
  expectMode(modes[row()]);
}

TEST_F(SelectionFilter, HasNoUpperLimit) {
  startDialog();
  session().choose("idFilterSelect", "Component");
  for (const char* path : {"Bolt:2", "Frame:1", "Frame:2", "Frame:1+Plate:1", "Frame:1+Bolt:1"}) {
    session().pick(path);
  }
  EXPECT_EQ(session().picked().size(), 5U);
}

TEST_F(SelectionFilter, IsSetUpInThisOrder) {
  startDialog();
  host().gate().startTrace();
  session().choose("idFilterSelect", "Component");
  const std::vector<std::string> calls = callsWith(
      host().gate(),
      {"TextBoxCommandInput", "SelectionCommandInput(idSelection).c", "addSelectionFilter", "selectedItem", "index()"});
  EXPECT_THAT(calls, ElementsAre("TextBoxCommandInput(idActAppearance).formattedText=(\"\")",
                                 "TextBoxCommandInput(idActMaterial).formattedText=(\"\")",
                                 "SelectionCommandInput(idSelection).clearSelection()",
                                 "SelectionCommandInput(idSelection).clearSelectionFilter()",
                                 "ButtonRowCommandInput(idFilterSelect).selectedItem()",
                                 "ListItem(idFilterSelect: Component).index()",
                                 "SelectionCommandInput(idSelection).addSelectionFilter(\"Occurrences\")",
                                 "SelectionCommandInput(idSelection).commandPrompt=(\"Select Componet\")"));
}

TEST_F(SelectionFilter, IsGoneForAnIndexThatIsNoMode) {
  startDialog();
  session().pick("Base");
  buttonRow().list().add("Other", false, "resources/BtnSelects/Other", -1);
  session().choose("idFilterSelect", "Other");
  const InputView selection = session().input("idSelection");
  EXPECT_THAT(selection.filters, IsEmpty());
  EXPECT_EQ(selection.text, "Select Body");
  EXPECT_THAT(session().picked(), IsEmpty());
}

TEST_F(SelectionFilter, RaisesWithoutASelectedModeOnceTheSelectionIsEmpty) {
  startDialog();
  session().pick("Base");
  buttonRow().list().setSelected(*buttonRow().list().all()[1].get(), false);
  host().ui().runner().changedByUser(buttonRow());
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("inputChanged(idFilterSelect): std::exception:")));
  EXPECT_THAT(session().picked(), IsEmpty());
  EXPECT_THAT(session().input("idSelection").filters, IsEmpty());
}

TEST_F(SelectionFilter, LeavesOneFilterWhenSetUpTwice) {
  startDialog();
  const LinkedDialog dialog(host());
  tintora::setupSelectionFilter();
  tintora::setupSelectionFilter();
  expectMode(modes[1]);
}

TEST_F(SelectionFilter, SkipsATextBoxThatIsMissing) {
  startDialog();
  const LinkedDialog dialog(host());
  session().pick("Base");
  tintora::actAppearanceInput = nullptr;
  tintora::setupSelectionFilter();
  EXPECT_NE(markup("idActAppearance"), "");
  EXPECT_EQ(markup("idActMaterial"), "");
  tintora::actMaterialInput = nullptr;
  EXPECT_NO_THROW(tintora::setupSelectionFilter());
}

TEST_F(SelectionFilter, RaisesWithoutTheSelectionInput) {
  startDialog();
  const LinkedDialog dialog(host());
  tintora::selectionInput = nullptr;
  EXPECT_THROW(tintora::setupSelectionFilter(), std::exception);
}

TEST_F(SelectionFilter, RaisesWithoutTheButtonRow) {
  startDialog();
  const LinkedDialog dialog(host());
  tintora::filterSelectInput = nullptr;
  EXPECT_THROW(tintora::setupSelectionFilter(), std::exception);
}

}  // namespace
}  // namespace tests
