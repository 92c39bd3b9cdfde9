// The host finds the two entry points in the module and nothing else.
#include <gmock/gmock.h>

#include "tests/robustness/module_exports.h"
#include "tests/support/addin_folder.h"

namespace tests {
namespace {

TEST(ModuleExports, AreTheTwoEntryPointsOnly) {
  const AddInFolder folder;
  EXPECT_THAT(exportedNames(folder.module()), testing::ElementsAre("run", "stop"));
}

TEST(ModuleExports, AreNotReadFromWhatIsNoModule) {
  const AddInFolder folder;
  folder.write("text.dll", "no module");
  EXPECT_THROW(exportedNames(folder.path() / "text.dll"), std::runtime_error);
}

}  // namespace
}  // namespace tests
