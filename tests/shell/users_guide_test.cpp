#include <tuple>

#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/tables.h"
#include "tests/support/trace.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using headless::desktop::openedFiles;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// Puts a guide beside the module and gives its path.
std::string addGuide(const AddInFolder& folder) {
  folder.write("Tintora_UsersGuide.pdf", "%PDF");
  return (folder.path() / "Tintora_UsersGuide.pdf").string();
}

class UsersGuide : public AddInTest {
 protected:
  std::string guide = addGuide(folder);
};

class UsersGuideUnderProfile : public AddInUnderProfile {};

TABLE_OF_PROFILES(UsersGuideUnderProfile);

TABLE_TEST(UsersGuideUnderProfile, OpensFromEitherButton) {
  const std::string guide = addGuide(folder);
  start(profile());
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), ElementsAre(guide));
  session().press("idOpenHelpOnTools");
  EXPECT_THAT(openedFiles(), ElementsAre(guide, guide));
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TABLE_TEST(UsersGuideUnderProfile, MissesWithoutAWordWhenItIsNotThere) {
  start(profile());
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TABLE_TEST(UsersGuideUnderProfile, StaysClosedWhenTheMainCommandExecutes) {
  addGuide(folder);
  startDialog(profile());
  session().pick("Base");
  host().gate().startTrace();
  session().click("idBtnApply");
  EXPECT_NE(host().gate().traceText().find("# event execute(idAssetsMatMng)"), std::string::npos);
  EXPECT_THAT(openedFiles(), IsEmpty());
}

TEST_F(UsersGuide, OpensWhileTheDialogIsOpenWhichItEnds) {
  startDialog();
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), ElementsAre(guide));
  EXPECT_FALSE(session().isDialogOpen());
}

TEST_F(UsersGuide, OpensOnceForEachPress) {
  start();
  for (int i = 0; i < 3; ++i) {
    session().press("idOpenHelp");
  }
  EXPECT_THAT(openedFiles(), ElementsAre(guide, guide, guide));
}

TEST_F(UsersGuide, CommandIsOnlyGivenTheExecuteHandler) {
  start();
  host().gate().startTrace();
  session().press("idOpenHelp");
  EXPECT_THAT(callsIn(host().gate()),
              ElementsAre("CommandCreatedEventArgs.command()", "Command(idOpenHelp).execute()",
                          "CommandEvent(execute).add(handler)", "CommandEventArgs.command()",
                          "Command(idOpenHelp).parentCommandDefinition()", "CommandDefinition(idOpenHelp).id()",
                          "ApplicationCommandEventArgs.commandId()"));
}

/// A call to which the host answers with nothing, and the event that this ends by raising; none if it raises nothing.
struct MissingLink {
  const char* call;
  const char* raisingEvent;
};

class UsersGuideLink : public UsersGuide, public WithRow<MissingLink> {};

TABLE(Missing, UsersGuideLink, [](const auto& row) { return std::string(row.call); },
      {{"CommandCreatedEventArgs.command", "commandCreated(idOpenHelp)"},
       {"Command.execute", "commandCreated(idOpenHelp)"},
       {"CommandEvent.add", ""},
       {"CommandEventArgs.command", "execute(idOpenHelp)"},
       {"Command.parentCommandDefinition", "execute(idOpenHelp)"},
       {"CommandDefinition.id", ""}});

TABLE_TEST(UsersGuideLink, IsNeededToOpenTheGuide) {
  start();
  host().gate().setFault({1, FaultAnswer::Nothing, row().call});
  session().press("idOpenHelp");
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(openedFiles(), IsEmpty());
  if (std::string(row().raisingEvent).empty()) {
    EXPECT_THAT(takeErrors(), IsEmpty());
  } else {
    EXPECT_THAT(takeErrors(), ElementsAre(StartsWith(std::string(row().raisingEvent) + ": std::exception:")));
  }
}

}  // namespace
}  // namespace tests
