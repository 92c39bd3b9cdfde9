// The library files of this project agree, entry by entry, with the tables that they are made from.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "host/libraries/library_file.h"

namespace headless::libraries {
namespace {

namespace fs = std::filesystem;

const fs::path librariesFolder = fs::path(TINTORA_SOURCE_DIR) / "host" / "libraries";

/// The rows of a table without its head; no field contains a comma or a quotation mark.
std::vector<std::vector<std::string>> tableRows(const char* name, const std::string& head) {
  std::ifstream file(librariesFolder / "tables" / name);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, head);
  std::vector<std::vector<std::string>> rows;
  while (std::getline(file, line)) {
    std::vector<std::string> fields;
    std::istringstream row(line);
    for (std::string field; std::getline(row, field, ',');) {
      fields.push_back(field);
    }
    rows.push_back(fields);
  }
  return rows;
}

TEST(ShippedLibraries, RalColoursAreThoseOfTheTable) {
  const auto rows = tableRows("ral-classic.csv", "code,name,srgb");
  const auto library = readLibrary(librariesFolder / "data" / "Appearances" / "RAL_COLORS.adsklib");
  EXPECT_EQ(library.name, "RAL_COLORS");
  EXPECT_TRUE(library.materials.empty());
  ASSERT_EQ(rows.size(), 216u);
  ASSERT_EQ(library.appearances.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_EQ(rows[i].size(), 3u) << "row " << i;
    EXPECT_EQ(library.appearances[i]->name, "RAL " + rows[i][0] + " " + rows[i][1]);
    EXPECT_EQ(hexText(library.appearances[i]->colour), rows[i][2]) << rows[i][0];
  }
}

TEST(ShippedLibraries, HasFlameRed) {
  const auto library = readLibrary(librariesFolder / "data" / "Appearances" / "RAL_COLORS.adsklib");
  std::set<std::string> names;
  for (const auto& appearance : library.appearances) {
    EXPECT_TRUE(names.insert(appearance->name).second) << appearance->name;
  }
  EXPECT_EQ(names.count("RAL 3000 Flame red"), 1u);
}

TEST(ShippedLibraries, EngineeringMaterialsAreThoseOfTheTable) {
  const auto rows = tableRows("materials.csv", "name,category,density_kg_m3,appearance,srgb");
  const auto library = readLibrary(librariesFolder / "data" / "Materials" / "Engineering.adsklib");
  EXPECT_EQ(library.name, "Engineering materials");
  EXPECT_EQ(library.appearances.size(), 61u);
  ASSERT_EQ(rows.size(), 74u);
  ASSERT_EQ(library.materials.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_EQ(rows[i].size(), 5u) << "row " << i;
    const auto& material = *library.materials[i];
    EXPECT_EQ(material.name, rows[i][0]);
    ASSERT_NE(densityOf(material), nullptr) << material.name;
    EXPECT_EQ(*densityOf(material), std::stod(rows[i][2])) << material.name;
    EXPECT_EQ(material.appearance->name, rows[i][3]) << material.name;
    EXPECT_EQ(hexText(material.appearance->colour), rows[i][4]) << material.name;
  }
}

}  // namespace
}  // namespace headless::libraries
