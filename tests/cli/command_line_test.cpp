#include "tests/cli/cli_fixture.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST_F(CliTest, HelpIsTheManual) {
  const std::string help = succeed({"--help"});
  for (const char* text :
       {"tree", "dialog", "render", "apply", "clear", "demo", "convert", "Examples:", "Exit codes:"}) {
    EXPECT_THAT(help, HasSubstr(text));
  }
}

TEST_F(CliTest, HelpOfACommandExplainsPathsAndPatterns) {
  EXPECT_THAT(succeed({"apply", "--help"}),
              AllOf(HasSubstr("--appearance-library NAME"), HasSubstr("\"A:1+B:2/Body1/Face3\""),
                    HasSubstr("--set-appearance-by-material"), HasSubstr("(required)")));
}

TEST_F(CliTest, VersionIsThatOfTheProject) {
  EXPECT_EQ(succeed({"--version"}), "tintora-host " TINTORA_VERSION "\n");
}

struct Misuse {
  const char* name;
  std::vector<std::string> arguments;
  const char* message;
};

std::ostream& operator<<(std::ostream& stream, const Misuse& misuse) {
  return stream << misuse.name;
}

class CommandLineMisuse : public CliTest, public ::testing::WithParamInterface<Misuse> {};

// RIG stands for the assembly, OUT for a file that does not exist yet.
TEST_P(CommandLineMisuse, EndsWithTwoAndSaysWhatIsWrong) {
  std::vector<std::string> arguments = GetParam().arguments;
  for (std::string& argument : arguments) {
    argument = argument == "RIG" ? rig() : argument == "OUT" ? at("out.step") : argument;
  }
  EXPECT_THAT(fail(2, arguments), HasSubstr(GetParam().message));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

const std::vector<Misuse> misuses = {
    {"NoCommand", {}, "subcommand is required"},
    {"MisspeltCommand", {"tre", "RIG"}, "There is no command \"tre\"; did you mean \"tree\"?"},
    {"UnknownCommand", {"quux"}, "there are tree, dialog, render, apply, clear, demo, convert"},
    {"NoFile", {"tree"}, "FILE is required"},
    {"UnknownOption", {"tree", "RIG", "--jason"}, "--jason"},
    {"UnknownKind", {"apply", "RIG", "--filter", "edge", "--select", "*", "--save", "OUT"}, "edge"},
    {"NothingToPick", {"apply", "RIG", "--filter", "body", "--appearance", "X", "--save", "OUT"}, "--select"},
    {"NowhereToSave", {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X"}, "--save"},
    {"NothingToApply",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--save", "OUT"},
     "give --appearance, --material or both"},
    {"TwoAppearances",
     {"apply", "RIG", "--filter", "body", "--select", "*", "--appearance", "X", "--material", "Y",
      "--set-appearance-by-material", "--save", "OUT"},
     "--appearance excludes --set-appearance-by-material"},
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
    {"StepUnderAnotherEnding",
     {"clear", "RIG", "--filter", "body", "--select", "*", "--save", "out.glb"},
     "--save out.glb: the name must end in .step, .stp, .p21, .design.json"},
    {"GlbUnderAnotherEnding",
     {"clear", "RIG", "--filter", "body", "--select", "*", "--save", "OUT", "--glb", "out.step"},
     "the name must end in .glb"},
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
    {"UnknownGroup", {"dialog", "RIG", "--close", "select"}, "select"},
    {"OpenListWithoutPicture", {"dialog", "RIG", "--open-list", "material"}, "requires --picture"},
    {"DrawingOntoTheInput", {"render", "RIG", "--png", "RIG"}, "is the file that is read"},
    {"TinyPicture", {"render", "RIG", "--png", "OUT", "--width", "3"}, "--width"},
};

INSTANTIATE_TEST_SUITE_P(Table, CommandLineMisuse, ::testing::ValuesIn(misuses),
                         [](const auto& info) { return info.param.name; });

TEST_F(CliTest, TheInputIsRecognisedUnderAnotherName) {
  std::filesystem::create_symlink(rig(), at("alias.step"));
  const std::string before = content("rig.step");
  fail(2, {"clear", rig(), "--filter", "body", "--select", "*", "--save", at("alias.step")});
  EXPECT_EQ(content("rig.step"), before);
}

TEST_F(CliTest, AFileThatIsNotThereIsAFailureThatNamesIt) {
  EXPECT_THAT(fail(1, {"tree", at("nix.step")}), AllOf(HasSubstr("nix.step"), HasSubstr("there is no such file")));
}

TEST_F(CliTest, AFolderWithoutAddInIsAFailureThatSaysHowToNameOne) {
  EXPECT_THAT(fail(1, {"dialog", rig(), "--addin", at("nowhere")}),
              AllOf(HasSubstr("nowhere"), HasSubstr("no file Tintora.dll"), HasSubstr("--addin")));
}

TEST_F(CliTest, WithoutATerminalProgressIsOneLineForEachFile) {
  const Outcome outcome = runProgram({"clear", rig(), "--filter", "body", "--select", "*", "--save", at("out.step")});
  EXPECT_EQ(outcome.err, "Reading " + rig() + "\nWriting " + at("out.step") + "\n");
}

TEST_F(CliTest, QuietMeansNoProgress) {
  EXPECT_EQ(runProgram({"tree", rig(), "--quiet"}).err, "");
}

}  // namespace
}  // namespace tests
