#include <ostream>

#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/windows_calls.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using headless::desktop::cursor;
using headless::desktop::CursorShape;
using ::testing::SizeIs;

class WaitCursor : public AddInTest {
 protected:
  static void expectCursor(CursorShape shape, int displayCount) {
    EXPECT_EQ(cursor().shape, shape);
    EXPECT_EQ(cursor().displayCount, displayCount);
  }

  /// Presses the main button while a call raises, which ends the build there.
  void failAt(const std::string& call) {
    host().gate().setFault({1, FaultAnswer::Exception, call});
    session().press("idAssetsMatMng");
    EXPECT_THAT(takeErrors(), SizeIs(1));
  }
};

class WaitCursorUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(WaitCursorUnderProfile);

TABLE_TEST(WaitCursorUnderProfile, IsGoneWhenTheDialogIsThere) {
  start(profile());
  openDialog();
  EXPECT_EQ(cursor().shape, CursorShape::Arrow);
  EXPECT_EQ(cursor().displayCount, 0);
}

class WaitCursorDuring : public WaitCursor, public WithRow<const char*> {};

TABLE(Calls, WaitCursorDuring, byText,
      {"CommandCreatedEventArgs.command", "Command.commandInputs", "MaterialLibraries.load",
       "Command.setDialogInitialSize", "Application.currentUser", "SelectionCommandInput.commandPrompt="});

TABLE_TEST(WaitCursorDuring, IsShownFromTheFirstCallToTheLast) {
  // A command without inputs is executed at once; being started again would build a dialog after all.
  headless::Profile profile = usualProfile();
  profile.executeFromTerminated = headless::ExecuteFromTerminated::Refused;
  start(profile);
  expectCursor(CursorShape::Arrow, 0);
  failAt(row());
  expectCursor(CursorShape::Wait, 1);
}

TEST_F(WaitCursor, GivesWayToTheCursorThatWasThereBefore) {
  start();
  failAt("MaterialLibraries.load");
  session().pressCancel();
  openDialog();
  expectCursor(CursorShape::Wait, 1);
}

TEST_F(WaitCursor, LeavesNoneWhereThereWasNone) {
  start();
  SetCursor(nullptr);
  openDialog();
  expectCursor(CursorShape::Other, 0);
}

TEST_F(WaitCursor, PilesUpWhenTheBuildFailsAgain) {
  start();
  failAt("MaterialLibraries.load");
  session().pressCancel();
  failAt("MaterialLibraries.load");
  expectCursor(CursorShape::Wait, 2);
}

TEST_F(WaitCursor, IsNotForTheHelpCommand) {
  start();
  session().press("idOpenHelp");
  expectCursor(CursorShape::Arrow, 0);
}

}  // namespace
}  // namespace tests
