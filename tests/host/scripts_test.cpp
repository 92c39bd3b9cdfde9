// Scripts: modules that are loaded, run and unloaded in one go.
#include <stdexcept>

#include "host/runtime/module.h"
#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using headless::Module;

class Script : public HostTest {};

TEST_F(Script, IsGoneWhenItHasRun) {
  EXPECT_TRUE(session().runScript(MODULE_ONLY_RUN));
  EXPECT_FALSE(Module::isResident(MODULE_ONLY_RUN));
  EXPECT_TRUE(session().runScript(MODULE_ONLY_RUN));
}

TEST_F(Script, RunsBesideAnAddIn) {
  session().loadAddIn(MODULE_ATTACHING);
  EXPECT_TRUE(session().runScript(MODULE_ONLY_RUN));
  EXPECT_TRUE(session().isAddInLoaded());
}

TEST_F(Script, HasItsExceptionsCaughtAndKept) {
  EXPECT_FALSE(session().runScript(MODULE_RAISING));
  EXPECT_EQ(takeErrors(), Log({"run: out of run"}));
  EXPECT_FALSE(Module::isResident(MODULE_RAISING));
}

TEST_F(Script, ThatIsNoModuleIsRefused) {
  EXPECT_THROW(session().runScript(MODULE_WITHOUT_ENTRY_POINTS), std::runtime_error);
}

TEST_F(Script, HasTheProgressDialogReportedThatItLeavesBehind) {
  EXPECT_TRUE(session().runScript(MODULE_LEAVING_PROGRESS));
  EXPECT_EQ(takeErrors(), Log({"run: the script left its progress dialog behind: Forgotten"}));
  EXPECT_FALSE(session().isProgressShown());
}

}  // namespace
}  // namespace tests
