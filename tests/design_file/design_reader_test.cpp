// Design files as people write them, and what is said about those that are wrong.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/design_file/design_file.h"
#include "host/model/resolution.h"
#include "tests/support/designs.h"
#include "tests/support/tables.h"
#include "tests/support/temporary_folder.h"

namespace headless::design_file {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

/// A design file of the current version with these members.
std::string designText(const std::string& members) {
  return "{\"format\": \"headless design\", \"version\": 1, " + members + "}";
}

TEST(DesignReader, WhatIsLeftOutIsTheUsual) {
  const auto design = parse(designText(R"("components": [
      {"name": "Pump", "bodies": [{"name": "Lid", "faces": [null]}], "instances": [{"component": 1}, {"component": 1}]},
      {"name": "Bolt"}])"),
                            "pump");
  EXPECT_EQ(design->name, "Pump");
  EXPECT_EQ(design->root().bodies[0]->material, model::defaultMaterial());
  EXPECT_EQ(design->root().bodies[0]->appearance, nullptr);
  EXPECT_EQ(design->root().bodies[0]->faces.size(), 1U);
  EXPECT_EQ(design->root().instances[1]->name(), "Bolt:2");
  EXPECT_EQ(design->root().instances[1]->placement, model::identityPlacement);
}

TEST(DesignReader, LooksShowUpWhereTheyWereApplied) {
  const auto design = parse(designText(R"("appearances": [{"name": "Flame red", "colour": "#A72920"}],
      "components": [{"name": "Pump", "instances": [{"component": 1}, {"component": 1}]},
                     {"name": "Bolt", "bodies": [{"name": "Shank"}]}],
      "looks": [{"path": [1], "appearance": 0}])"),
                            "pump");
  const model::Body& shank = tests::bodyNamed(*design, "Bolt", "Shank");
  EXPECT_EQ(model::lookOf(shank, &tests::occurrenceAt(*design, "Bolt:2")).appearance->id, "flame-red");
  EXPECT_EQ(model::lookOf(shank, &tests::occurrenceAt(*design, "Bolt:1")).source, model::Source::Material);
}

TEST(DesignReader, MaterialsThatAreKnownAreTakenFromThereWithTheirAppearances) {
  const auto shine = std::make_shared<const model::Appearance>(model::Appearance{"shine", "Shine", {1, 2, 3}});
  const auto known = model::makeMaterial("Brass", 8500, shine);
  const auto textWith = [](const std::string& density) {
    return designText(R"("appearances": [{"name": "Shine", "colour": "#010203"}],
        "materials": [{"name": "Brass", "appearance": 0, "properties":
            [{"id": "structural_Density", "name": "Density", "value": )" +
                      density + R"(, "unit": "kg/m^3"}]}],
        "components": [{"name": "Pump", "bodies": [{"name": "Lid", "material": 0, "appearance": 0}]}])");
  };
  const model::MaterialLookup lookup = [&](const std::string& name) { return name == "Brass" ? known : nullptr; };

  const auto same = parse(textWith("8500"), "pump", lookup);
  EXPECT_EQ(same->root().bodies[0]->material, known);
  EXPECT_EQ(same->root().bodies[0]->appearance, shine);

  const auto other = parse(textWith("8400"), "pump", lookup);
  EXPECT_NE(other->root().bodies[0]->material, known);
  EXPECT_EQ(*model::densityOf(*other->root().bodies[0]->material), 8400);
}

TEST(DesignReader, AppearancesOfTheDesignAreNotReplacedByThoseOfALibrary) {
  const auto shine = std::make_shared<const model::Appearance>(model::Appearance{"shine", "Shine", {1, 2, 3}});
  const auto known = model::makeMaterial("Brass", 8500, shine);
  const auto design = parse(designText(R"("appearances": [{"name": "Shine", "colour": "#010203"}],
      "designAppearances": [0],
      "materials": [{"name": "Brass", "appearance": 0, "properties":
          [{"id": "structural_Density", "name": "Density", "value": 8500, "unit": "kg/m^3"}]}],
      "components": [{"name": "Pump", "bodies": [{"name": "Lid", "material": 0}]}])"),
                            "pump", [&](const std::string&) { return known; });
  EXPECT_EQ(design->root().bodies[0]->material->appearance, design->appearances.at(0));
}

TEST(DesignReader, TheEndingIsKnownInAnyCase) {
  EXPECT_TRUE(hasEnding("folder/pump.design.json"));
  EXPECT_TRUE(hasEnding("Pump.Design.JSON"));
  EXPECT_FALSE(hasEnding("pump.json"));
  EXPECT_FALSE(hasEnding("pump.design.json.step"));
  EXPECT_FALSE(hasEnding(".design.json"));
}

TEST(DesignReader, SaysWhatIsWrongWithTheFileItself) {
  const tests::TemporaryFolder folder;
  const auto messageOf = [](const std::filesystem::path& file) {
    try {
      read(file);
    } catch (const files::FormatError& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_THAT(messageOf(folder.path() / "none.design.json"), HasSubstr("none.design.json: does not exist"));
  EXPECT_THAT(messageOf(folder.path()), AllOf(HasSubstr("is not a file"), HasSubstr("name a design file")));
}

struct Mistake {
  const char* name;
  std::string text;
  /// Where the mistake is said to be.
  const char* where;
  const char* message;
};

/// Components "Pump", the root, with these members, and "Bolt".
std::string pump(const std::string& members, const std::string& others = "") {
  return designText("\"components\": [{\"name\": \"Pump\"" + (members.empty() ? "" : ", " + members) +
                    "}, {\"name\": \"Bolt\"}]" + others);
}

const std::vector<Mistake> mistakes = {
    {"NothingInIt", " \n", "", "is empty"},
    {"NoJson", "{\n  \"format\": oops", "line 2, column 13", "is not valid JSON"},
    {"NotUtf8", "{\"format\": \"\xff\"}", "line 1, column 13", "is not valid JSON"},
    {"NoObject", "[1]", "", "is a list, not a design"},
    {"NoFormat", "{}", "", "has no \"format\""},
    {"AnotherFormat", R"({"format": "headless material library"})", "format", "is not \"headless design\""},
    {"NoVersion", R"({"format": "headless design"})", "", "has no \"version\""},
    {"LaterVersion", R"({"format": "headless design", "version": 2})", "version", "reads version 1"},
    {"UnknownMember", designText("\"colour\": 1"), "", "unknown entry \"colour\""},
    {"NoComponents", designText("\"name\": \"X\""), "", "has no components"},
    {"ComponentsAreNoList", designText("\"components\": {}"), "components", "should be a list"},
    {"NamelessComponent", designText("\"components\": [{}]"), "components[0]", "has no \"name\""},
    {"NameIsNoText", designText("\"components\": [{\"name\": 7}]"), "components[0].name", "should be a text"},
    {"NameUsedTwice", designText(R"("components": [{"name": "A"}, {"name": "A"}])"), "components[1].name",
     "\"A\" is used twice"},
    {"NoColour", pump("", R"(, "appearances": [{"name": "Red"}])"), "appearances[0]", "has no \"colour\""},
    {"WrongColour", pump("", R"(, "appearances": [{"name": "Red", "colour": "red"}])"), "appearances[0].colour",
     "write #RRGGBB"},
    {"WrongSurface", pump("", R"(, "appearances": [{"name": "Red", "colour": "#FF0000", "surface": "red"}])"),
     "appearances[0].surface", "\"red\" is not a kind of surface"},
    {"TooRough", pump("", R"(, "appearances": [{"name": "Red", "colour": "#FF0000", "roughness": 1.5}])"),
     "appearances[0].roughness", "is no roughness"},
    {"TextureIsNoTruth", pump("", R"(, "appearances": [{"name": "Red", "colour": "#FF0000", "texture": 1}])"),
     "appearances[0].texture", "should be true or false"},
    {"CopiedTwice", pump("", R"(, "appearances": [{"name": "Red", "colour": "#FF0000"}], "designAppearances": [0, 0])"),
     "designAppearances[1]", "\"Red\" is listed twice"},
    {"WrongProperty", pump("", R"(, "materials": [{"name": "M", "properties": [{"id": "x", "value": true}]}])"),
     "materials[0].properties[0].value", "should be a text"},
    {"NoSuchAppearance", pump("", R"(, "appearances": [{"name": "Red", "colour": "#FF0000"}],
                                       "materials": [{"name": "M", "appearance": 1}])"),
     "materials[0].appearance", "is 1; write a whole number from 0 to 0"},
    {"NoAppearances", pump(R"("bodies": [{"name": "Lid", "faces": [null, 0]}])"), "components[0].bodies[0].faces[1]",
     "\"appearances\", which is empty"},
    {"NoSuchMaterial", pump(R"("material": "brass")"), "components[0].material", "\"brass\" is not known"},
    {"NumberIsNegative", pump(R"("instances": [{"component": -1}])"), "components[0].instances[0].component", "is -1"},
    {"NumberIsBroken", pump(R"("instances": [{"component": 0.5}])"), "components[0].instances[0].component", "is 0.5"},
    {"NoSuchComponent", pump(R"("instances": [{"component": 2}])"), "components[0].instances[0].component",
     "from 0 to 1"},
    {"InItself", pump(R"("instances": [{"component": 0}])"), "components[0].instances[0].component",
     "it would contain itself"},
    {"ShortPlacement", pump(R"("instances": [{"component": 1, "placement": [1, 2]}])"),
     "components[0].instances[0].placement", "has 2 numbers; write 12"},
    {"CounterOfZero", pump(R"("instances": [{"component": 1, "counter": 0}])"), "components[0].instances[0].counter",
     "is 0"},
    {"CounterUsedTwice", pump(R"("instances": [{"component": 1, "counter": 2}, {"component": 1, "counter": 2}])"),
     "components[0].instances[1]", "is a second \"Bolt:2\""},
    {"EmptyPath", pump("", R"(, "looks": [{"path": [], "appearance": "default"}])"), "looks[0].path", "is empty"},
    {"PathToNowhere",
     pump(R"("instances": [{"component": 1}])", R"(, "looks": [{"path": [0, 0], "appearance": "default"}])"),
     "looks[0].path[1]", "\"instances\", which is empty"},
    {"TwoLooks",
     pump(R"("instances": [{"component": 1}])",
          R"(, "looks": [{"path": [0], "appearance": "default"}, {"path": [0], "appearance": "default"}])"),
     "looks[1]", "is a second look of \"Bolt:1\""},
    {"LookWithoutAppearance", pump(R"("instances": [{"component": 1}])", R"(, "looks": [{"path": [0]}])"), "looks[0]",
     "has no \"appearance\""},
};

class DesignReaderMistake : public ::testing::Test, public tests::WithRow<Mistake> {};

TABLE(Mistakes, DesignReaderMistake, tests::byName, mistakes);

TABLE_TEST(DesignReaderMistake, IsToldWithItsPlaceAndWhatToDo) {
  try {
    parse(row().text, "pump.design.json");
    FAIL() << "the file was read";
  } catch (const files::FormatError& error) {
    EXPECT_EQ(error.where, row().where);
    EXPECT_THAT(error.what(), AllOf(HasSubstr("pump.design.json"), HasSubstr(row().message)));
    EXPECT_FALSE(error.advice.empty());
  }
}

/// A design with 10 instances on each of `levels` levels: 10 to that power at the bottom.
std::string explodingDesign(int levels) {
  std::string components;
  for (int level = 0; level < levels; ++level) {
    std::string instances;
    for (int i = 0; i < 10; ++i) {
      instances += (i == 0 ? "" : ", ") + ("{\"component\": " + std::to_string(level + 1)) + "}";
    }
    components += "{\"name\": \"L" + std::to_string(level) + "\", \"instances\": [" + instances + "]}, ";
  }
  return designText("\"components\": [" + components +
                    R"({"name": "End"}], "looks": [{"path": [0], "appearance": "default"}])");
}

TEST(DesignReader, RefusesLooksInTreesThatNoMemoryHolds) {
  try {
    parse(explodingDesign(8), "huge");
    FAIL() << "the file was read";
  } catch (const files::FormatError& error) {
    EXPECT_EQ(error.where, "looks[0]");
    EXPECT_THAT(error.problem, HasSubstr("more than 1000000 occurrences"));
  }
}

}  // namespace
}  // namespace headless::design_file
