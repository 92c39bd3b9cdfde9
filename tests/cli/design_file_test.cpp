// The program without a geometry kernel: everything but geometry is done on design files.
#include "host/design_file/design_file.h"

#include "tests/cli/demo_steps.h"
#include "tests/cli/program_fixture.h"
#include "tests/support/designs.h"

namespace tests {
namespace {

using namespace headless;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

std::shared_ptr<const model::Appearance> lookOfColour(const char* hex) {
  return model::makeColourAppearance(model::colourFromHex(hex));
}

class DesignFileProgram : public ProgramTest {
 protected:
  DesignFileProgram() : ProgramTest(Program::Plain), machineFile(at("machine.design.json")) {
    const auto design = machine();
    bodyNamed(*design, "Bolt", "Head").appearance = lookOfColour("#00FF00");
    design_file::write(*design, machineFile);
  }

  /// The design of tests/support/designs.h with green heads.
  const std::string machineFile;
};

TEST_F(DesignFileProgram, ShowsTheTree) {
  EXPECT_EQ(succeed({"tree", machineFile}),
            "Object           Shows                     From      Material\n"
            "Machine                                              Steel, 7850 kg/m3\n"
            "├─ Base          #9A9DA0  Steel - Satin    material  Steel, 7850 kg/m3\n"
            "├─ Frame:1-2 ×2\n"
            "│  ├─ Plate:1                                        Steel, 7850 kg/m3\n"
            "│  │  └─ Plate1  #9A9DA0  Steel - Satin    material  Steel, 7850 kg/m3\n"
            "│  └─ Bolt:1                                         Steel, 7850 kg/m3\n"
            "│     ├─ Shank   #9A9DA0  Steel - Satin    material  Steel, 7850 kg/m3\n"
            "│     └─ Head    #00FF00  Opaque(0,255,0)  own       Steel, 7850 kg/m3\n"
            "└─ Bolt:2                                            Steel, 7850 kg/m3\n"
            "   ├─ Shank      #9A9DA0  Steel - Satin    material  Steel, 7850 kg/m3\n"
            "   └─ Head       #00FF00  Opaque(0,255,0)  own       Steel, 7850 kg/m3\n"
            "\n"
            "4 components, 7 occurrences, 9 bodies, 17 faces\n");
}

TEST_F(DesignFileProgram, ShowsTheDialog) {
  EXPECT_THAT(succeed({"dialog", machineFile, "--filter", "body", "--select", "*Bolt:?/Head"}),
              AllOf(HasSubstr("3 picked"), HasSubstr("Opaque(0,255,0) - overriden appearance.")));
}

TEST_F(DesignFileProgram, KeepsNamesOfAppearancesThatItApplies) {
  succeed({"apply", machineFile, "--filter", "component", "--select", "Frame:2+Bolt:1", "--appearance",
           "RAL 3000 Flame red", "--answer", "no", "--save", at("out.design.json")});
  const std::string tree = succeed({"tree", at("out.design.json")});
  EXPECT_THAT(tree, ::testing::ContainsRegex("Bolt:1 +#A72920  RAL 3000 Flame red +own"));
  EXPECT_THAT(tree, HasSubstr("#00FF00  Opaque(0,255,0)"));
}

TEST_F(DesignFileProgram, KnowsMaterialsOfTheLibrariesAgain) {
  const auto assign = [&](const std::string& from, const std::string& to) {
    return succeed({"apply", from, "--filter", "body", "--select", "Base", "--material", "Brass C26000",
                    "--set-appearance-by-material", "--save", to});
  };
  EXPECT_THAT(assign(machineFile, at("out.design.json")), HasSubstr("Applied"));
  EXPECT_THAT(succeed({"tree", at("out.design.json")}),
              ::testing::ContainsRegex("Base .*Brass - Polished .*Brass C26000"));
  EXPECT_THAT(assign(at("out.design.json"), at("again.design.json")), HasSubstr("Nothing changed"));
  EXPECT_EQ(content("again.design.json"), content("out.design.json"));
}

TEST_F(DesignFileProgram, RemovesAppearances) {
  succeed({"clear", machineFile, "--filter", "body", "--select", "*", "--save", at("out.design.json")});
  EXPECT_THAT(succeed({"tree", at("out.design.json")}), Not(HasSubstr("#00FF00")));
}

TEST_F(DesignFileProgram, CopiesByConvert) {
  succeed({"convert", machineFile, at("Kopie ä 泵.design.json")});
  EXPECT_EQ(content("Kopie ä 泵.design.json"), content("machine.design.json"));
}

/// The assembly that the demo is made for, as far as the demo picks in it.
std::unique_ptr<model::Design> demoAssembly() {
  auto design = std::make_unique<model::Design>("as1");
  const auto part = [&](const char* name, const char* hex) -> model::Component& {
    model::Component& component = design->addComponent(name);
    model::Body& body = component.addBody("Body1");
    body.addFace();
    body.appearance = lookOfColour(hex);
    return component;
  };
  model::Component& bolt = part("bolt", "#0000FF");
  model::Component& bracket = part("l-bracket", "#00FF00");
  model::Component& bracketAssembly = design->addComponent("l-bracket-assembly");
  bracketAssembly.addInstance(bolt);
  bracketAssembly.addInstance(bracket);
  model::Component& rodAssembly = design->addComponent("rod-assembly");
  rodAssembly.addInstance(part("rod", "#FF0000"));
  design->root().addInstance(rodAssembly);
  design->root().addInstance(part("plate", "#C7C700"));
  design->root().addInstance(bracketAssembly);
  design->root().addInstance(bracketAssembly);
  return design;
}

TEST_F(DesignFileProgram, PlaysTheDemo) {
  design_file::write(*demoAssembly(), at("as1.design.json"));
  const std::string shown =
      succeed({"demo", at("as1.design.json"), "--save", at("demo.design.json"), "--addin", copyAddIn()});
  expectEveryStep(shown);
  EXPECT_THAT(shown, HasSubstr("Tintora_UsersGuide.pdf is not in the add-in's folder, so nothing opens."));
  EXPECT_THAT(shown, Not(HasSubstr("Opened with")));
  EXPECT_THAT(succeed({"tree", at("demo.design.json")}), HasSubstr("RAL 5015 Sky blue"));
}

TEST_F(DesignFileProgram, OpensTheGuideInTheDemo) {
  design_file::write(*demoAssembly(), at("as1.design.json"));
  const std::string addIn = copyAddIn();
  fill("addin/Tintora_UsersGuide.pdf", "%PDF-1.7\n");
  const std::string shown =
      succeed({"demo", at("as1.design.json"), "--save", at("demo.design.json"), "--addin", addIn});
  expectEveryStep(shown);
  EXPECT_THAT(shown, HasSubstr("\nOpened with the program for such files: Tintora_UsersGuide.pdf\n"));
  EXPECT_THAT(shown, Not(HasSubstr("nothing opens")));
}

TEST_F(DesignFileProgram, DrawsPicturesIntoFilesOfAnyAlphabet) {
  succeed({"dialog", machineFile, "--picture", at("Dialog ä 泵.svg"), "--toolbar-picture", at("Leiste ä 泵.svg")});
  succeed({"apply", machineFile, "--filter", "body", "--select", "Base", "--appearance", "RAL 3000 Flame red", "--save",
           at("out.design.json"), "--picture", at("Danach ä 泵.svg")});
  for (const char* picture : {"Dialog ä 泵.svg", "Leiste ä 泵.svg", "Danach ä 泵.svg"}) {
    EXPECT_THAT(content(picture), ::testing::StartsWith("<svg")) << picture;
  }
}

TEST_F(DesignFileProgram, SaysHowToComeByADesignFile) {
  fill("pump.step", "ISO-10303-21;");
  EXPECT_THAT(fail(1, {"tree", at("pump.step")}),
              AllOf(HasSubstr("no geometry kernel"), HasSubstr("tintora-host convert pump.step pump.design.json")));
}

TEST_F(DesignFileProgram, WritesDesignFilesOnly) {
  EXPECT_THAT(fail(2, {"convert", machineFile, at("out.step")}), HasSubstr("the name must end in .design.json"));
  EXPECT_THAT(filesInFolder(), ElementsAre("machine.design.json"));
}

TEST_F(DesignFileProgram, HasNoPicturesAndNoFilesForViewers) {
  EXPECT_THAT(succeed({"--help"}), AllOf(HasSubstr("convert"), Not(HasSubstr("render "))));
  EXPECT_THAT(fail(2, {"render", machineFile, "--png", at("out.png")}), HasSubstr("There is no command \"render\""));
  EXPECT_THAT(fail(2, {"clear", machineFile, "--filter", "body", "--select", "*", "--save", at("out.design.json"),
                       "--glb", at("out.glb")}),
              HasSubstr("--glb"));
}

TEST_F(DesignFileProgram, SaysWhereAFileIsWrong) {
  fill("wrong.design.json", R"({"format": "headless design", "version": 1, "components": [{"name": 7}]})");
  EXPECT_THAT(fail(1, {"tree", at("wrong.design.json")}),
              HasSubstr(at("wrong.design.json") + ": components[0].name: should be a text"));
}

}  // namespace
}  // namespace tests
