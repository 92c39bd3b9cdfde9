#include <ostream>

#include "host/win32/desktop.h"
#include "tests/dialog/dialog_fixture.h"

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

std::ostream& operator<<(std::ostream& stream, const EarlyEnd& end) {
  return stream << end.call << " number " << end.nth;
}

std::string nameOf(const ::testing::TestParamInfo<EarlyEnd>& info) {
  std::string name = info.param.call;
  name.erase(0, name.find('.') + 1);
  return name.substr(0, name.find('=')) + std::to_string(info.param.nth) + "After" + std::to_string(info.param.inputs);
}

class EarlyEndOfBuild : public DialogTest, public ::testing::WithParamInterface<EarlyEnd> {
 protected:
  void buildUntilRefused() {
    // A command without inputs is executed at once; being started again would hide what is left.
    Profile profile = headless::documentedProfile();
    profile.executeFromTerminated = headless::ExecuteFromTerminated::Refused;
    folder.write(settingsFile(), "2");
    start(profile);
    host().gate().setFault({GetParam().nth, FaultAnswer::Nothing, GetParam().call});
    pressMainButton();
    EXPECT_TRUE(host().gate().faultStruck());
  }

  void expectUnfinishedDialog() {
    EXPECT_THAT(inputIds(), ElementsAreArray(firstInputs(GetParam().inputs)));
    EXPECT_EQ(headless::desktop::cursor().shape, headless::desktop::CursorShape::Wait);
    EXPECT_EQ(headless::desktop::cursor().displayCount, 1);
  }
};

class SilentEndOfBuild : public EarlyEndOfBuild {};

TEST_P(SilentEndOfBuild, KeepsTheInputsBeforeItAndRaisesNothing) {
  buildUntilRefused();
  EXPECT_THAT(takeErrors(), IsEmpty());
  expectUnfinishedDialog();
  if (!session().isDialogOpen()) {
    return;
  }
  // Neither frame nor settings nor selection filter are reached.
  EXPECT_TRUE(session().dialog().hasOkButton);
  EXPECT_EQ(session().dialog().width, 0);
  if (GetParam().inputs >= 4) {
    EXPECT_EQ(shown("idFilterSelect"), "Body");
    EXPECT_EQ(shown("idSelection"), "Select");
  }
  if (GetParam().inputs >= 5) {
    EXPECT_EQ(shown("idActAppearance"), "Nothing selected");
  }
  if (GetParam().inputs >= 11) {
    EXPECT_EQ(shown("idActMaterial"), "Nothing selected");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Refused, SilentEndOfBuild,
    ::testing::Values(
        EarlyEnd{"Command.commandInputs", 1, 0}, EarlyEnd{"CommandInputs.addGroupCommandInput", 1, 0},
        EarlyEnd{"GroupCommandInput.children", 1, 1}, EarlyEnd{"CommandInputs.addSelectionInput", 1, 1},
        EarlyEnd{"CommandInputs.addButtonRowCommandInput", 1, 2}, EarlyEnd{"ButtonRowCommandInput.listItems", 1, 3},
        EarlyEnd{"CommandInputs.addGroupCommandInput", 2, 3}, EarlyEnd{"GroupCommandInput.children", 2, 4},
        EarlyEnd{"CommandInputs.addTextBoxCommandInput", 1, 4}, EarlyEnd{"CommandInputs.addDropDownCommandInput", 1, 5},
        EarlyEnd{"DropDownCommandInput.listItems", 1, 6}, EarlyEnd{"CommandInputs.addDropDownCommandInput", 2, 6},
        EarlyEnd{"DropDownCommandInput.listItems", 2, 7}, EarlyEnd{"CommandInputs.addStringValueInput", 1, 7},
        EarlyEnd{"CommandInputs.addBoolValueInput", 1, 8}, EarlyEnd{"CommandInputs.addGroupCommandInput", 3, 9},
        EarlyEnd{"GroupCommandInput.children", 3, 10}, EarlyEnd{"CommandInputs.addTextBoxCommandInput", 2, 10},
        EarlyEnd{"CommandInputs.addBoolValueInput", 2, 11}, EarlyEnd{"CommandInputs.addDropDownCommandInput", 3, 12},
        EarlyEnd{"DropDownCommandInput.listItems", 3, 13}, EarlyEnd{"CommandInputs.addDropDownCommandInput", 4, 13},
        EarlyEnd{"DropDownCommandInput.listItems", 4, 14}, EarlyEnd{"CommandInputs.addStringValueInput", 2, 14},
        EarlyEnd{"CommandInputs.addBoolValueInput", 3, 15}),
    nameOf);

class RaisingEndOfBuild : public EarlyEndOfBuild {};

TEST_P(RaisingEndOfBuild, KeepsTheInputsBeforeItToo) {
  buildUntilRefused();
  EXPECT_THAT(takeErrors(), ElementsAre(StartsWith("commandCreated(idAssetsMatMng): std::exception:")));
  expectUnfinishedDialog();
}

INSTANTIATE_TEST_SUITE_P(
    Refused, RaisingEndOfBuild,
    ::testing::Values(EarlyEnd{"CommandCreatedEventArgs.command", 1, 0}, EarlyEnd{"Command.execute", 1, 0},
                      EarlyEnd{"Command.inputChanged", 1, 0}, EarlyEnd{"Application.materialLibraries", 1, 6},
                      EarlyEnd{"Application.materialLibraries", 2, 7}, EarlyEnd{"MaterialLibrary.appearances", 1, 7},
                      EarlyEnd{"Application.materialLibraries", 3, 13},
                      EarlyEnd{"Application.materialLibraries", 4, 14}, EarlyEnd{"MaterialLibrary.materials", 1, 14},
                      // The remembered colour library, and the first material library when its name is asked for.
                      EarlyEnd{"ListItems.item", 1, 6}, EarlyEnd{"ListItems.item", 4, 14},
                      EarlyEnd{"ButtonRowCommandInput.selectedItem", 1, 16}),
    nameOf);

}  // namespace
}  // namespace tests
