// What takes the geometry kernel: STEP files in and out, files for viewers, pictures of assemblies.
#include <nlohmann/json.hpp>
#include <set>

#include "host/cli/geometry.h"
#include "tests/cli/assemblies.h"
#include "tests/cli/native_fixture.h"
#include "tests/step/step_files.h"

namespace tests {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST_F(NativeCliTest, SavedAlsoForViewers) {
  succeed(applying({"--filter", "body", "--select", "*", "--appearance", "RAL 3000 Flame red", "--answer", "no",
                    "--glb", at("out.glb")}));
  EXPECT_THAT(content("out.glb"), StartsWith("glTF"));
}

TEST_F(NativeCliTest, ADamagedAssemblyIsNeitherReadNorSavedAsIfItWereWhole) {
  std::string text = content("rig.step");
  const std::string word = "CLOSED_SHELL";
  text.replace(text.find(word), word.size(), "CLOSED_SHEL");
  fill("rig.step", text);
  const auto isTold = AllOf(HasSubstr("tintora-host: Cannot read \"" + rig() + "\": the file is damaged at #"),
                            HasSubstr("(unknown type CLOSED_SHEL)"), HasSubstr("Copy or export it again."));
  EXPECT_THAT(fail(1, {"tree", rig()}), isTold);
  EXPECT_THAT(fail(1, applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red"})),
              isTold);
  EXPECT_FALSE(std::filesystem::exists(saved()));
}

TEST_F(NativeCliTest, WhenTheSecondFileIsAFolderNothingIsDone) {
  std::filesystem::create_directory(at("out.glb"));
  EXPECT_EQ(fail(1, applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--glb",
                              at("out.glb")})),
            "tintora-host: Cannot write \"" + at("out.glb") + "\": that is a folder. Give a file name.\n");
  EXPECT_THAT(filesInFolder(), ElementsAre("out.glb", "rig.step"));
}

TEST_F(NativeCliTest, AFileThatIsInTheWayIsReplacedAsAWhole) {
  fill("out.step", "something else");
  succeed(applying({"--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red"}));
  EXPECT_THAT(content("out.step"), StartsWith("ISO-10303-21;"));
  EXPECT_THAT(filesInFolder(), ElementsAre(assemblyName("out"), assemblyName("rig")));
}

TEST_F(NativeCliTest, ARealAssemblyIsPaintedAndReadBack) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  succeed({"apply", file.string(), "--filter", "body", "--select", "*+l-bracket:*/*", "--appearance",
           "RAL 3000 Flame red", "--save", at("red.step")});
  const auto before = nlohmann::json::parse(json(file.string()));
  const auto after = nlohmann::json::parse(json(at("red.step")));
  EXPECT_EQ(after["counts"], before["counts"]);
  for (const auto& top : after["occurrences"]) {
    for (const auto& occurrence : top["occurrences"]) {
      if (occurrence["component"] == "l-bracket") {
        EXPECT_EQ(occurrence["bodies"][0]["own"]["colour"], "#A72920");
      }
    }
  }
  EXPECT_EQ(after["occurrences"][0], before["occurrences"][0]);
}

TEST_F(NativeCliTest, ARealAssemblyIsClearedAndReadBack) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const std::string before = json(file.string());
  EXPECT_THAT(before, HasSubstr("\"own\": {"));
  succeed({"clear", file.string(), "--filter", "component", "--select", "*", "--save", at("plain.step")});
  const std::string after = json(at("plain.step"));
  EXPECT_THAT(after, Not(HasSubstr("\"own\": {")));
  EXPECT_EQ(nlohmann::json::parse(after)["counts"], nlohmann::json::parse(before)["counts"]);
}

TEST_F(NativeCliTest, AMaterialOfTheLibrariesIsKnownAgainInAnAssembly) {
  const std::vector<std::string> what = {
      "--filter", "body", "--select", "Base", "--material", "Brass C26000", "--set-appearance-by-material"};
  succeed(applying(what));
  const auto base = nlohmann::json::parse(json(saved()))["bodies"][0];
  EXPECT_TRUE(base["own"].is_null());
  EXPECT_EQ(base["shows"]["name"], "Brass - Polished");
  EXPECT_EQ(base["material"]["name"], "Brass C26000");
  EXPECT_EQ(base["material"]["density"], 8530);
  std::filesystem::rename(saved(), rig());
  EXPECT_THAT(succeed(applying(what)), StartsWith("Nothing changed"));
}

TEST_F(NativeCliTest, AComponentOfAnAssemblyIsPaintedInPlaceOfWhatIsInIt) {
  succeed(applying(
      {"--filter", "component", "--select", "Arm:1", "--appearance", "RAL 3000 Flame red", "--answer", "yes"}));
  const auto tree = nlohmann::json::parse(json(saved()));
  EXPECT_EQ(tree["occurrences"][0]["own"]["colour"], "#A72920");
  EXPECT_TRUE(tree["occurrences"][1]["own"].is_null());
  EXPECT_EQ(tree["bodies"][0]["own"]["colour"], "#FF0000");
}

TEST_F(NativeCliTest, FacesAndBodiesOfAnAssemblyArePaintedAndClearedOneByOne) {
  succeed(applying({"--filter", "face", "--select", "Base/Face2", "--appearance", "RAL 3000 Flame red"}));
  const auto painted = nlohmann::json::parse(json(saved()))["bodies"][0];
  EXPECT_EQ(painted["faces"][0]["source"], "body");
  EXPECT_EQ(painted["faces"][1]["source"], "face");
  EXPECT_EQ(painted["faces"][1]["shows"]["colour"], "#A72920");
  succeed({"clear", saved(), "--filter", "body", "--select", "Base", "--save", at("plain.step")});
  const auto tree = nlohmann::json::parse(json(at("plain.step")));
  EXPECT_TRUE(tree["bodies"][0]["own"].is_null());
  EXPECT_EQ(tree["occurrences"][0]["occurrences"][0]["bodies"][0]["own"]["colour"], "#00FF00");
}

TEST_F(NativeCliTest, TheDialogShowsWhatAnAssemblyIsMadeOf) {
  EXPECT_THAT(succeed({"dialog", rig(), "--filter", "body", "--select", "Base"}),
              HasSubstr("Physical material: Steel;  Density: 7850 kg.m-3"));
}

TEST(Geometry, IsReadAndWrittenWithProgress) {
  const TemporaryFolder folder;
  headless::model::Design design("Rig");
  addRigBody(design.root(), "Base", 30.0);
  std::set<std::string> phases;
  const auto progress = [&](const std::string& phase, double /*fraction*/) { phases.insert(phase); };
  headless::cli::writeStep(design, folder.path() / "rig.step", progress);
  EXPECT_THAT(phases, Contains("writing"));
  phases.clear();
  const auto read = headless::cli::readStep(folder.path() / "rig.step", {}, progress);
  EXPECT_THAT(phases, ElementsAre("reading", "translating"));
  phases.clear();
  headless::cli::writeGlb(*read, folder.path() / "rig.glb", progress);
  EXPECT_THAT(phases, Contains("meshing"));
}

TEST_F(NativeCliTest, TreeOfARealAssembly) {
  WITH_STEP_FILE(file, "as1-tu-203.stp");
  const std::string tree = succeed({"tree", file.string()});
  EXPECT_THAT(tree, HasSubstr("l-bracket-assembly:1-2 ×2"));
  EXPECT_THAT(tree, HasSubstr("nut-bolt-assembly:1-3 ×3"));
  EXPECT_THAT(tree, EndsWith("9 components, 27 occurrences, 18 bodies, 160 faces\n"));
}

TEST_F(NativeCliTest, RenderIsACommandToo) {
  EXPECT_THAT(succeed({"--help"}), HasSubstr("render "));
  EXPECT_THAT(fail(2, {"quux"}), HasSubstr("there are tree, dialog, render, apply, clear, demo, convert"));
}

TEST_F(NativeCliTest, RenderDoesNotDrawOntoItsInput) {
  EXPECT_THAT(fail(2, {"render", rig(), "--png", rig()}), HasSubstr("is the file that is read"));
}

TEST_F(NativeCliTest, RenderDrawsPngsOnlyAndNamesThemSo) {
  EXPECT_THAT(fail(2, {"render", rig(), "--png", at("out.jpg")}), HasSubstr("out.jpg: the name must end in .png"));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

TEST_F(NativeCliTest, TheHelpOfRenderPromisesNoDesignFiles) {
  EXPECT_THAT(succeed({"render", "--help"}), AllOf(HasSubstr("a STEP file"), Not(HasSubstr("(.design.json)"))));
  EXPECT_THAT(succeed({"tree", "--help"}), HasSubstr("(.design.json)"));
}

TEST_F(NativeCliTest, RenderSaysAtOnceThatTheFolderIsNotThere) {
  EXPECT_EQ(fail(1, {"render", rig(), "--png", at("nowhere/out.png")}),
            "tintora-host: Cannot write \"" + at("nowhere/out.png") + "\": the folder \"" + at("nowhere") +
                "\" does not exist. Create it or choose another folder.\n");
}

TEST_F(NativeCliTest, RenderRefusesTinyPictures) {
  EXPECT_THAT(fail(2, {"render", rig(), "--png", at("out.png"), "--width", "3"}), HasSubstr("--width"));
}

TEST_F(NativeCliTest, NeitherAPictureNorAFileForViewersHasAnEmptyName) {
  EXPECT_THAT(fail(2, {"render", rig(), "--png", ""}), HasSubstr("--png: The name is empty; give one"));
  EXPECT_THAT(fail(2, {"clear", rig(), "--filter", "body", "--select", "*", "--save", saved(), "--glb", ""}),
              HasSubstr("--glb: The name is empty; give one"));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

TEST_F(NativeCliTest, EndingsSayWhatIsSaved) {
  const std::vector<std::string> clearing = {"clear", rig(), "--filter", "body", "--select", "*", "--save"};
  const auto clearingInto = [&](const std::vector<std::string>& outputs) {
    std::vector<std::string> arguments = clearing;
    arguments.insert(arguments.end(), outputs.begin(), outputs.end());
    return arguments;
  };
  EXPECT_THAT(fail(2, clearingInto({"out.glb"})),
              HasSubstr("--save out.glb: the name must end in .step, .stp, .p21, .design.json"));
  EXPECT_THAT(fail(2, clearingInto({saved(), "--glb", "out.step"})), HasSubstr("the name must end in .glb"));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

TEST_F(NativeCliTest, AFileForViewersIsNoneOfTheOthers) {
  EXPECT_THAT(fail(2, {"clear", rig(), "--filter", "body", "--select", "*", "--save", saved(), "--glb", at("out.glb"),
                       "--trace", at("out.glb")}),
              HasSubstr("is the file of both --glb and --trace"));
  EXPECT_THAT(filesInFolder(), ElementsAre("rig.step"));
}

}  // namespace
}  // namespace tests
