#include <ostream>

#include "host/win32/desktop.h"
#include "tests/dialog/dialog_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using headless::Profile;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// A call to which the host answers with nothing, and how many inputs are there then.
struct EarlyEnd {
  const char* call;
  std::size_t nth;
  std::size_t inputs;
};

std::string nameOf(const EarlyEnd& end) {
  std::string name = end.call;
  name.erase(0, name.find('.') + 1);
  return name.substr(0, name.find('=')) + std::to_string(end.nth) + "After" + std::to_string(end.inputs);
}

class EarlyEndOfBuild : public DialogTest, public WithRow<EarlyEnd> {
 protected:
  void buildUntilRefused() {
    // A command without inputs is executed at once; being started again would hide what is left.
    Profile profile = usualProfile();
    profile.executeFromTerminated = headless::ExecuteFromTerminated::Refused;
    folder.write(settingsFile(), "2");
    start(profile);
    host().gate().setFault({row().nth, FaultAnswer::Nothing, row().call});
    pressMainButton();
    EXPECT_TRUE(host().gate().faultStruck());
  }

  void expectUnfinishedDialog() {
    EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(row().inputs)));
    EXPECT_EQ(headless::desktop::cursor().shape, headless::desktop::CursorShape::Wait);
    EXPECT_EQ(headless::desktop::cursor().displayCount, 1);
  }
};

class SilentEndOfBuild : public EarlyEndOfBuild {};

TABLE(Refused, SilentEndOfBuild, nameOf,
      {EarlyEnd{"Command.commandInputs", 1, 0},
       EarlyEnd{"CommandInputs.addGroupCommandInput", 1, 0},
       EarlyEnd{"GroupCommandInput.children", 1, 1},
       EarlyEnd{"CommandInputs.addSelectionInput", 1, 1},
       EarlyEnd{"CommandInputs.addButtonRowCommandInput", 1, 2},
       EarlyEnd{"ButtonRowCommandInput.listItems", 1, 3},
       EarlyEnd{"CommandInputs.addGroupCommandInput", 2, 3},
       EarlyEnd{"GroupCommandInput.children", 2, 4},
       EarlyEnd{"CommandInputs.addTextBoxCommandInput", 1, 4},
       EarlyEnd{"CommandInputs.addDropDownCommandInput", 1, 5},
       EarlyEnd{"DropDownCommandInput.listItems", 1, 6},
       EarlyEnd{"CommandInputs.addDropDownCommandInput", 2, 6},
       EarlyEnd{"DropDownCommandInput.listItems", 2, 7},
       EarlyEnd{"CommandInputs.addStringValueInput", 1, 7},
       EarlyEnd{"CommandInputs.addBoolValueInput", 1, 8},
       EarlyEnd{"CommandInputs.addGroupCommandInput", 3, 9},
       EarlyEnd{"GroupCommandInput.children", 3, 10},
       EarlyEnd{"CommandInputs.addTextBoxCommandInput", 2, 10},
       EarlyEnd{"CommandInputs.addBoolValueInput", 2, 11},
       EarlyEnd{"CommandInputs.addDropDownCommandInput", 3, 12},
       EarlyEnd{"DropDownCommandInput.listItems", 3, 13},
       EarlyEnd{"CommandInputs.addDropDownCommandInput", 4, 13},
       EarlyEnd{"DropDownCommandInput.listItems", 4, 14},
       EarlyEnd{"CommandInputs.addStringValueInput", 2, 14},
       EarlyEnd{"CommandInputs.addBoolValueInput", 3, 15}});

TABLE_TEST(SilentEndOfBuild, KeepsTheInputsBeforeItAndRaisesNothing) {
  buildUntilRefused();
  EXPECT_THAT(takeErrors(), IsEmpty());
  expectUnfinishedDialog();
  if (!session().isDialogOpen()) {
    return;
  }
  // Neither frame nor settings nor selection filter are reached.
  EXPECT_TRUE(session().dialog().hasOkButton);
  EXPECT_EQ(session().dialog().width, 0);
  if (row().inputs >= 4) {
    EXPECT_EQ(shown("idFilterSelect"), "Body");
    EXPECT_EQ(shown("idSelection"), "Select");
  }
  if (row().inputs >= 5) {
    EXPECT_EQ(shown("idActAppearance"), "Nothing selected");
  }
  if (row().inputs >= 11) {
    EXPECT_EQ(shown("idActMaterial"), "Nothing selected");
  }
}

class RaisingEndOfBuild : public EarlyEndOfBuild {};

TABLE(Refused, RaisingEndOfBuild, nameOf,
      {EarlyEnd{"CommandCreatedEventArgs.command", 1, 0}, EarlyEnd{"Command.execute", 1, 0},
       EarlyEnd{"Command.inputChanged", 1, 0}, EarlyEnd{"Application.materialLibraries", 1, 6},
       EarlyEnd{"Application.materialLibraries", 2, 7}, EarlyEnd{"MaterialLibrary.appearances", 1, 7},
       EarlyEnd{"Application.materialLibraries", 3, 13}, EarlyEnd{"Application.materialLibraries", 4, 14},
       EarlyEnd{"MaterialLibrary.materials", 1, 14}, EarlyEnd{"Appearances.item", 1, 7},
       EarlyEnd{"Materials.item", 1, 14},
       // The remembered colour library, and the first material library when its name is asked for.
       EarlyEnd{"ListItems.item", 1, 6}, EarlyEnd{"ListItems.item", 4, 14},
       EarlyEnd{"ButtonRowCommandInput.selectedItem", 1, 16}});

TABLE_TEST(RaisingEndOfBuild, KeepsTheInputsBeforeItToo) {
  buildUntilRefused();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  expectUnfinishedDialog();
}

/// A change of the dialog that the host refuses while it is built.
class RefusedChanges : public DialogTest, public WithRow<std::string> {};

TABLE(Calls, RefusedChanges, byText,
      {"SelectionCommandInput.setSelectionLimits", "ListItems.add", "Command.isExecutedWhenPreEmpted=",
       "Command.isOKButtonVisible=", "Command.okButtonText=", "Command.cancelButtonText=",
       "SelectionCommandInput.clearSelectionFilter", "SelectionCommandInput.addSelectionFilter",
       "SelectionCommandInput.clearSelection", "BoolValueCommandInput.isEnabled="});

TABLE_TEST(RefusedChanges, KeepNothingElseFromBeingBuilt) {
  start();
  host().gate().setFault({1, FaultAnswer::Nothing, row()});
  pressMainButton();
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_EQ(inputIds(), dialogInputIds);
  EXPECT_EQ(session().dialog().width, 425);
  EXPECT_THAT(shown("idSelection"), StartsWith("Select "));
  EXPECT_EQ(headless::desktop::cursor().shape, headless::desktop::CursorShape::Arrow);
}

}  // namespace
}  // namespace tests
