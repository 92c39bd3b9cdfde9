// What the program records and what it leaves behind: traces, counts, settings.
#include <filesystem>
#include <regex>

#include "host/runtime/module.h"
#include "tests/cli/cli_fixture.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::ContainsRegex;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class RecordedRun : public CliTest {};

TEST_F(RecordedRun, TheTraceHasTheUsersActionsTheEventsAndTheCalls) {
  succeed(applying(
      {"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--trace", at("calls.txt")}));
  EXPECT_THAT(content("calls.txt"), AllOf(HasSubstr("# the user chooses \"RAL 3000 Flame red\" in idAppearanceList\n"),
                                          HasSubstr("# event inputChanged(idBtnApply)\n"),
                                          ContainsRegex("BRepBody.*\\.appearance=.* -> true")));
}

TEST_F(RecordedRun, TheTraceIsWrittenAlsoWhenTheRunFails) {
  fail(1, applying({"--filter", "body", "--select", "Base", "--appearance", "nix", "--trace", at("calls.txt")}));
  EXPECT_THAT(content("calls.txt"), HasSubstr("# the user presses idAssetsMatMng\n"));
}

TEST_F(RecordedRun, ATraceThatCannotBeWrittenIsAFailureBeforeAnythingIsDone) {
  fail(1, applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--trace",
                    at("no/such/folder/calls.txt")}));
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("rig")));
}

TEST_F(RecordedRun, CallsAreCountedByName) {
  const std::string counts = run({"dialog", rig(), "--count-calls"}).err;
  EXPECT_TRUE(std::regex_search(counts, std::regex("\n[0-9]+ calls of the host\n"))) << counts;
  EXPECT_THAT(counts, HasSubstr(" 3  CommandInputs.addGroupCommandInput\n"));
}

// Only Windows keeps a file that is in use from being removed; elsewhere this tells that the copy is removed at all.
TEST_F(RecordedRun, LeavesNoCopyOfTheAddInBehindThoughTheAddInIsInUse) {
  const headless::Module used(std::filesystem::u8path(copyAddIn()) / "Tintora.dll");
  succeed({"dialog", rig(), "--addin", at("addin"), "--trace", at("calls.txt")});
  const std::filesystem::path copy = addInFolderIn(content("calls.txt"));
  ASSERT_FALSE(copy.empty());
  EXPECT_FALSE(std::filesystem::exists(copy.parent_path()));
}

/// While one lives, nobody may write the files of a folder.
class ReadOnlyFiles {
 public:
  explicit ReadOnlyFiles(const std::filesystem::path& withFiles) : folder(withFiles) {
    change(std::filesystem::perm_options::remove);
  }
  ReadOnlyFiles(const ReadOnlyFiles&) = delete;
  ReadOnlyFiles& operator=(const ReadOnlyFiles&) = delete;
  ~ReadOnlyFiles() { change(std::filesystem::perm_options::add); }

 private:
  void change(std::filesystem::perm_options how) const {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) {
        std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_write, how);
      }
    }
  }
  std::filesystem::path folder;
};

TEST_F(RecordedRun, LeavesNoCopyOfAReadOnlyAddInBehind) {
  const ReadOnlyFiles addIn(std::filesystem::u8path(copyAddIn()));
  succeed({"dialog", rig(), "--addin", at("addin"), "--trace", at("calls.txt")});
  const std::filesystem::path copy = addInFolderIn(content("calls.txt"));
  ASSERT_FALSE(copy.empty());
  EXPECT_FALSE(std::filesystem::exists(copy.parent_path()));
}

class Settings : public CliTest {
 protected:
  Settings() { copyAddIn(); }
  std::string chooseRed(const std::vector<std::string>& more) const {
    std::vector<std::string> arguments = applying(
        {"--addin", at("addin"), "--filter", "face", "--select", "Base/Face1", "--appearance", "RAL 3000 Flame red"});
    arguments.insert(arguments.end(), more.begin(), more.end());
    return succeed(arguments);
  }
  bool isSaved() const { return exists("addin/Tintora_USER_CmdSet.txt"); }
};

TEST_F(Settings, OfOneRunDoNotReachTheNext) {
  chooseRed({});
  EXPECT_FALSE(isSaved());
  EXPECT_THAT(succeed({"dialog", rig(), "--addin", at("addin")}), HasSubstr("[Body]"));
}

TEST_F(Settings, ReachTheNextRunWhenTheyAreKept) {
  chooseRed({"--keep-settings"});
  EXPECT_TRUE(isSaved());
  EXPECT_THAT(succeed({"dialog", rig(), "--addin", at("addin"), "--keep-settings"}),
              AllOf(HasSubstr("[Face]"), HasSubstr("[ RAL 3000 Flame red "),
                    HasSubstr("▸ [ ] Assign Material to Selected Object")));
}

TEST_F(Settings, ThatWereKeptDoNotReachARunThatStartsAfresh) {
  chooseRed({"--keep-settings"});
  EXPECT_THAT(succeed({"dialog", rig(), "--addin", at("addin")}), AllOf(HasSubstr("[Body]"), Not(HasSubstr("▸"))));
}

TEST_F(Settings, ThatWereKeptDoNotChangeWhatIsApplied) {
  chooseRed({"--keep-settings"});
  EXPECT_THAT(succeed({"apply", rig(), "--addin", at("addin"), "--keep-settings", "--filter", "body", "--select",
                       "Base", "--material", "Brass C26000", "--save", saved()}),
              HasSubstr("Applied material \"Brass C26000\" to 1 body"));
  EXPECT_THAT(succeed({"tree", saved()}), HasSubstr("#FF0000  Opaque(255,0,0)  own       Brass C26000"));
}

TEST_F(Settings, WithBoxesNotTickedDoNotKeepTheListsOutOfReach) {
  fill("addin/Tintora_USER_CmdSet.txt", "1\n1\nRAL_COLORS\nRAL 1000 Green beige\n1\nEngineering materials\nLead\n0\n0");
  EXPECT_THAT(chooseRed({"--keep-settings"}), HasSubstr("Applied appearance \"RAL 3000 Flame red\" to 1 face"));
}

TEST_F(Settings, ThatWereKeptDoNotKeepTheRemoveButtonOutOfReach) {
  succeed({"apply", rig(), "--addin", at("addin"), "--keep-settings", "--filter", "body", "--select", "Base",
           "--material", "Brass C26000", "--save", saved()});
  EXPECT_THAT(succeed({"clear", rig(), "--addin", at("addin"), "--keep-settings", "--filter", "body", "--select",
                       "Base", "--save", at(assemblyName("plain"))}),
              HasSubstr("Removed"));
}

}  // namespace
}  // namespace tests
