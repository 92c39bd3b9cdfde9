// Lists of appearances and materials, and the properties of a material, as the API shows them.
#include "host/entities/material_objects.h"

#include "tests/entities/design_fixture.h"

namespace headless {
namespace {

using adsk::core::FloatProperty;
using adsk::core::Property;
using adsk::core::Ptr;
using adsk::core::StringProperty;

struct MaterialObjectsTest : DesignFixture {};

TEST_F(MaterialObjectsTest, ListsGiveTheirItemsInOrderAndNothingForABadIndex) {
  const auto appearances = library->appearances();
  ASSERT_EQ(appearances->count(), 2u);
  EXPECT_EQ(appearances->item(0)->name(), "Red");
  EXPECT_EQ(appearances->item(1)->name(), "Blue");
  EXPECT_EQ(appearances->item(1)->id(), "id-Blue");
  const auto listed = library->materials();
  ASSERT_EQ(listed->count(), 2u);
  EXPECT_EQ(listed->item(1)->name(), "Blue brass");
  for (const int index : {-1, 2, 1000, -2147483647 - 1}) {
    EXPECT_FALSE(appearances->item(index)) << index;
    EXPECT_FALSE(listed->item(index)) << index;
  }
}

TEST_F(MaterialObjectsTest, ListsFindByExactNameAndById) {
  const auto appearances = library->appearances();
  EXPECT_EQ(appearances->itemByName("Blue"), appearances->item(1));
  EXPECT_EQ(appearances->itemById("id-Blue"), appearances->item(1));
  EXPECT_EQ(library->materials()->itemById("red-brass"), library->materials()->item(0));
  for (const char* none : {"", "blue", "Blue ", "Green"}) {
    EXPECT_FALSE(appearances->itemByName(none)) << none;
    EXPECT_FALSE(appearances->itemById(none)) << none;
  }
}

TEST_F(MaterialObjectsTest, TheFirstOfEqualNamesIsFound) {
  model::Library twins;
  twins.name = "Twins";
  for (const char* id : {"first", "second"}) {
    model::Appearance appearance;
    appearance.name = "Grey";
    appearance.id = id;
    twins.appearances.push_back(std::make_shared<const model::Appearance>(appearance));
  }
  EXPECT_EQ(materials->add(twins)->appearances()->itemByName("Grey")->id(), "first");
}

TEST_F(MaterialObjectsTest, ADensityIsAReadOnlyNumberWithItsUnit) {
  const auto properties = lead->materialProperties();
  ASSERT_EQ(properties->count(), 1u);
  const Ptr<FloatProperty> density = properties->itemById("structural_Density");
  ASSERT_TRUE(density);
  EXPECT_EQ(density->value(), 11340.0);
  EXPECT_EQ(density->units(), "kg/m^3");
  EXPECT_EQ(density->id(), "structural_Density");
  EXPECT_EQ(density->name(), "Density");
  EXPECT_TRUE(density->isReadOnly());
  EXPECT_FALSE(density->value(1.0));
  EXPECT_EQ(density->value(), 11340.0);
  EXPECT_STREQ(density->objectType(), "adsk::core::FloatProperty");
  EXPECT_FALSE(Ptr<StringProperty>(density));
}

TEST_F(MaterialObjectsTest, APropertyMayBeATextOrMissing) {
  model::Material odd;
  odd.name = "Odd";
  odd.appearance = model::makeColourAppearance({1, 1, 1});
  odd.properties = {{"structural_Density", "Density", std::string("heavy"), ""}};
  const auto properties = materials->material(std::make_shared<const model::Material>(odd))->materialProperties();
  const auto density = properties->itemById("structural_Density");
  ASSERT_TRUE(density);
  EXPECT_FALSE(Ptr<FloatProperty>(density));
  EXPECT_EQ(Ptr<StringProperty>(density)->value(), "heavy");
  EXPECT_EQ(Ptr<Property>(properties->itemByName("Density"))->id(), "structural_Density");
  EXPECT_FALSE(properties->itemById("Density"));
  EXPECT_FALSE(properties->itemByName("structural_Density"));
  EXPECT_TRUE(properties->item(0));
  EXPECT_FALSE(properties->item(1));
  EXPECT_FALSE(properties->item(-1));
}

TEST_F(MaterialObjectsTest, CallsPassTheGateUnderTheirNames) {
  gate.resetCounts();
  lead->materialProperties()->itemById("structural_Density")->name();
  library->appearances()->item(0)->name();
  const std::map<std::string, std::size_t> expected = {
      {"Material.materialProperties", 1}, {"Properties.itemById", 1}, {"FloatProperty.name", 1},
      {"MaterialLibrary.appearances", 1}, {"Appearances.item", 1},    {"Appearance.name", 1}};
  EXPECT_EQ(gate.countsByName(), expected);
}

}  // namespace
}  // namespace headless
