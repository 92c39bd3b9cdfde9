// Output files are whole or not there.
#include "host/step/atomic_file.h"

#include <gtest/gtest.h>

#include "host/step/error.h"
#include "tests/step/made_designs.h"

namespace headless::step {
namespace {

class AtomicFileTest : public ::testing::Test {
 protected:
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
  }

  TemporaryFolder folder;
  std::filesystem::path target = folder / "out.txt";
};

TEST_F(AtomicFileTest, AppearsWhenCommitted) {
  {
    AtomicFile file(target);
    fillFile(file.path(), "new");
    EXPECT_FALSE(std::filesystem::exists(target));
    file.commit();
  }
  EXPECT_EQ(contentOf(target), "new");
  EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(AtomicFileTest, LeavesNothingBehindWhenNotCommitted) {
  {
    const AtomicFile file(target);
    fillFile(file.path(), "half");
  }
  EXPECT_EQ(filesInFolder(), 0u);
}

TEST_F(AtomicFileTest, KeepsTheEarlierFileUntilCommitted) {
  fillFile(target, "old");
  AtomicFile file(target);
  fillFile(file.path(), "new");
  EXPECT_EQ(contentOf(target), "old");
  file.commit();
  EXPECT_EQ(contentOf(target), "new");
}

TEST_F(AtomicFileTest, IsWrittenBesideItsDestination) {
  const AtomicFile file(target);
  EXPECT_EQ(file.path().parent_path().parent_path(), folder.path());
  EXPECT_EQ(file.path().filename(), target.filename());
}

TEST_F(AtomicFileTest, RefusesFoldersAndMissingFolders) {
  EXPECT_THROW(AtomicFile(folder.path()), Error);
  EXPECT_THROW(AtomicFile(folder / "none/out.txt"), Error);
  fillFile(folder / "file", "");
  EXPECT_THROW(AtomicFile(folder / "file/out.txt"), Error);
}

TEST_F(AtomicFileTest, RefusesFoldersThatCannotBeWritten) {
  if (!std::filesystem::exists("/proc/self")) {
    GTEST_SKIP() << "this system has no folder that nobody can write";
  }
  EXPECT_THROW(AtomicFile("/proc/self/out.txt"), Error);
}

TEST_F(AtomicFileTest, SaysWhenNothingWasWritten) {
  AtomicFile file(target);
  EXPECT_THROW(file.commit(), Error);
}

}  // namespace
}  // namespace headless::step
