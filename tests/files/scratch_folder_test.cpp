// What is in the making stays in folders that go away.
#include "host/files/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/temporary_folder.h"

namespace headless::files {
namespace {

class ScratchFolderTest : public ::testing::Test {
 protected:
  tests::TemporaryFolder folder;
};

TEST_F(ScratchFolderTest, IsGoneInTheEndWithWhatIsInIt) {
  {
    const ScratchFolder scratch(folder.path(), "a-", ".part");
    std::filesystem::create_directory(scratch.path() / "inner");
    std::ofstream(scratch.path() / "inner/file") << "half";
    EXPECT_TRUE(std::filesystem::exists(scratch.path() / "inner/file"));
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(ScratchFolderTest, IsNamedAsWishedAndNotAsAnother) {
  const ScratchFolder one(folder.path(), "a-", ".part");
  const ScratchFolder other(folder.path(), "a-", ".part");
  EXPECT_NE(one.path(), other.path());
  EXPECT_EQ(one.path().parent_path(), folder.path());
  EXPECT_EQ(one.path().filename().u8string().rfind("a-", 0), 0u);
  EXPECT_EQ(one.path().extension(), ".part");
}

TEST_F(ScratchFolderTest, TakesAFolderToBeIn) {
  EXPECT_THROW(ScratchFolder(folder.path() / "none", "a-", ""), std::filesystem::filesystem_error);
}

#ifndef _WIN32
TEST_F(ScratchFolderTest, IsItsOwnersAlone) {
  const ScratchFolder scratch(folder.path(), "a-", "");
  EXPECT_EQ(std::filesystem::status(scratch.path()).permissions(), std::filesystem::perms::owner_all);
}
#endif

}  // namespace
}  // namespace headless::files
