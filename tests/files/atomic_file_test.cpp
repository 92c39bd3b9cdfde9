// Output files are whole or not there.
#include "host/files/atomic_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "host/files/error.h"
#include "tests/support/temporary_folder.h"

namespace headless::files {
namespace {

void fillFile(const std::filesystem::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

std::string contentOf(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

class AtomicFileTest : public ::testing::Test {
 protected:
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
  }

  tests::TemporaryFolder folder;
  std::filesystem::path target = folder.path() / "out.txt";
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
  EXPECT_THROW(AtomicFile(folder.path() / "none/out.txt"), Error);
  fillFile(folder.path() / "file", "");
  EXPECT_THROW(AtomicFile(folder.path() / "file/out.txt"), Error);
}

#ifndef _WIN32
TEST_F(AtomicFileTest, RefusesFoldersThatCannotBeWritten) {
  EXPECT_THROW(AtomicFile("/proc/self/out.txt"), Error);
}

TEST_F(AtomicFileTest, MayHaveTheLongestNameThatTheFileSystemAllows) {
  target = folder.path() / std::string(255, 'a');
  AtomicFile file(target);
  fillFile(file.path(), "new");
  file.commit();
  EXPECT_EQ(contentOf(target), "new");
}
#endif

TEST_F(AtomicFileTest, SaysWhenNothingWasWritten) {
  AtomicFile file(target);
  EXPECT_THROW(file.commit(), Error);
}

}  // namespace
}  // namespace headless::files
