// Colours as text, ids from names, densities, and the looks and materials that are made without a library.
#include "host/model/materials.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace headless::model {
namespace {

TEST(Colour, IsWrittenAndReadAsHexadecimalText) {
  struct Case {
    Colour colour;
    const char* text;
  };
  const Case cases[] = {
      {{0, 0, 0}, "#000000"},          {{255, 255, 255}, "#FFFFFF"},         {{0xA0, 0x21, 0x28}, "#A02128"},
      {{1, 2, 3}, "#010203"},          {{0xAB, 0xCD, 0xEF, 0}, "#ABCDEF00"}, {{0, 0, 0, 128}, "#00000080"},
      {{255, 0, 10, 254}, "#FF000AFE"}};
  for (const auto& [colour, text] : cases) {
    EXPECT_EQ(hexText(colour), text);
    EXPECT_EQ(colourFromHex(text), colour) << text;
  }
}

TEST(Colour, ReadsDigitsOfEitherCaseAndAnExplicitOpaque) {
  EXPECT_EQ(colourFromHex("#a0b1cf"), colourFromHex("#A0B1CF"));
  EXPECT_EQ(colourFromHex("#a0b1cfFF"), colourFromHex("#A0B1CF"));
}

TEST(Colour, RefusesEverythingElseAndNamesIt) {
  for (const char* text : {"", "#", "A02128", "#A0212", "#A021288", "#A0212800F", "#A0212G", "# A0212", "#-10212",
                           "#0x1122", "#A021 8", "red"}) {
    try {
      colourFromHex(text);
      ADD_FAILURE() << "accepted '" << text << "'";
    } catch (const std::invalid_argument& error) {
      EXPECT_NE(std::string(error.what()).find("'" + std::string(text) + "'"), std::string::npos) << error.what();
    }
  }
}

TEST(Colour, ComparesOpacityToo) {
  EXPECT_NE((Colour{1, 2, 3}), (Colour{1, 2, 3, 0}));
  EXPECT_NE((Colour{1, 2, 3}), (Colour{1, 2, 4}));
}

TEST(IdFromName, KeepsLettersAndDigitsOnly) {
  struct Case {
    const char* name;
    const char* id;
  };
  const Case cases[] = {{"RAL 3000 Flame red", "ral-3000-flame-red"},
                        {"Steel - Spring (AISI 1095)", "steel-spring-aisi-1095"},
                        {"PA 6, 30% glass", "pa-6-30-glass"},
                        {"  edges  ", "edges"},
                        {"Gr\xC3\xBCn", "gr\xC3\xBCn"},
                        {"()", ""},
                        {"", ""}};
  for (const auto& [name, id] : cases) {
    EXPECT_EQ(idFromName(name), id) << name;
  }
}

TEST(Density, IsANumberInKilogramsPerCubicMetreOrNothing) {
  Material material;
  EXPECT_EQ(densityOf(material), nullptr);
  material.properties = {{"structural_Other", "Other", 1.0, densityUnit}};
  EXPECT_EQ(densityOf(material), nullptr);
  material.properties = {{densityPropertyId, "Density", std::string("heavy"), densityUnit}};
  EXPECT_EQ(densityOf(material), nullptr);
  material.properties = {{densityPropertyId, "Density", 7.85, "g/cm^3"}};
  EXPECT_EQ(densityOf(material), nullptr);
  material.properties = {{"structural_Other", "Other", 1.0, ""}, densityProperty(7850.0)};
  ASSERT_NE(densityOf(material), nullptr);
  EXPECT_EQ(*densityOf(material), 7850.0);
}

TEST(MakeMaterial, HasTheDensityAndTheAppearance) {
  const auto look = makeColourAppearance({1, 2, 3});
  const auto material = makeMaterial("Steel S235JR", 7850.0, look);
  EXPECT_EQ(material->name, "Steel S235JR");
  EXPECT_EQ(material->id, "steel-s235jr");
  EXPECT_EQ(material->appearance, look);
  ASSERT_NE(densityOf(*material), nullptr);
  EXPECT_EQ(*densityOf(*material), 7850.0);
}

TEST(MakeMaterial, NeedsAnAppearance) {
  EXPECT_THROW(makeMaterial("Bare", 1.0, nullptr), std::invalid_argument);
}

TEST(ColourAppearance, IsNamedByItsColour) {
  const auto red = makeColourAppearance({255, 0, 0});
  EXPECT_EQ(red->name, "Opaque(255,0,0)");
  EXPECT_EQ(red->id, "opaque-255-0-0");
  EXPECT_EQ(red->colour, (Colour{255, 0, 0}));
  const auto glass = makeColourAppearance({1, 20, 0, 128});
  EXPECT_EQ(glass->name, "Translucent(1,20,0,128)");
  EXPECT_EQ(glass->colour, (Colour{1, 20, 0, 128}));
}

TEST(DefaultMaterial, IsOneSteelForAll) {
  EXPECT_EQ(defaultMaterial(), defaultMaterial());
  EXPECT_EQ(defaultMaterial()->name, "Steel");
  EXPECT_EQ(*densityOf(*defaultMaterial()), 7850.0);
  EXPECT_EQ(defaultMaterial()->appearance->name, "Steel - Satin");
}

}  // namespace
}  // namespace headless::model
