#include <tuple>

#include "host/win32/desktop.h"
#include "tests/support/addin_fixture.h"
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

TEST_P(UsersGuideUnderProfile, OpensFromEitherButton) {
  const std::string guide = addGuide(folder);
  start(profile());
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), ElementsAre(guide));
  session().press("idOpenHelpOnTools");
  EXPECT_THAT(openedFiles(), ElementsAre(guide, guide));
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_P(UsersGuideUnderProfile, MissesWithoutAWordWhenItIsNotThere) {
  start(profile());
  session().press("idOpenHelp");
  EXPECT_THAT(openedFiles(), IsEmpty());
  EXPECT_THAT(session().messageBoxes(), IsEmpty());
}

TEST_P(UsersGuideUnderProfile, StaysClosedWhenTheMainCommandExecutes) {
  addGuide(folder);
  startDialog(profile());
  session().pick("Base");
  host().gate().startTrace();
  session().click("idBtnApply");
  EXPECT_NE(host().gate().traceText().find("# event execute(idAssetsMatMng)"), std::string::npos);
  EXPECT_THAT(openedFiles(), IsEmpty());
}

INSTANTIATE_UNDER_ALL_PROFILES(UsersGuideUnderProfile);

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

class UsersGuideLink : public UsersGuide, public ::testing::WithParamInterface<MissingLink> {};

TEST_P(UsersGuideLink, IsNeededToOpenTheGuide) {
  start();
  host().gate().setFault({1, FaultAnswer::Nothing, GetParam().call});
  session().press("idOpenHelp");
  EXPECT_TRUE(host().gate().faultStruck());
  EXPECT_THAT(openedFiles(), IsEmpty());
  if (std::string(GetParam().raisingEvent).empty()) {
    EXPECT_THAT(takeErrors(), IsEmpty());
  } else {
    EXPECT_THAT(takeErrors(), ElementsAre(StartsWith(std::string(GetParam().raisingEvent) + ": std::exception:")));
  }
}

INSTANTIATE_TEST_SUITE_P(Missing, UsersGuideLink,
                         ::testing::Values(MissingLink{"CommandCreatedEventArgs.command", "commandCreated(idOpenHelp)"},
                                           MissingLink{"Command.execute", "commandCreated(idOpenHelp)"},
                                           MissingLink{"CommandEvent.add", ""},
                                           MissingLink{"CommandEventArgs.command", "execute(idOpenHelp)"},
                                           MissingLink{"Command.parentCommandDefinition", "execute(idOpenHelp)"},
                                           MissingLink{"CommandDefinition.id", ""}),
                         [](const auto& info) {
                           std::string name = info.param.call;
                           return name.erase(name.find('.'), 1);
                         });

}  // namespace
}  // namespace tests
