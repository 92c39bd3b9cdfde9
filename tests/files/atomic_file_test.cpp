// Output files are whole or not there.
#include "host/files/atomic_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

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

TEST_F(AtomicFileTest, RefusesWhatIsNoFile) {
  ASSERT_EQ(mkfifo(target.c_str(), S_IRUSR | S_IWUSR), 0);
  EXPECT_THAT([&] { AtomicFile{target}; },
              ::testing::ThrowsMessage<Error>(::testing::HasSubstr("that is a device, a pipe or a socket")));
  EXPECT_TRUE(std::filesystem::is_fifo(target));
}

TEST_F(AtomicFileTest, RefusesNamesThatLeadNowhere) {
  std::filesystem::create_symlink("loop.txt", folder.path() / "loop.txt");
  for (const std::string& name : {std::string("loop.txt"), std::string(256, 'a')}) {
    EXPECT_THAT([&] { AtomicFile{folder.path() / name}; },
                ::testing::ThrowsMessage<Error>(::testing::HasSubstr("Choose another file.")));
  }
  std::filesystem::create_symlink("none/out.txt", target);
  EXPECT_THAT([&] { AtomicFile{target}; },
              ::testing::ThrowsMessage<Error>(::testing::HasSubstr("none\" does not exist")));
}

TEST_F(AtomicFileTest, WritesTheFileThatALinkStandsFor) {
  std::filesystem::create_directory(folder.path() / "real");
  std::filesystem::create_symlink("real/first.txt", target);
  std::filesystem::create_symlink("second.txt", folder.path() / "real/first.txt");
  for (const char* content : {"new", "newer"}) {
    AtomicFile file(target);
    fillFile(file.path(), content);
    file.commit();
    EXPECT_TRUE(std::filesystem::is_symlink(target));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "real/first.txt"));
    EXPECT_EQ(contentOf(folder.path() / "real/second.txt"), content);
  }
}

TEST_F(AtomicFileTest, KeepsThePermissionsOfTheFileThatItReplaces) {
  fillFile(target, "old");
  const auto ownerAlone = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
  std::filesystem::permissions(target, ownerAlone);
  AtomicFile file(target);
  fillFile(file.path(), "new");
  file.commit();
  EXPECT_EQ(contentOf(target), "new");
  EXPECT_EQ(std::filesystem::status(target).permissions(), ownerAlone);
}
#endif

TEST_F(AtomicFileTest, SaysWhenNothingWasWritten) {
  AtomicFile file(target);
  EXPECT_THROW(file.commit(), Error);
}

}  // namespace
}  // namespace headless::files
