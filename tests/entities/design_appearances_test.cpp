// The appearances of a design: copied into it, used, deleted, undone.
#include "host/entities/design_appearances.h"

#include "tests/entities/design_fixture.h"

namespace headless {
namespace {

using adsk::core::Appearance;
using adsk::core::Appearances;
using adsk::core::Ptr;

struct DesignAppearancesTest : DesignFixture {
  Ptr<Appearances> listed() const { return store->design()->appearances(); }
  Ptr<Appearance> copy(const std::string& name) const { return listed()->addByCopy(libraryAppearance("Red"), name); }
};

TEST_F(DesignAppearancesTest, AreCopiedUnderTheirNewName) {
  EXPECT_EQ(listed()->count(), 0U);
  const auto made = copy("Mine");
  ASSERT_TRUE(made);
  EXPECT_EQ(made->name(), "Mine");
  EXPECT_EQ(libraryAppearance("Red")->name(), "Red");
  EXPECT_EQ(listed()->count(), 1U);
  EXPECT_EQ(listed()->item(0), made);
  EXPECT_EQ(listed()->itemByName("Mine"), made);
  EXPECT_EQ(listed()->itemById(made->id()), made);
  EXPECT_FALSE(listed()->itemByName("Red"));
}

TEST_F(DesignAppearancesTest, HaveIdsOfTheirOwn) {
  EXPECT_NE(copy("One")->id(), copy("Two")->id());
  EXPECT_NE(copy("Same")->id(), copy("Same")->id());
  EXPECT_EQ(listed()->count(), 4U);
}

TEST_F(DesignAppearancesTest, MayBeCopiesOfOneAnother) {
  const auto again = listed()->addByCopy(copy("Mine"), "Again");
  EXPECT_EQ(again->name(), "Again");
  EXPECT_EQ(listed()->count(), 2U);
}

TEST_F(DesignAppearancesTest, AreCopiesOfSomethingWithAName) {
  const auto gone = copy("Gone");
  EXPECT_TRUE(gone->deleteMe());
  EXPECT_FALSE(listed()->addByCopy(nullptr, "Name") || listed()->addByCopy(libraryAppearance("Red"), "") ||
               listed()->addByCopy(gone, "Name"));
  EXPECT_EQ(listed()->count(), 0U);
}

TEST_F(DesignAppearancesTest, AreNotCopiedIntoALibrary) {
  EXPECT_FALSE(library->appearances()->addByCopy(copy("Mine"), "Name"));
  EXPECT_EQ(library->appearances()->count(), 2U);
}

TEST_F(DesignAppearancesTest, AreDeletedForEverybody) {
  const auto made = copy("Mine");
  const auto other = copy("Other");
  EXPECT_TRUE(made->deleteMe());
  EXPECT_FALSE(made->isValid() || made->deleteMe());
  EXPECT_EQ(made->name(), "");
  EXPECT_EQ(listed()->count(), 1U);
  EXPECT_EQ(listed()->item(0), other);
}

TEST_F(DesignAppearancesTest, AreDeletedForEverybodyWithFreshHandlesToo) {
  profile.freshWrappers = true;
  open();
  copy("Mine");
  const auto one = listed()->item(0);
  const auto two = listed()->item(0);
  EXPECT_NE(one, two);
  EXPECT_TRUE(one->deleteMe());
  EXPECT_FALSE(two->isValid());
}

TEST_F(DesignAppearancesTest, AreNotDeletedWhileTheyAreUsed) {
  const auto made = copy("Mine");
  EXPECT_FALSE(made->isUsed());
  const auto body = headOf("Sub:1+Bolt:1");
  const auto face = body->faces()->item(0);
  const auto placed = occurrence("Sub:2");
  const std::function<bool(const Ptr<Appearance>&)> uses[] = {
      [&](const Ptr<Appearance>& look) { return body->appearance(look); },
      [&](const Ptr<Appearance>& look) { return face->appearance(look); },
      [&](const Ptr<Appearance>& look) { return placed->appearance(look); }};
  for (const auto& use : uses) {
    EXPECT_TRUE(use(made));
    EXPECT_TRUE(made->isUsed());
    EXPECT_FALSE(made->deleteMe());
    EXPECT_TRUE(use(nullptr));
    EXPECT_FALSE(made->isUsed());
  }
  EXPECT_TRUE(made->deleteMe());
}

TEST_F(DesignAppearancesTest, AreUsedByMaterials) {
  const auto made = copy("Mine");
  model::Material painted;
  painted.name = "Painted";
  painted.appearance = design.appearances[0];
  EXPECT_TRUE(headOf("Bolt:3")->material(materials->material(std::make_shared<const model::Material>(painted))));
  EXPECT_TRUE(made->isUsed());
}

TEST_F(DesignAppearancesTest, AreWhatShowsWhereTheyAreApplied) {
  const auto made = copy("Mine");
  const auto body = headOf("Bolt:3");
  body->appearance(made);
  EXPECT_EQ(body->appearance(), made);
  const Ptr<adsk::core::ColorProperty> colour = made->appearanceProperties()->itemById("opaque_albedo");
  EXPECT_TRUE(colour->value(adsk::core::Color::create(7, 8, 9, 255)));
  EXPECT_EQ(head->appearance->colour, (model::Colour{7, 8, 9}));
}

TEST_F(DesignAppearancesTest, FollowUndoAndRedo) {
  const auto made = copy("Mine");
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(listed()->count(), 0U);
  EXPECT_FALSE(made->deleteMe()) << "it is not in the design";
  const Ptr<adsk::core::ColorProperty> colour = made->appearanceProperties()->itemById("opaque_albedo");
  EXPECT_FALSE(colour->value(adsk::core::Color::create(7, 8, 9, 255)));
  EXPECT_TRUE(history.redo());
  EXPECT_EQ(listed()->itemByName("Mine"), made);
  EXPECT_TRUE(made->deleteMe());
  EXPECT_TRUE(history.undo());
  const auto back = listed()->itemByName("Mine");
  ASSERT_TRUE(back);
  EXPECT_TRUE(back->isValid() && back->deleteMe());
}

TEST_F(DesignAppearancesTest, AreThereAgainWhenTheDesignIsOpenedAgain) {
  const auto before = copy("Mine");
  const auto list = listed();
  open();
  EXPECT_FALSE(before->isValid() || list->isValid());
  ASSERT_EQ(listed()->count(), 1U);
  EXPECT_TRUE(listed()->item(0)->deleteMe());
}

}  // namespace
}  // namespace headless
