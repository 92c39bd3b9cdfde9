// Colours, and what can be said about an appearance's surface, as the API shows them.
#include "host/entities/appearance_properties.h"

#include "tests/entities/design_fixture.h"

namespace headless {
namespace {

using adsk::core::Color;
using adsk::core::ColorProperty;
using adsk::core::FloatProperty;
using adsk::core::Ptr;

TEST(Colours, AreMadeOfFourNumbers) {
  const auto colour = Color::create(1, 20, 255, 0);
  ASSERT_TRUE(colour);
  EXPECT_EQ(colour->red(), 1);
  EXPECT_EQ(colour->green(), 20);
  EXPECT_EQ(colour->blue(), 255);
  EXPECT_EQ(colour->opacity(), 0);
}

TEST(Colours, AreRefusedOutsideOfTheirRange) {
  EXPECT_FALSE(Color::create(-1, 0, 0, 0) || Color::create(0, 256, 0, 0) || Color::create(0, 0, -7, 0) ||
               Color::create(0, 0, 0, 300));
  const auto colour = Color::create(1, 2, 3, 4);
  EXPECT_FALSE(colour->red(256) || colour->green(-1) || colour->blue(999) || colour->opacity(-300));
  EXPECT_TRUE(colour->red(5) && colour->green(6) && colour->blue(7) && colour->opacity(8));
  EXPECT_EQ(colour->red() * 1000 + colour->green() * 100 + colour->blue() * 10 + colour->opacity(), 5678);
}

struct AppearanceProperties : DesignFixture {
  /// A copy in the design, so that it can be edited.
  Ptr<adsk::core::Appearance> copyOf(const model::Appearance& appearance) {
    return store->design()->appearances()->addByCopy(
        materials->appearance(std::make_shared<const model::Appearance>(appearance)), "Copy");
  }
  static Ptr<ColorProperty> colourOf(const Ptr<adsk::core::Appearance>& appearance, const char* id = "opaque_albedo") {
    return appearance->appearanceProperties()->itemById(id);
  }
};

TEST_F(AppearanceProperties, AreReadOnlyInALibrary) {
  const auto red = libraryAppearance("Red");
  const auto colour = colourOf(red);
  EXPECT_TRUE(colour->isReadOnly());
  EXPECT_FALSE(colour->value(Color::create(1, 2, 3, 255)));
  EXPECT_EQ(colour->value()->red(), 0);
  const Ptr<FloatProperty> roughness = red->appearanceProperties()->itemById("surface_roughness");
  EXPECT_TRUE(roughness->isReadOnly());
  EXPECT_FALSE(roughness->value(0.1));
  EXPECT_FALSE(red->deleteMe() || red->isUsed());
}

TEST_F(AppearanceProperties, AreEditedInADesign) {
  const auto copy = copyOf({"id", "Name", {9, 9, 9}});
  const auto colour = colourOf(copy);
  EXPECT_FALSE(colour->isReadOnly());
  EXPECT_TRUE(colour->value(Color::create(1, 2, 3, 200)));
  EXPECT_EQ(design.appearances[0]->colour, (model::Colour{1, 2, 3, 200}));
  EXPECT_EQ(colourOf(copy)->value()->blue(), 3);
  EXPECT_FALSE(colour->value(nullptr));
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(colour->value()->red(), 9);
}

TEST_F(AppearanceProperties, DoNotFollowAColourThatTheyGave) {
  const auto colour = colourOf(copyOf({"id", "Name", {9, 9, 9}}));
  colour->value()->red(200);
  EXPECT_EQ(colour->value()->red(), 9);
}

TEST_F(AppearanceProperties, MayReadAColourBackOneLess) {
  profile.coloursRounded = true;
  open();
  const auto colour = colourOf(copyOf({"id", "Name", {9, 9, 9}}));
  EXPECT_TRUE(colour->value(Color::create(10, 0, 255, 255)));
  const auto shown = colour->value();
  EXPECT_EQ(shown->red(), 9);
  EXPECT_EQ(shown->green(), 0);
  EXPECT_EQ(shown->blue(), 254);
  EXPECT_EQ(shown->opacity(), 255);
}

TEST_F(AppearanceProperties, LoseATextureToAColour) {
  const auto copy = copyOf({"id", "Name", {9, 9, 9}, model::Surface::Opaque, 0.5, true});
  const auto colour = colourOf(copy);
  EXPECT_TRUE(copy->hasTexture() && colour->hasConnectedTexture());
  EXPECT_FALSE(colour->value());
  EXPECT_TRUE(colour->value(Color::create(9, 9, 9, 255)));
  EXPECT_FALSE(copy->hasTexture() || colour->hasConnectedTexture());
  EXPECT_TRUE(history.undo());
  EXPECT_TRUE(copy->hasTexture());
  EXPECT_EQ(history.undoSteps().size(), 1U) << "the copy itself";
}

TEST_F(AppearanceProperties, TakeARoughnessBetweenMirrorAndMatt) {
  const auto copy = copyOf({"id", "Name", {9, 9, 9}});
  const Ptr<FloatProperty> roughness = copy->appearanceProperties()->itemById("surface_roughness");
  EXPECT_TRUE(roughness->value(0.25));
  EXPECT_EQ(roughness->value(), 0.25);
  EXPECT_EQ(roughness->units(), "");
  EXPECT_FALSE(roughness->value(-0.1) || roughness->value(1.1));
  EXPECT_EQ(design.appearances[0]->roughness, 0.25);
}

TEST_F(AppearanceProperties, AreListedByTheKindOfTheSurface) {
  const std::pair<model::Surface, const char*> kinds[] = {{model::Surface::Opaque, "opaque_albedo"},
                                                          {model::Surface::Metal, "metal_f0"},
                                                          {model::Surface::Transparent, "transparent_color"}};
  for (const auto& [surface, id] : kinds) {
    const auto properties = copyOf({"id", "Name", {9, 9, 9}, surface})->appearanceProperties();
    EXPECT_EQ(properties->count(), 2U);
    EXPECT_EQ(properties->item(0)->id(), id);
    EXPECT_EQ(properties->item(1)->id(), "surface_roughness");
    EXPECT_EQ(properties->itemByName("Color")->id(), id);
    EXPECT_EQ(properties->itemByName("Roughness")->name(), "Roughness");
    EXPECT_FALSE(properties->item(2) || properties->item(-1) || properties->itemById("Color"));
  }
  EXPECT_FALSE(colourOf(copyOf({"id", "Name", {}, model::Surface::Metal})));
}

TEST_F(AppearanceProperties, MayLackTheRoughness) {
  const auto properties =
      copyOf({"id", "Name", {9, 9, 9}, model::Surface::Opaque, std::nullopt})->appearanceProperties();
  EXPECT_EQ(properties->count(), 1U);
  EXPECT_FALSE(properties->item(1) || properties->itemById("surface_roughness"));
}

TEST_F(AppearanceProperties, EndWithTheDesign) {
  const auto copy = copyOf({"id", "Name", {9, 9, 9}});
  const auto properties = copy->appearanceProperties();
  const auto colour = colourOf(copy);
  open();
  EXPECT_FALSE(copy->isValid() || properties->isValid() || colour->isValid());
  EXPECT_FALSE(colour->value(Color::create(1, 1, 1, 255)));
}

}  // namespace
}  // namespace headless
