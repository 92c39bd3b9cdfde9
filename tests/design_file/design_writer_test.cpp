// Designs that are written are read back as they were.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <sstream>

#include "host/design_file/design_file.h"
#include "tests/design_file/described.h"
#include "tests/support/designs.h"
#include "tests/support/temporary_folder.h"

namespace headless::design_file {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

std::shared_ptr<const model::Appearance> appearance(const std::string& name, const std::string& hex) {
  return std::make_shared<const model::Appearance>(model::Appearance{"id of " + name, name, model::colourFromHex(hex)});
}

class DesignWriter : public ::testing::Test {
 protected:
  std::unique_ptr<model::Design> afterRoundTrip() {
    write(*design, file);
    return read(file);
  }

  void expectUnchanged() {
    const auto result = afterRoundTrip();
    EXPECT_EQ(tests::described(*result), tests::described(*design));
  }

  model::Body& base() { return tests::bodyNamed(*design, "Machine", "Base"); }

  std::string contentOfFile() const {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
  }

  std::string messageOfWriting() {
    try {
      write(*design, file);
    } catch (const files::Error& error) {
      return error.what();
    }
    return "";
  }

  tests::TemporaryFolder folder;
  std::filesystem::path file = folder.path() / "out.design.json";
  std::unique_ptr<model::Design> design = tests::machine();
};

TEST_F(DesignWriter, KeepsStructureNamesAndCounters) {
  design->name = "Name of its own \"ä\"";
  expectUnchanged();
}

TEST_F(DesignWriter, KeepsCountersThatAreNotInOrder) {
  model::Component& frame = tests::componentNamed(*design, "Frame");
  model::Component& bolt = tests::componentNamed(*design, "Bolt");
  frame.instances[1]->counter = 7;
  design->root().instances[2]->counter = 1;
  bolt.uses = 7;
  expectUnchanged();
}

TEST_F(DesignWriter, KeepsPlacementsToTheLastDigit) {
  design->root().instances[0]->placement = {0.1, -1.0 / 3.0, 1e-300, 12345.678, 0, 1, 0, -0.0, 2.0 / 7.0, 0, 1, 1e17};
  expectUnchanged();
}

TEST_F(DesignWriter, KeepsLooksOfBodiesFacesAndOccurrences) {
  const auto red = appearance("Red", "#FF0000");
  base().appearance = red;
  base().faces[1]->appearance = appearance("Glass", "#11223344");
  tests::bodyNamed(*design, "Bolt", "Head").faces[0]->appearance = red;
  tests::occurrenceAt(*design, "Frame:2+Bolt:1").appearance = red;
  tests::occurrenceAt(*design, "Frame:1").appearance = appearance("Red", "#FF0000");
  expectUnchanged();
}

TEST_F(DesignWriter, KeepsWhatSurfacesAreLike) {
  const auto chrome = std::make_shared<model::Appearance>(
      model::Appearance{"chrome", "Chrome", {200, 200, 210}, model::Surface::Metal, 1.0 / 7.0, false});
  const auto glass = std::make_shared<model::Appearance>(
      model::Appearance{"glass", "Glass", {0, 0, 0, 40}, model::Surface::Transparent, std::nullopt, true});
  base().appearance = chrome;
  base().faces[0]->appearance = glass;
  expectUnchanged();
}

TEST_F(DesignWriter, KeepsAppearancesThatWereCopiedIntoTheDesign) {
  const auto used = std::make_shared<model::Appearance>(model::Appearance{"used", "Used", {1, 2, 3}});
  const auto unused = std::make_shared<model::Appearance>(model::Appearance{"unused", "Unused", {4, 5, 6}});
  base().appearance = used;
  design->appearances = {unused, used};
  expectUnchanged();
  const auto result = afterRoundTrip();
  EXPECT_EQ(tests::bodyNamed(*result, "Machine", "Base").appearance, result->appearances.at(1));
}

TEST_F(DesignWriter, KeepsLooksInTheOwnTreesOfComponents) {
  tests::componentNamed(*design, "Frame").occurrences()[1]->appearance = appearance("Blue", "#0000FF");
  expectUnchanged();
  EXPECT_TRUE(afterRoundTrip()->hasNativeTrees);
}

TEST_F(DesignWriter, MakesNoTreesOfItsOwn) {
  write(*design, file);
  EXPECT_FALSE(design->hasTrees);
  EXPECT_FALSE(read(file)->hasTrees);
}

TEST_F(DesignWriter, KeepsMaterialsWithAllThatIsInThem) {
  model::Material material;
  material.id = "special";
  material.name = "Special";
  material.appearance = appearance("Shine", "#ABCDEF");
  material.properties = {model::densityProperty(1234.5678901234567),
                         {"thermal_Class", "Class", std::string("B \u00b0"), ""},
                         {"count", "Count", 3.0, "pieces"}};
  const auto special = std::make_shared<const model::Material>(std::move(material));
  base().material = special;
  base().appearance = special->appearance;
  tests::componentNamed(*design, "Frame").material = special;
  tests::bodyNamed(*design, "Bolt", "Head").material =
      model::makeMaterial("Steel", 7850.0, model::defaultMaterial()->appearance);
  expectUnchanged();
}

TEST_F(DesignWriter, KeepsTheDefaultMaterialAndItsAppearanceAsWhatTheyAre) {
  tests::componentNamed(*design, "Frame").material = model::defaultMaterial();
  base().appearance = model::defaultMaterial()->appearance;
  const auto result = afterRoundTrip();
  EXPECT_EQ(tests::componentNamed(*result, "Frame").material, model::defaultMaterial());
  EXPECT_EQ(tests::bodyNamed(*result, "Machine", "Base").material, model::defaultMaterial());
  EXPECT_EQ(tests::bodyNamed(*result, "Machine", "Base").appearance, model::defaultMaterial()->appearance);
  EXPECT_EQ(tests::componentNamed(*result, "Plate").material, nullptr);
}

TEST_F(DesignWriter, WritesWhatItReadToTheLastByte) {
  base().appearance = appearance("Red", "#FF0000");
  tests::occurrenceAt(*design, "Frame:2+Bolt:1").appearance = appearance("Blue", "#0000FF");
  write(*design, file);
  const std::string first = contentOfFile();
  write(*read(file), file);
  EXPECT_EQ(contentOfFile(), first);
}

TEST_F(DesignWriter, TakesDeepAndWideAssemblies) {
  design = tests::chainDesign(3000);
  design->root().allOccurrences().back()->appearance = appearance("Red", "#FF0000");
  expectUnchanged();
  design = tests::flatDesign(3000);
  design->root().allOccurrences().back()->appearance = appearance("Red", "#FF0000");
  expectUnchanged();
}

TEST_F(DesignWriter, WritesUnderNamesOfAnyAlphabet) {
  file = folder.path() / std::filesystem::u8path("Pumpe \u00e4 \u6cf5.design.json");
  expectUnchanged();
}

TEST_F(DesignWriter, RefusesNamesThatAreNotUtf8) {
  base().name = "\xff";
  EXPECT_THAT(messageOfWriting(), AllOf(HasSubstr("out.design.json"), HasSubstr("not UTF-8")));
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(DesignWriter, RefusesNumbersThatAreNone) {
  design->root().instances[2]->placement[3] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(messageOfWriting(), HasSubstr("the placement of \"Bolt:2\" is infinite or none"));
  design->root().instances[2]->placement[3] = 0;
  base().material = model::makeMaterial("Odd", std::numeric_limits<double>::infinity(), appearance("A", "#000000"));
  EXPECT_THAT(messageOfWriting(), HasSubstr("the property \"Density\" is infinite or none"));
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(DesignWriter, KeepsAnEarlierFileWhenTheDesignIsRefused) {
  write(*design, file);
  const std::string first = contentOfFile();
  base().name = "\xff";
  EXPECT_NE(messageOfWriting(), "");
  EXPECT_EQ(contentOfFile(), first);
}

TEST_F(DesignWriter, SaysWhyItCannotWrite) {
  file = folder.path() / "none" / "out.design.json";
  EXPECT_THAT(messageOfWriting(), AllOf(HasSubstr("does not exist"), HasSubstr("Create it")));
}

TEST_F(DesignWriter, TellsProgress) {
  std::vector<std::pair<std::string, double>> told;
  const files::Progress progress = [&](const std::string& phase, double fraction) {
    told.emplace_back(phase, fraction);
  };
  write(*design, file, progress);
  read(file, {}, progress);
  EXPECT_THAT(told, ::testing::ElementsAre(std::pair("writing", 0.0), std::pair("writing", 1.0),
                                           std::pair("reading", 0.0), std::pair("reading", 1.0)));
}

}  // namespace
}  // namespace headless::design_file
