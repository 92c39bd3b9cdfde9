#include "tests/cli/cli_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// RIG stands for the assembly, OUT for a file that does not exist yet.
class CommandLine : public CliTest {
 protected:
  std::vector<std::string> argumentsFor(std::vector<std::string> words) const {
    for (std::string& word : words) {
      word = word == "RIG" ? rig() : word == "OUT" ? saved() : word;
    }
    return words;
  }
};

TEST_F(CommandLine, HelpIsTheManual) {
  const std::string help = succeed({"--help"});
  for (const char* text : {"tree", "dialog", "apply", "clear", "demo", "convert", "Examples:", "Exit codes:"}) {
    EXPECT_THAT(help, HasSubstr(text));
  }
}

TEST_F(CommandLine, HelpOfACommandExplainsPathsAndPatterns) {
  EXPECT_THAT(succeed({"apply", "--help"}),
              AllOf(HasSubstr("--appearance-library NAME"), HasSubstr("\"A:1+B:2/Body1/Face3\""),
                    HasSubstr("--set-appearance-by-material"), HasSubstr("(required)")));
}

TEST_F(CommandLine, VersionIsThatOfTheProject) {
  EXPECT_EQ(succeed({"--version"}), "tintora-host " TINTORA_VERSION "\n");
}

struct Misuse {
  const char* name;
  std::vector<std::string> arguments;
  const char* message;
};

const std::vector<Misuse> misuses = {
    {"NoCommand", {}, "subcommand is required"},
    {"MisspeltCommand", {"tre", "RIG"}, "There is no command \"tre\"; did you mean \"tree\"?"},
    {"OptionInPlaceOfACommand", {"--bogus", "RIG"}, "\"--bogus\" cannot come first: begin with a command"},
    {"NoFile", {"tree"}, "FILE is required"},
    {"UnknownOption", {"tree", "RIG", "--jason"}, "--jason"},
    {"UnknownKind", {"apply", "RIG", "--filter", "edge", "--select", "*", "--save", "OUT"}, "edge"},
    {"NothingToPick", {"apply", "RIG", "--filter", "body", "--appearance", "X", "--save", "OUT"}, "--select"},
    {"NowhereToSave", {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X"}, "--save"},
    {"NothingToApply",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--save", "OUT"},
     "give --appearance, --material or both"},
    {"LookOfNoMaterial",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--set-appearance-by-material", "--save", "OUT"},
     "requires --material"},
    {"LibraryOfNoAppearance",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance-library", "X", "--save", "OUT"},
     "requires --appearance"},
    {"NoAnswer",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--answer", "maybe", "--save", "OUT"},
     "maybe"},
    {"UnknownProfile", {"dialog", "RIG", "--profile", "rude"}, "rude"},
    {"SavingOntoTheInput",
     {"clear", "RIG", "--filter", "body", "--select", "*", "--save", "RIG"},
     "is the file that is read, which is never changed"},
    {"TracingOntoTheInput", {"dialog", "RIG", "--trace", "RIG"}, "is the file that is read"},
    {"DialogOntoTheInput", {"dialog", "RIG", "--picture", "RIG"}, "is the file that is read"},
    {"ToolbarOntoTheInput", {"dialog", "RIG", "--toolbar-picture", "RIG"}, "is the file that is read"},
    {"QuestionOntoTheInput",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--save", "OUT", "--question-picture",
      "RIG"},
     "is the file that is read"},
    {"SavingAndTracingIntoOneFile",
     {"clear", "RIG", "--filter", "body", "--select", "*", "--save", "OUT", "--trace", "OUT"},
     "is the file of both --save and --trace: name another one"},
    {"SavingAndDrawingIntoOneFile",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--save", "OUT", "--picture", "OUT"},
     "is the file of both --save and --picture"},
    {"DrawingTwiceIntoOneFile",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--save", "OUT", "--picture", "x.svg",
      "--question-picture", "./x.svg"},
     "\"./x.svg\" is the file of both --picture and --question-picture"},
    {"DialogAndToolbarInOneFile",
     {"dialog", "RIG", "--picture", "OUT", "--toolbar-picture", "OUT"},
     "is the file of both --picture and --toolbar-picture"},
    {"DialogAndTraceInOneFile",
     {"dialog", "RIG", "--picture", "OUT", "--trace", "OUT"},
     "is the file of both --trace and --picture"},
    {"DemoAndTraceInOneFile",
     {"demo", "RIG", "--save", "OUT", "--trace", "OUT"},
     "is the file of both --save and --trace"},
    {"DrawingTheDialogAsPng", {"dialog", "RIG", "--picture", "x.png"}, "--picture x.png: the name must end in .svg"},
    {"DrawingTheToolbarAsPng",
     {"dialog", "RIG", "--toolbar-picture", "svg"},
     "--toolbar-picture svg: the name must end in .svg"},
    {"DrawingTheDialogAfterApplyAsPng",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--save", "OUT", "--picture", "x.png"},
     "--picture x.png: the name must end in .svg"},
    {"DrawingTheQuestionAsPng",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--save", "OUT", "--question-picture",
      "x.png"},
     "--question-picture x.png: the name must end in .svg"},
    {"ReadingAFileWithoutName", {"tree", ""}, "FILE: The name is empty"},
    {"SavingUnderNoName",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--save", ""},
     "--save: The name is empty; give one"},
    {"ClearingUnderNoName",
     {"clear", "RIG", "--filter", "body", "--select", "*", "--save", ""},
     "--save: The name is empty"},
    {"ConvertingToNoName", {"convert", "RIG", ""}, "OUT: The name is empty"},
    {"DrawingUnderNoName", {"dialog", "RIG", "--picture", ""}, "--picture: The name is empty"},
    {"TracingUnderNoName", {"dialog", "RIG", "--trace", ""}, "--trace: The name is empty"},
    {"AddInWithoutName", {"dialog", "RIG", "--addin", ""}, "--addin: The name is empty"},
    {"UnknownGroup", {"dialog", "RIG", "--close", "select"}, "select"},
    {"TypingIntoAClosedGroup",
     {"dialog", "RIG", "--close", "appearance", "--appearance-filter", "x"},
     "--close appearance goes with none of --appearance-filter, --appearance and --open-list appearance: what is in a "
     "closed group is out of reach"},
    {"ChoosingInAClosedGroup",
     {"dialog", "RIG", "--close", "appearance", "material", "--material", "Lead"},
     "--close material goes with none of --material-filter, --material"},
    {"OpeningAListInAClosedGroup",
     {"dialog", "RIG", "--close", "material", "--picture", "x.svg", "--open-list", "material"},
     "--close material goes with none of"},
    {"ChoosingAnAppearanceThatTheMaterialSets",
     {"dialog", "RIG", "--set-appearance-by-material", "--appearance", "RAL 3000 Flame red"},
     "--set-appearance-by-material excludes --appearance\n"},
    {"TypingForAnAppearanceThatTheMaterialSets",
     {"dialog", "RIG", "--set-appearance-by-material", "--appearance-filter", "x"},
     "--set-appearance-by-material excludes --appearance-filter\n"},
    {"OpenListWithoutPicture", {"dialog", "RIG", "--open-list", "material"}, "requires --picture"},
};

class CommandLineMisuse : public CommandLine, public WithRow<Misuse> {};

TABLE(Table, CommandLineMisuse, byName, misuses);

TABLE_TEST(CommandLineMisuse, EndsWithTwoAndSaysWhatIsWrong) {
  EXPECT_THAT(fail(2, argumentsFor(row().arguments)), AllOf(StartsWith("tintora-host: "), HasSubstr(row().message)));
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("rig")));
}

struct CommandWithOutput {
  const char* name;
  /// Without the output, which comes last.
  std::vector<std::string> arguments;
  /// Of the output; without one it is an assembly.
  std::string ending = {};
};

const std::vector<CommandWithOutput> commandsWithOutput = {
    {"Apply", {"apply", "RIG", "--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--save"}},
    {"Clear", {"clear", "RIG", "--filter", "body", "--select", "*", "--save"}},
    {"ClearWithTrace", {"clear", "RIG", "--filter", "body", "--select", "*", "--save", "OUT", "--trace"}},
    {"ApplyWithPicture",
     {"apply", "RIG", "--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--save", "OUT",
      "--picture"},
     ".svg"},
    {"Dialog", {"dialog", "RIG", "--picture"}, ".svg"},
    {"Toolbar", {"dialog", "RIG", "--toolbar-picture"}, ".svg"},
    {"Demo", {"demo", "RIG", "--save"}},
    {"Convert", {"convert", "RIG"}},
};

class CommandWithoutPlace : public CommandLine, public WithRow<CommandWithOutput> {
 protected:
  std::string output(const std::string& stem) const {
    return row().ending.empty() ? assemblyName(stem) : stem + row().ending;
  }
  std::string failSaving(const std::string& target) const {
    std::vector<std::string> arguments = argumentsFor(row().arguments);
    arguments.push_back(target);
    return fail(1, arguments);
  }
};

TABLE(Table, CommandWithoutPlace, byName, commandsWithOutput);

// Found before any work: nothing is reported as done, and not even the assembly is read.
TABLE_TEST(CommandWithoutPlace, SaysAtOnceThatTheFolderIsNotThere) {
  const std::string target = at(output("nowhere/out"));
  EXPECT_EQ(failSaving(target), "tintora-host: Cannot write \"" + target + "\": the folder \"" + at("nowhere") +
                                    "\" does not exist. Create it or choose another folder.\n");
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("rig")));
}

TABLE_TEST(CommandWithoutPlace, SaysAtOnceThatTheNameIsThatOfAFolder) {
  const std::string target = at(output("folder"));
  std::filesystem::create_directory(std::filesystem::u8path(target));
  EXPECT_EQ(failSaving(target), "tintora-host: Cannot write \"" + target + "\": that is a folder. Give a file name.\n");
  EXPECT_THAT(filesInFolder(), ElementsAre(output("folder"), assemblyName("rig")));
}

TEST_F(CommandLine, AMisuseOfOptionsSaysWhereToReadMore) {
  EXPECT_EQ(fail(2, {"tree"}), "tintora-host: FILE is required\nRun with --help for more information.\n");
}

TEST_F(CommandLine, AFileThatIsNotThereIsAFailureThatNamesIt) {
  const std::string file = at(assemblyName("nix"));
  EXPECT_THAT(fail(1, {"tree", file}),
              AllOf(HasSubstr(file), AnyOf(HasSubstr("there is no such file"), HasSubstr("does not exist"))));
}

TEST_F(CommandLine, AFolderWithoutAddInIsAFailureThatSaysHowToNameOne) {
  EXPECT_THAT(fail(1, {"dialog", rig(), "--addin", at("nowhere")}),
              AllOf(HasSubstr("nowhere"), HasSubstr("no file Tintora.dll"), HasSubstr("--addin")));
}

TEST_F(CommandLine, WithoutATerminalProgressIsOneLineForEachFile) {
  const Outcome outcome = run({"clear", rig(), "--filter", "body", "--select", "*", "--save", saved()});
  EXPECT_EQ(outcome.err, "Reading " + rig() + "\nWriting " + saved() + "\n");
}

TEST_F(CommandLine, QuietMeansNoProgress) {
  EXPECT_EQ(run({"tree", rig(), "--quiet"}).err, "");
}

}  // namespace
}  // namespace tests
