#include "host/runtime/module.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "tests/host/host_fixture.h"
#include "tests/support/addin_folder.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using headless::Module;

std::string whatLoadingSays(const fs::path& file) {
  try {
    const Module module(file);
    return "";
  } catch (const std::runtime_error& error) {
    return error.what();
  }
}

TEST(ModuleFile, ThatIsNotThereIsNamed) {
  const fs::path file = fs::temp_directory_path() / "no such module.dll";
  EXPECT_THAT(whatLoadingSays(file), testing::HasSubstr("no such module.dll cannot be loaded: "));
}

TEST(ModuleFile, ThatIsNoModuleIsNamed) {
  const AddInFolder folder;
  folder.write("text.dll", "This is no module.");
  EXPECT_THAT(whatLoadingSays(folder.path() / "text.dll"), testing::HasSubstr("text.dll cannot be loaded: "));
  EXPECT_THAT(whatLoadingSays(folder.path()), testing::HasSubstr(" cannot be loaded: "));
}

TEST(ModuleFile, WithoutEntryPointsIsNoAddIn) {
  EXPECT_THAT(whatLoadingSays(MODULE_WITHOUT_ENTRY_POINTS),
              testing::HasSubstr("is no add-in: it has no entry point \"run\""));
  EXPECT_FALSE(Module::isResident(MODULE_WITHOUT_ENTRY_POINTS));
}

TEST(ModuleFile, MayDoWithoutStop) {
  const Module module(MODULE_ONLY_RUN);
  EXPECT_FALSE(module.hasStop());
  EXPECT_TRUE(module.stop("{}"));
  EXPECT_FALSE(module.run("{}"));
}

TEST(ModuleFile, IsInMemoryAsLongAsItIsLoaded) {
  EXPECT_FALSE(Module::isResident(MODULE_ONLY_RUN));
  {
    const Module module(MODULE_ONLY_RUN);
    EXPECT_TRUE(Module::isResident(MODULE_ONLY_RUN));
  }
  EXPECT_FALSE(Module::isResident(MODULE_ONLY_RUN));
  const Module again(MODULE_ONLY_RUN);
  EXPECT_TRUE(Module::isResident(MODULE_ONLY_RUN));
}

TEST(ModuleFile, IsFoundFromTheCurrentFolder) {
  const AddInFolder folder;
  const fs::path before = fs::current_path();
  fs::copy_file(MODULE_ONLY_RUN, folder.path() / "copy.dll");
  fs::current_path(folder.path());
  EXPECT_EQ(whatLoadingSays("copy.dll"), "");
  fs::current_path(before);
}

class LoadedAddIn : public HostTest {};

TEST_F(LoadedAddIn, IsToldHowItWasStarted) {
  session().loadAddIn(MODULE_ONLY_RUN);
  EXPECT_TRUE(session().isAddInLoaded());
  EXPECT_TRUE(session().runAddIn());
  EXPECT_TRUE(session().stopAddIn());
  session().unloadAddIn();
  EXPECT_FALSE(session().isAddInLoaded());
  session().unloadAddIn();
}

TEST_F(LoadedAddIn, IsNeededForRunAndStop) {
  EXPECT_EQ(refusalOf([this] { session().runAddIn(); }), "no add-in is loaded");
  EXPECT_EQ(refusalOf([this] { session().stopAddIn(); }), "no add-in is loaded");
}

TEST_F(LoadedAddIn, IsOneAtATime) {
  session().loadAddIn(MODULE_ONLY_RUN);
  EXPECT_THAT(refusalOf([this] { session().loadAddIn(MODULE_RAISING); }), testing::HasSubstr("is loaded already"));
  EXPECT_TRUE(session().runAddIn());
}

TEST_F(LoadedAddIn, IsNotThereAfterLoadingFailed) {
  EXPECT_THROW(session().loadAddIn(MODULE_WITHOUT_ENTRY_POINTS), std::runtime_error);
  EXPECT_FALSE(session().isAddInLoaded());
  session().loadAddIn(MODULE_ONLY_RUN);
  EXPECT_TRUE(session().runAddIn());
}

TEST_F(LoadedAddIn, HasItsExceptionsCaughtAndKept) {
  session().loadAddIn(MODULE_RAISING);
  EXPECT_FALSE(session().runAddIn());
  EXPECT_FALSE(session().stopAddIn());
  ASSERT_EQ(session().errors().size(), 2U);
  EXPECT_EQ(session().errors()[0].kind, "std::out_of_range");
  EXPECT_EQ(session().errors()[1].kind, "std::invalid_argument");
  EXPECT_EQ(takeErrors(), Log({"run: out of run", "stop: out of stop"}));
}

TEST_F(LoadedAddIn, LosesItsDialogAndItsHandlersWhenItIsUnloaded) {
  session().loadAddIn(MODULE_ATTACHING);
  EXPECT_TRUE(session().runAddIn());
  EXPECT_EQ(session().dialog().inputs.size(), 1U);
  EXPECT_FALSE(session().stopAddIn());
  EXPECT_TRUE(session().isDialogOpen());
  session().unloadAddIn();
  EXPECT_FALSE(session().isDialogOpen());
  EXPECT_TRUE(host().ui().attachedHandlers().empty());
  EXPECT_FALSE(Module::isResident(MODULE_ATTACHING));
}

TEST_F(LoadedAddIn, MayBeLoadedAgainForAFreshStart) {
  for (int i = 0; i < 2; ++i) {
    session().loadAddIn(MODULE_ATTACHING);
    EXPECT_TRUE(session().runAddIn());
    session().unloadAddIn();
    EXPECT_TRUE(ui()->commandDefinitions()->itemById("Attaching")->deleteMe());
  }
}

TEST_F(LoadedAddIn, IsUnloadedBeforeTheHostEnds) {
  session().loadAddIn(MODULE_ATTACHING);
  session().runAddIn();
  end();
  EXPECT_FALSE(Module::isResident(MODULE_ATTACHING));
}

TEST_F(LoadedAddIn, HasAttachedHandlersReportedInHostsThatDoSo) {
  for (const bool isReported : {false, true}) {
    headless::Profile profile;
    profile.attachedHandlersReported = isReported;
    start(profile);
    session().loadAddIn(MODULE_ATTACHING);
    session().runAddIn();
    session().stopAddIn();
    EXPECT_EQ(takeErrors(), isReported ? Log({"stop: 1 handler is still attached to commandTerminated",
                                              "stop: 1 handler is still attached to commandCreated of Attaching"})
                                       : Log({}));
  }
}

#ifdef MODULE_THAT_STAYS
TEST_F(LoadedAddIn, IsReportedWhenSomethingKeepsItInMemory) {
  session().loadAddIn(MODULE_THAT_STAYS);
  session().unloadAddIn();
  const Log errors = takeErrors();
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_THAT(errors.front(), testing::StartsWith("unload: something keeps the module in memory: "));
}
#endif

}  // namespace
}  // namespace tests
