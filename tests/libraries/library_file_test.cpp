// Library files: what is read, and how each kind of broken file is told apart.
#include "host/libraries/library_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/support/temporary_folder.h"

namespace headless::libraries {
namespace {

namespace fs = std::filesystem;

std::string libraryText(const std::string& rest) {
  return R"({"format": "headless material library", "version": 1, "name": "Workshop")" + rest + "}";
}

/// The error that reading the text raises; a failure when it raises none.
Error errorOf(const std::string& text) {
  try {
    parseLibrary(text, "workshop.adsklib");
  } catch (const Error& error) {
    return error;
  }
  ADD_FAILURE() << "accepted: " << text;
  return {"", "", "", ""};
}

TEST(LibraryFile, NeedsNothingButAName) {
  const auto library = parseLibrary(libraryText(""), "workshop.adsklib");
  EXPECT_EQ(library.name, "Workshop");
  EXPECT_EQ(library.id, "workshop");
  EXPECT_FALSE(library.isNative);
  EXPECT_TRUE(library.appearances.empty());
  EXPECT_TRUE(library.materials.empty());
}

TEST(LibraryFile, ReadsAppearancesInOrder) {
  const auto library = parseLibrary(libraryText(R"(, "id": "lib-7", "comment": "any", "appearances": [
      {"name": "RAL 3000 Flame red", "colour": "#A02128"},
      {"name": "Glass", "colour": "#01020380", "id": "glass-clear"}])"),
                                    "workshop.adsklib");
  EXPECT_EQ(library.id, "lib-7");
  ASSERT_EQ(library.appearances.size(), 2u);
  EXPECT_EQ(library.appearances[0]->name, "RAL 3000 Flame red");
  EXPECT_EQ(library.appearances[0]->id, "ral-3000-flame-red");
  EXPECT_EQ(library.appearances[0]->colour, (model::Colour{0xA0, 0x21, 0x28}));
  EXPECT_EQ(library.appearances[1]->id, "glass-clear");
  EXPECT_EQ(library.appearances[1]->colour, (model::Colour{1, 2, 3, 0x80}));
}

TEST(LibraryFile, ReadsMaterialsWithTheAppearanceTheyName) {
  const auto library = parseLibrary(libraryText(R"(, "materials": [
      {"name": "Brass", "density": 8500.5, "appearance": "Gold"},
      {"name": "Plain"}],
      "appearances": [{"name": "Gold", "colour": "#FFD700"}, {"name": "Gold", "colour": "#000000"}])"),
                                    "workshop.adsklib");
  ASSERT_EQ(library.materials.size(), 2u);
  EXPECT_EQ(library.materials[0]->name, "Brass");
  EXPECT_EQ(library.materials[0]->appearance, library.appearances[0]);
  ASSERT_NE(model::densityOf(*library.materials[0]), nullptr);
  EXPECT_EQ(*model::densityOf(*library.materials[0]), 8500.5);
  EXPECT_EQ(library.materials[1]->appearance, model::defaultMaterial()->appearance);
  EXPECT_EQ(model::densityOf(*library.materials[1]), nullptr);
}

TEST(LibraryFile, PropertiesMayBeNumbersOrTexts) {
  const auto library = parseLibrary(libraryText(R"(, "materials": [{"name": "Odd", "properties": [
      {"id": "structural_Density", "name": "Density", "value": "heavy"},
      {"id": "thermal_Limit", "value": 120, "unit": "C"}]}])"),
                                    "workshop.adsklib");
  const auto& properties = library.materials.at(0)->properties;
  ASSERT_EQ(properties.size(), 2u);
  EXPECT_EQ(std::get<std::string>(properties[0].value), "heavy");
  EXPECT_EQ(properties[0].name, "Density");
  EXPECT_EQ(properties[1].name, "thermal_Limit");
  EXPECT_EQ(std::get<double>(properties[1].value), 120.0);
  EXPECT_EQ(properties[1].unit, "C");
  EXPECT_EQ(model::densityOf(*library.materials[0]), nullptr);
}

TEST(LibraryFile, IdsMadeFromNamesDiffer) {
  const auto library = parseLibrary(libraryText(R"(, "appearances": [
      {"name": "Red", "colour": "#FF0000"}, {"name": "red", "colour": "#FF0000"},
      {"name": "Red 3", "colour": "#FF0000"}, {"name": "RED", "colour": "#FF0000"},
      {"name": "Given", "id": "red-2", "colour": "#FF0000"}])"),
                                    "workshop.adsklib");
  const char* const expected[] = {"red", "red-4", "red-3", "red-5", "red-2"};
  ASSERT_EQ(library.appearances.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_NE(library.appearances[i]->id, library.appearances[j]->id);
    }
  }
  EXPECT_EQ(library.appearances[0]->id, "red");
  EXPECT_EQ(library.appearances[4]->id, "red-2");
}

TEST(LibraryFile, ComplaintsNameThePlaceAndTheRemedy) {
  struct Case {
    const char* what;
    std::string text;
    const char* where;
    const char* problem;
    const char* advice;
  };
  const Case cases[] = {
      {"empty", " \n ", "", "is empty", "JSON"},
      {"the closed format", std::string("PK\x03\x04\x14\x00", 6), "", "closed", "own plain text format"},
      {"broken", "{\n  \"format\": oops", "line 2, column", "not valid JSON", "JSON"},
      {"cut off", R"({"format": "headless)", "line 1, column", "not valid JSON", "JSON"},
      {"not UTF-8", "{\"format\": \"\xFF\"}", "line 1, column 13", "not valid JSON", "JSON"},
      {"huge number", libraryText(R"(, "materials": [{"name": "A", "density": 1e999}])"), "", "too large", "decimals"},
      {"a list", "[]", "", "is a list, not a library", "headless material library"},
      {"a text", "\"library\"", "", "is a text, not a library", "headless material library"},
      {"null", "null", "", "is null, not a library", "headless material library"},
      {"other JSON", "{}", "", "has no \"format\"", "begins with"},
      {"other format", R"({"format": "palette"})", "format", "is not \"headless material library\"", "begins with"},
      {"no version", R"({"format": "headless material library"})", "", "has no \"version\"", "begins with"},
      {"later version", R"({"format": "headless material library", "version": 2})", "version", "not known",
       "version 1"},
      {"no name", R"({"format": "headless material library", "version": 1})", "", "has no \"name\"", "users"},
      {"empty name", R"({"format": "headless material library", "version": 1, "name": ""})", "name", "is empty",
       "users"},
      {"unknown entry", libraryText(R"(, "colors": [])"), "", "unknown entry \"colors\"", "\"appearances\""},
      {"no list", libraryText(R"(, "appearances": {})"), "appearances", "should be a list, is a object", "brackets"},
      {"no object", libraryText(R"(, "appearances": ["red"])"), "appearances[0]", "should be an object, is a text",
       "braces"},
      {"no colour", libraryText(R"(, "appearances": [{"name": "A"}])"), "appearances[0]", "has no \"colour\"",
       "#A02128"},
      {"bad colour", libraryText(R"(, "appearances": [{"name": "A", "colour": "red"}])"), "appearances[0].colour",
       "\"red\" is not a colour", "#RRGGBB"},
      {"colour no text", libraryText(R"(, "appearances": [{"name": "A", "colour": 7}])"), "appearances[0].colour",
       "should be a text, is a number", "quotation"},
      {"misspelt key", libraryText(R"(, "appearances": [{"name": "A", "color": "#000000"}])"), "appearances[0]",
       "unknown entry \"color\"", "\"colour\""},
      {"id twice", libraryText(R"(, "appearances": [{"name": "A", "id": "a", "colour": "#000000"},
                                        {"name": "B", "id": "a", "colour": "#000000"}])"),
       "appearances[1].id", "\"a\" is used twice", "id of its own"},
      {"empty id", libraryText(R"(, "materials": [{"name": "A", "id": ""}])"), "materials[0].id", "is empty",
       "leave it out"},
      {"unnamed", libraryText(R"(, "materials": [{"name": "A"}, {"density": 1}])"), "materials[1]", "has no \"name\"",
       "users"},
      {"density as text", libraryText(R"(, "materials": [{"name": "A", "density": "7850"}])"), "materials[0].density",
       "should be a number, is a text", "7850"},
      {"no weight", libraryText(R"(, "materials": [{"name": "A", "density": 0}])"), "materials[0].density",
       "not more than zero", "kg/m3"},
      {"unknown appearance", libraryText(R"(, "materials": [{"name": "A", "appearance": "Gold"}])"),
       "materials[0].appearance", "no appearance named \"Gold\"", "appearances"},
      {"property without value", libraryText(R"(, "materials": [{"name": "A", "properties": [{"id": "x"}]}])"),
       "materials[0].properties[0]", "has no \"value\"", "number or a text"},
      {"property of another kind",
       libraryText(R"(, "materials": [{"name": "A", "properties": [{"id": "x", "value": true}]}])"),
       "materials[0].properties[0].value", "should be a number or a text, is a boolean", "two"},
      {"density twice", libraryText(R"(, "materials": [{"name": "A", "density": 1,
                       "properties": [{"id": "structural_Density", "value": 2}]}])"),
       "materials[0].properties[0]", "\"structural_Density\" a second time", "keep one"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const Error error = errorOf(c.text);
    EXPECT_EQ(error.file, "workshop.adsklib");
    EXPECT_EQ(error.where.rfind(c.where, 0), 0u) << error.where;
    EXPECT_EQ(error.where.empty(), std::string(c.where).empty()) << error.where;
    EXPECT_NE(error.problem.find(c.problem), std::string::npos) << error.problem;
    EXPECT_NE(error.advice.find(c.advice), std::string::npos) << error.advice;
  }
}

TEST(LibraryFile, AComplaintIsOneLine) {
  const Error error = errorOf(libraryText(R"(, "materials": [{"name": "A", "density": -1}])"));
  EXPECT_STREQ(error.what(),
               "workshop.adsklib: materials[0].density: is not more than zero; write it in kg/m3, or leave it out");
}

TEST(LibraryFile, SurvivesAnyNesting) {
  EXPECT_FALSE(errorOf(std::string(100'000, '[')).problem.empty());
  EXPECT_FALSE(errorOf(std::string(100'000, '[') + std::string(100'000, ']')).problem.empty());
}

struct LibraryOnDisk : testing::Test {
  tests::TemporaryFolder temporary;
  const fs::path& folder = temporary.path();

  std::string problemOf(const fs::path& file) const {
    try {
      readLibrary(file);
    } catch (const Error& error) {
      EXPECT_EQ(error.file, file.u8string());
      return error.problem;
    }
    return "";
  }
};

TEST_F(LibraryOnDisk, IsReadWhateverItsFileIsCalled) {
  const fs::path file = folder / fs::u8path("Werkstatt Gr\xC3\xBCn.adsklib");
  std::ofstream(file) << "\xEF\xBB\xBF" << libraryText("");
  EXPECT_EQ(readLibrary(file).name, "Workshop");
}

TEST_F(LibraryOnDisk, MissingFilesAndFoldersAreToldApart) {
  EXPECT_EQ(problemOf(folder / "none.adsklib"), "does not exist");
  EXPECT_EQ(problemOf(folder), "is not a file");
  std::ofstream(folder / "empty.adsklib").flush();
  EXPECT_EQ(problemOf(folder / "empty.adsklib"), "is empty");
}

}  // namespace
}  // namespace headless::libraries
