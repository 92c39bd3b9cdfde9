// What tests can have on POSIX systems only: a terminal, links, a limit to the size of files.
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdlib>
#include <optional>

#include "tests/cli/native_fixture.h"
#include "tests/step/step_files.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST_F(NativeCliTest, InATerminalTheQuestionIsPutToTheUser) {
  const Outcome outcome = runInTerminal(
      applying({"--filter", "component", "--select", "Arm:1", "--appearance", "RAL 3000 Flame red"}), "what?\nyes\n");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("Tintora: Remove appearances applied to bodies & faces? [y/n]"));
  EXPECT_THAT(outcome.out, HasSubstr("Asked: \"Remove appearances applied to bodies & faces?\" Yes"));
  EXPECT_TRUE(exists(assemblyName("out")));
}

TEST_F(NativeCliTest, TreeInATerminalHasBlocksInTheColoursOfTheObjects) {
  EXPECT_THAT(runInTerminal({"tree", rig()}, "").out, HasSubstr("\x1b[48;2;255;0;0m"));
  EXPECT_THAT(runInTerminal({"tree", rig(), "--colour", "never"}, "").out, Not(HasSubstr("\x1b[48")));
}

TEST_F(NativeCliTest, ReadingALargeAssemblyShowsHowFarItIs) {
  WITH_STEP_FILE(file, "motor-driver-board-v3.5.step");
  EXPECT_THAT(runInTerminal({"tree", file.string()}, "").out, HasSubstr("motor-driver-board-v3.5.step: translating "));
}

TEST_F(NativeCliTest, TheInputIsRecognisedUnderAnotherName) {
  std::filesystem::create_symlink(rig(), at(assemblyName("alias")));
  const std::string before = content(assemblyName("rig"));
  fail(2, {"clear", rig(), "--filter", "body", "--select", "*", "--save", at(assemblyName("alias"))});
  EXPECT_EQ(content(assemblyName("rig")), before);
}

/// While one lives, programs that are started ignore a signal, as this one does.
class IgnoredSignal {
 public:
  explicit IgnoredSignal(int which) : signal(which) {}
  IgnoredSignal(const IgnoredSignal&) = delete;
  IgnoredSignal& operator=(const IgnoredSignal&) = delete;
  ~IgnoredSignal() { std::signal(signal, before); }

 private:
  int signal;
  void (*before)(int) = std::signal(signal, SIG_IGN);
};

// A chain of links without end stands for every name that the system does not follow to its end, as in a folder that
// may not be entered, which the administrator's tests cannot have.
TEST_F(NativeCliTest, AFileThatCannotBeLookedForIsNotSaidToBeMissing) {
  for (const char* name : {"loop.step", "loop.design.json"}) {
    std::filesystem::create_symlink(name, at(name));
    EXPECT_THAT(fail(1, {"tree", at(name)}), AllOf(HasSubstr(at(name)), HasSubstr(" cannot be looked for ("),
                                                   HasSubstr("you may enter its folder")));
  }
}

class FolderOutOfReach : public NativeCliTest, public WithRow<std::vector<std::string>> {};

TABLE(Commands, FolderOutOfReach, byNumber,
      {{"dialog", "--picture", "/proc/self/out.svg"},
       {"apply", "--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--save",
        "/proc/self/out.step"},
       {"convert", "/proc/self/out.design.json"},
       {"render", "--png", "/proc/self/out.png"}});

// Nobody can make files there. Found before any work: nothing is reported as done, and not even the assembly is read.
TABLE_TEST(FolderOutOfReach, IsToldAtOnce) {
  std::vector<std::string> arguments = row();
  arguments.insert(arguments.begin() + 1, rig());
  const std::string said = fail(1, arguments);
  EXPECT_THAT(said, StartsWith("tintora-host: Cannot write \"" + row().back() +
                               "\": the folder \"/proc/self\" cannot be written ("));
  EXPECT_THAT(said, HasSubstr("Choose another folder or change its permissions."));
}

class WithoutOutput : public NativeCliTest, public WithRow<std::vector<std::string>> {};

TABLE(Commands, WithoutOutput, [](const auto& row) { return row.front().substr(row.front().find_first_not_of('-')); },
      {{"--help"},
       {"--version"},
       {"tree", "--json", "--all"},
       {"dialog"},
       {"clear", "--filter", "body", "--select", "*", "--save", "OUT"}});

TABLE_TEST(WithoutOutput, IsAFailureThatSaysSo) {
  std::vector<std::string> arguments = row();
  if (arguments.front().front() != '-') {
    arguments.insert(arguments.begin() + 1, {rig(), "--quiet"});
  }
  const bool isSaving = arguments.back() == "OUT";
  if (isSaving) {
    arguments.back() = saved();
  }
  const Outcome outcome = runWithoutOutput(arguments);
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err,
            "tintora-host: Standard output cannot be written: the disk may be full, or what reads it has ended. Send "
            "it elsewhere. Files that were to be saved are saved.\n");
  EXPECT_EQ(exists(assemblyName("out")), isSaving);
}

/// While one lives, programs that are started cannot write more into a file, as on a disk that is nearly full.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit now = before;
    now.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &now);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before); }

 private:
  const IgnoredSignal atLimit{SIGXFSZ};
  rlimit before{};
};

class TraceOnAFullDisk : public NativeCliTest, public WithRow<std::vector<std::string>> {};

TABLE(Commands, TraceOnAFullDisk, [](const auto& row) { return row.front(); },
      {{"dialog"},
       {"apply", "--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red"},
       {"clear", "--filter", "body", "--select", "*"}});

// The add-in runs in its own folder, as there is no room for a copy.
TABLE_TEST(TraceOnAFullDisk, IsAFailureAndNothingIsSaved) {
  std::vector<std::string> arguments = row();
  arguments.insert(arguments.begin() + 1, rig());
  arguments.insert(arguments.end(), {"--addin", copyAddIn(), "--keep-settings", "--trace", at("calls.txt"), "--quiet"});
  if (arguments.front() != "dialog") {
    arguments.insert(arguments.end(), {"--save", saved()});
  }
  const FileSizeLimit limit(16384);
  const Outcome outcome = run(arguments);
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tintora-host: Cannot write \"" + at("calls.txt") + "\": the disk may be full.\n");
  EXPECT_THAT(filesInFolder(), ElementsAre("addin", "rig.step"));
}

class DemoOnAFullDisk : public NativeCliTest {
 protected:
  /// Nothing larger than 16 kB can be written, and so neither a trace nor an assembly, nor a copy of the add-in.
  Outcome play(const std::string& assembly, std::vector<std::string> outputs) {
    outputs.insert(outputs.begin(), {"demo", assembly, "--addin", addin, "--keep-settings", "--quiet"});
    const FileSizeLimit limit(16384);
    return run(outputs);
  }

 private:
  const std::string addin = copyAddIn();
};

TEST_F(DemoOnAFullDisk, IsAFailureThatNamesTheTrace) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const Outcome outcome = play(file.string(), {"--trace", at("calls.txt"), "--save", saved()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tintora-host: Cannot write \"" + at("calls.txt") + "\": the disk may be full.\n");
  EXPECT_THAT(filesInFolder(), ElementsAre("addin", "rig.step"));
}

TEST_F(DemoOnAFullDisk, IsAFailureThatNamesTheAssemblyAsItWasAskedFor) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const Outcome outcome = play(file.string(), {"--save", saved()});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "tintora-host: Cannot write \"" + saved() +
                             "\": the disk refused the data. Free some space or choose another folder.\n");
  EXPECT_THAT(filesInFolder(), ElementsAre("addin", "rig.step"));
}

TEST_F(NativeCliTest, WhenTheSecondFileCannotBeWrittenTheFirstIsThereAsAWhole) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const std::string design = at("out.design.json");
  std::vector<std::string> arguments = {"apply", file.string(), "--addin", copyAddIn(), "--keep-settings"};
  arguments.insert(arguments.end(), {"--filter", "body", "--select", "plate:1/Body1"});
  arguments.insert(arguments.end(), {"--appearance", "RAL 3000 Flame red", "--save", design, "--glb", at("out.glb")});
  const auto runOnAFullDisk = [&] {
    const FileSizeLimit limit(16384);
    return run(arguments);
  };
  const Outcome outcome = runOnAFullDisk();
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("tintora-host: Cannot write \"" + at("out.glb") + "\": "));
  EXPECT_THAT(outcome.out, EndsWith("Saved " + design + "\n"));
  EXPECT_THAT(json(design), HasSubstr("RAL 3000 Flame red"));
  EXPECT_THAT(filesInFolder(), ElementsAre("addin", "out.design.json", "rig.step"));
}

TEST_F(NativeCliTest, ADiskTooFullForACopyOfTheAddInIsAFailureThatTellsHowToDoWithoutOne) {
  const std::string addIn = copyAddIn();
  const FileSizeLimit limit(16384);
  const std::string said = fail(1, {"dialog", rig(), "--addin", addIn});
  EXPECT_THAT(said, AllOf(HasSubstr("The add-in cannot be copied for this run: "), HasSubstr(addIn + "/Tintora.dll"),
                          HasSubstr("]. Set TMPDIR (on Windows TMP) to a folder with room that can be written, or "
                                    "use --keep-settings.\n")));
}

/// While one lives, programs that are started have a variable with that value in their environment.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* variable, const std::string& value) : name(variable) {
    if (const char* earlier = std::getenv(name)) {
      before = earlier;
    }
    setenv(name, value.c_str(), 1);
  }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  ~EnvironmentVariable() {
    if (before) {
      setenv(name, before->c_str(), 1);
    } else {
      unsetenv(name);
    }
  }

 private:
  const char* name;
  std::optional<std::string> before;
};

class AddInOfLinks : public NativeCliTest {
 protected:
  /// Moves something of the add-in aside and puts a link in its place.
  void link(const std::string& name) const {
    const std::filesystem::path file = addIn / name;
    const std::filesystem::path aside = at("aside");
    std::filesystem::rename(file, aside);
    std::filesystem::create_symlink(aside, file);
  }
  std::string dialog() const { return succeed({"dialog", rig(), "--addin", addIn.string()}); }

  const std::filesystem::path addIn = copyAddIn();
};

TEST_F(AddInOfLinks, RunsWithALinkedModule) {
  const std::string before = dialog();
  link("Tintora.dll");
  EXPECT_EQ(dialog(), before);
}

TEST_F(AddInOfLinks, RunsWithALinkedFolder) {
  const std::string before = dialog();
  link("resources");
  EXPECT_EQ(dialog(), before);
}

// Another place for the copy would not help.
TEST_F(AddInOfLinks, IsToBlameForALinkToNothing) {
  link("resources");
  std::filesystem::rename(at("aside"), at("elsewhere"));
  EXPECT_THAT(fail(1, {"dialog", rig(), "--addin", addIn.string()}),
              AllOf(HasSubstr(addIn.string() + "/resources"), HasSubstr("No such file"), Not(HasSubstr("TMPDIR"))));
}

TEST_F(AddInOfLinks, IsNoneWhenItsFolderCannotBeReached) {
  std::filesystem::create_symlink("loop", at("loop"));
  EXPECT_THAT(fail(1, {"dialog", rig(), "--addin", at("loop")}),
              HasSubstr("There is no add-in in " + at("loop") + ": no file Tintora.dll can be reached (Too many"));
}

TEST_F(NativeCliTest, AFolderForTemporaryFilesThatIsNoneIsAFailureThatNamesIt) {
  for (const std::string& folder : {std::string(), at("none"), rig()}) {
    const EnvironmentVariable variable("TMPDIR", folder);
    EXPECT_THAT(fail(1, {"dialog", rig()}),
                AllOf(HasSubstr("There is no folder for temporary files"), HasSubstr("TMPDIR names none")));
  }
}

TEST_F(NativeCliTest, TheAddInIsNotCopiedIntoItself) {
  const std::string addIn = copyAddIn();
  const EnvironmentVariable variable("TMPDIR", addIn + "/resources");
  EXPECT_THAT(fail(1, {"dialog", rig(), "--addin", addIn}),
              AllOf(HasSubstr("into its own folder, to " + addIn + "/resources. "), HasSubstr("Set TMPDIR")));
}

TEST_F(NativeCliTest, APipeIsNoPlaceForAnOutput) {
  const std::string pipe = at(assemblyName("pipe"));
  ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"dialog", rig(), "--trace", pipe}, {"convert", rig(), pipe}}) {
    EXPECT_EQ(fail(1, arguments), "tintora-host: Cannot write \"" + pipe +
                                      "\": that is a device, a pipe or a socket. Give the name of a file.\n");
  }
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

class EndedFromOutside : public NativeCliTest {
 protected:
  EndedFromOutside() { std::filesystem::create_directory(at("temporary")); }
  /// Sends the signal at the add-in's question, when there is a copy of the add-in, and a trace in the making.
  Outcome atTheQuestion(int signal, const std::string& answer = "") const {
    const EnvironmentVariable temporary("TMPDIR", at("temporary"));
    return signalInTerminal(applying({"--filter", "component", "--select", "Arm:1", "--appearance",
                                      "RAL 3000 Flame red", "--trace", at("calls.txt")}),
                            "[y/n]", signal, answer);
  }
};

TEST_F(EndedFromOutside, LeavesNothingBehindAndTellsTheSignal) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    EXPECT_EQ(atTheQuestion(signal).exitCode, -signal);
    EXPECT_THAT(filesInFolder(), ElementsAre("rig.step", "temporary"));
    EXPECT_TRUE(std::filesystem::is_empty(at("temporary")));
  }
}

TEST_F(EndedFromOutside, IsNotWhatWasStartedToIgnoreTheSignal) {
  const IgnoredSignal closedTerminal(SIGHUP);
  EXPECT_EQ(atTheQuestion(SIGHUP, "yes\n").exitCode, 0);
  EXPECT_TRUE(exists("calls.txt"));
}

TEST_F(EndedFromOutside, IsNotWhatNobodyListensTo) {
  const EnvironmentVariable temporary("TMPDIR", at("temporary"));
  const Outcome outcome = runIntoClosedPipe(
      applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--quiet"}));
  EXPECT_GE(outcome.exitCode, 0) << "ended by a signal";
  EXPECT_TRUE(exists("out.step"));
  EXPECT_TRUE(std::filesystem::is_empty(at("temporary")));
}

}  // namespace
}  // namespace tests
