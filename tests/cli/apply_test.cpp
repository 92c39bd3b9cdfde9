#include <nlohmann/json.hpp>

#include "tests/cli/cli_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

// The colours of the shipped libraries for these names.
constexpr const char* flameRed = "#A72920";
constexpr const char* skyBlue = "#007CB0";

nlohmann::json parsed(const std::string& text) {
  return nlohmann::json::parse(text);
}

TEST_F(CliTest, AnAppearanceIsAppliedToTheMatchingBodiesOnly) {
  EXPECT_EQ(succeed(applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red"})),
            "Applied appearance \"RAL 3000 Flame red\" to 1 body\nSaved " + saved() + "\n");
  const auto tree = parsed(json(saved()));
  EXPECT_EQ(tree["bodies"][0]["own"]["colour"], flameRed);
  EXPECT_EQ(tree["occurrences"][0]["occurrences"][0]["bodies"][0]["own"]["colour"], "#00FF00");
  EXPECT_TRUE(tree["occurrences"][0]["bodies"][0]["own"].is_null());
}

class ApplyUnderProfile : public CliTest, public WithRow<const char*> {};

TABLE(Profiles, ApplyUnderProfile, byText, {"lenient", "documented", "hostile"});

TABLE_TEST(ApplyUnderProfile, GivesTheSameFile) {
  succeed(applying({"--filter", "component", "--select", "Arm:*", "--appearance", "RAL 5015 Sky blue", "--answer",
                    "yes", "--profile", row()}));
  const auto tree = parsed(json(saved()));
  for (const auto& arm : tree["occurrences"]) {
    EXPECT_EQ(arm["own"]["colour"], skyBlue);
    EXPECT_EQ(arm["bodies"][0]["source"], "occurrence");
    const auto& shaft = arm["occurrences"][0]["bodies"][0];
    EXPECT_TRUE(shaft["own"].is_null());
    EXPECT_EQ(shaft["faces"][1]["shows"]["colour"], skyBlue);
  }
}

TABLE_TEST(ApplyUnderProfile, AMaterialKeepsTheLooksThatWereApplied) {
  succeed(applying({"--filter", "body", "--select", "*", "--material", "Brass C26000", "--profile", row()}));
  const auto tree = parsed(json(saved()));
  EXPECT_EQ(tree["bodies"][0]["material"]["name"], "Brass C26000");
  EXPECT_EQ(tree["bodies"][0]["own"]["colour"], "#FF0000");
  EXPECT_EQ(tree["occurrences"][0]["bodies"][0]["shows"]["name"], "Brass - Polished");
  EXPECT_EQ(tree["occurrences"][0]["occurrences"][0]["bodies"][0]["faces"][1]["shows"]["colour"], "#0000FF");
}

TABLE_TEST(ApplyUnderProfile, AMaterialSetsTheAppearanceWhenAsked) {
  succeed(applying({"--filter", "body", "--select", "Base", "--material", "Brass C26000",
                    "--set-appearance-by-material", "--profile", row()}));
  const auto base = parsed(json(saved()))["bodies"][0];
  EXPECT_TRUE(base["own"].is_null());
  EXPECT_EQ(base["shows"]["name"], "Brass - Polished");
  EXPECT_EQ(base["material"]["density"], 8530);
}

TABLE_TEST(ApplyUnderProfile, AnAppearanceGoesOnTopOfAMaterialThatSetsTheAppearance) {
  EXPECT_EQ(
      succeed(applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--material",
                        "Brass C26000", "--set-appearance-by-material", "--profile", row()})),
      "Applied appearance \"RAL 3000 Flame red\" and material \"Brass C26000\" to 1 body\nSaved " + saved() + "\n");
  const auto base = parsed(json(saved()))["bodies"][0];
  EXPECT_EQ(base["own"]["colour"], flameRed);
  EXPECT_EQ(base["material"]["name"], "Brass C26000");
}

TEST_F(CliTest, AnAppearanceThatWasPutBackAfterAMaterialIsPointedOut) {
  EXPECT_THAT(succeed(applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red",
                                "--material", "Brass C26000"})),
              AllOf(HasSubstr("Applied appearance \"RAL 3000 Flame red\" and material \"Brass C26000\" to 1 body"),
                    HasSubstr("Note: 1 body kept another appearance (Base)")));
}

TEST_F(CliTest, ApplyingTheSameTwiceSaysThatNothingChanged) {
  const std::vector<std::string> what = {"--filter", "body", "--select", "*/Beam", "--material", "Brass C26000"};
  succeed(applying(what));
  std::filesystem::rename(saved(), rig());
  EXPECT_THAT(succeed(applying(what)),
              StartsWith("Nothing changed: 2 bodies had it already, material \"Brass C26000\""));
}

TEST_F(CliTest, TheInputIsNotTouched) {
  const std::string before = content(assemblyName("rig"));
  succeed(applying({"--filter", "body", "--select", "*", "--appearance", "RAL 3000 Flame red", "--answer", "yes"}));
  EXPECT_EQ(content(assemblyName("rig")), before);
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("out"), assemblyName("rig")));
}

struct Answer {
  const char* name;
  const char* word;
  const char* shown;
  const char* faceColour;
};

class AnsweredQuestion : public CliTest, public WithRow<Answer> {};

TABLE(Answers, AnsweredQuestion, byName, {{"Yes", "yes", "Yes", flameRed}, {"No", "no", "No", "#0000FF"}});

TABLE_TEST(AnsweredQuestion, DecidesAboutTheFaces) {
  EXPECT_THAT(succeed(applying({"--filter", "body", "--select", "Arm:1+*", "--appearance", "RAL 3000 Flame red",
                                "--answer", row().word})),
              StartsWith(std::string("Asked: \"Remove appearances applied to faces?\" ") + row().shown));
  const auto shaft = parsed(json(saved()))["occurrences"][0]["occurrences"][0]["bodies"][0];
  EXPECT_EQ(shaft["own"]["colour"], flameRed);
  EXPECT_EQ(shaft["faces"][1]["shows"]["colour"], row().faceColour);
}

TEST_F(CliTest, AQuestionThatNobodyAnswersIsAFailureAndNothingIsSaved) {
  const Outcome outcome =
      run(applying({"--filter", "component", "--select", "Arm:1", "--appearance", "RAL 3000 Flame red", "--quiet"}));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, AllOf(HasSubstr("\"Remove appearances applied to bodies & faces?\""),
                                 HasSubstr("--answer yes or --answer no"), HasSubstr("Nothing was saved")));
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("rig")));
}

struct Missing {
  const char* name;
  std::vector<std::string> arguments;
  const char* message;
};

const std::vector<Missing> missingThings = {
    {"Appearance",
     {"--filter", "body", "--select", "*", "--appearance", "RAL 3000 Flam red"},
     "the library RAL_COLORS has no appearance \"RAL 3000 Flam red\"; did you mean \"RAL 3000 Flame red\""},
    {"AppearanceLikeNoOther",
     {"--filter", "body", "--select", "*", "--appearance", "xyzzyxyzzy"},
     "there are RAL 1000 Green beige, "},
    {"AppearanceLibrary",
     {"--filter", "body", "--select", "*", "--appearance", "X", "--appearance-library", "RAL_COLOURS"},
     "there is no library of appearances called \"RAL_COLOURS\"; did you mean \"RAL_COLORS\"?"},
    {"Material",
     {"--filter", "body", "--select", "*", "--material", "Bras C26000"},
     "the library Engineering materials has no material \"Bras C26000\"; did you mean \"Brass C26000\""},
    {"MaterialLibrary",
     {"--filter", "body", "--select", "*", "--material", "X", "--material-library", "Engineering"},
     "there is no library of materials called \"Engineering\"; did you mean \"Engineering materials\"?"},
    {"Body",
     {"--filter", "body", "--select", "Arm:1/Baem", "--appearance", "RAL 3000 Flame red"},
     "no body of Rig matches \"Arm:1/Baem\"; did you mean \"Arm:1/Beam\""},
    {"BodyInAPattern",
     {"--filter", "body", "--select", "*Baem*", "--appearance", "RAL 3000 Flame red"},
     "no body of Rig matches \"*Baem*\"; did you mean \"Arm:1/Beam\" or \"Arm:2/Beam\"?"},
    {"OccurrenceInAPattern",
     {"--filter", "component", "--select", "*+Pni:[1-9]", "--appearance", "RAL 3000 Flame red"},
     "no component of Rig matches \"*+Pni:[1-9]\"; did you mean \"Arm:1+Pin:1\" or \"Arm:2+Pin:1\"?"},
    {"NameOnManyPaths",
     {"--filter", "face", "--select", "Amr:?/*", "--appearance", "RAL 3000 Flame red"},
     "did you mean \"Arm:1/Beam/Face1\" or \"Arm:1/Beam/Face2\" or \"Arm:1/Beam/Face3\"?"},
    {"ObjectOfAnotherKind",
     {"--filter", "body", "--select", "Arm:1", "--appearance", "RAL 3000 Flame red"},
     "it matches 1 component, for which there is --filter component"},
    {"OneOfSeveralPatterns",
     {"--filter", "body", "--select", "Base", "Leg:*", "--appearance", "RAL 3000 Flame red"},
     "no body of Rig matches \"Leg:*\"; there are Base, Arm:1/Beam, Arm:1+Pin:1/Shaft, Arm:2/Beam and 1 more"},
};

class MissingThing : public CliTest, public WithRow<Missing> {};

TABLE(Table, MissingThing, byName, missingThings);

TABLE_TEST(MissingThing, IsAFailureThatNamesTheFileAndWhatIsNear) {
  std::vector<std::string> arguments = applying(row().arguments);
  arguments.emplace_back("--quiet");
  EXPECT_THAT(fail(1, arguments), AllOf(HasSubstr(rig() + ": "), HasSubstr(row().message)));
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("rig")));
}

TEST_F(CliTest, TheDialogIsDrawnAfterApply) {
  succeed(applying(
      {"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--picture", at("dialog.svg")}));
  EXPECT_THAT(content("dialog.svg"),
              AllOf(HasSubstr(">1 selected<"), HasSubstr("font-weight=\"bold\">RAL 3000 Flame red<")));
}

TEST_F(CliTest, TheLastQuestionIsDrawn) {
  succeed(applying({"--filter", "component", "--select", "Arm:1", "--appearance", "RAL 3000 Flame red", "--answer",
                    "yes", "--question-picture", at("question.svg")}));
  EXPECT_THAT(content("question.svg"), AllOf(HasSubstr("bodies &amp; faces?"), HasSubstr(">Yes<"), HasSubstr(">No<")));
}

TEST_F(CliTest, WithoutQuestionThereIsNoneToDraw) {
  const Outcome outcome = run(applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red",
                                        "--question-picture", at("question.svg")}));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err, HasSubstr("The add-in asked nothing"));
  EXPECT_FALSE(exists("question.svg"));
  EXPECT_FALSE(exists(assemblyName("out")));
}

}  // namespace
}  // namespace tests
