// Lists of occurrences, bodies and faces: order, look-up, bad indices, and depth.
#include "host/entities/design_lists.h"

#include "tests/entities/design_fixture.h"

namespace headless {
namespace {

using adsk::core::Ptr;

struct DesignListsTest : DesignFixture {
  template <class List>
  static std::vector<std::string> pathsOf(const Ptr<List>& list) {
    std::vector<std::string> paths;
    for (size_t i = 0; i < list->count(); ++i) {
      paths.push_back(list->item(i)->fullPathName());
    }
    return paths;
  }
};

using Paths = std::vector<std::string>;

TEST_F(DesignListsTest, TopLevelAllLevelsAndChildren) {
  EXPECT_EQ(pathsOf(root->occurrences()), (Paths{"Sub:1", "Sub:2", "Bolt:3"}));
  EXPECT_EQ(pathsOf(root->occurrences()->asList()), (Paths{"Sub:1", "Sub:2", "Bolt:3"}));
  EXPECT_EQ(pathsOf(root->allOccurrences()),
            (Paths{"Sub:1", "Sub:1+Bolt:1", "Sub:1+Bolt:2", "Sub:2", "Sub:2+Bolt:1", "Sub:2+Bolt:2", "Bolt:3"}));
  EXPECT_EQ(pathsOf(occurrence("Sub:2")->childOccurrences()), (Paths{"Sub:2+Bolt:1", "Sub:2+Bolt:2"}));
  EXPECT_EQ(occurrence("Bolt:3")->childOccurrences()->count(), 0u);
}

TEST_F(DesignListsTest, ASubAssemblysOwnTreeStartsAtItself) {
  const auto component = occurrence("Sub:1")->component();
  EXPECT_EQ(pathsOf(component->occurrences()), (Paths{"Bolt:1", "Bolt:2"}));
  EXPECT_NE(component->occurrences()->item(0), occurrence("Sub:1+Bolt:1"));
}

TEST_F(DesignListsTest, ItemByNameIsExactAndTheFirstInOrder) {
  const auto all = root->allOccurrences();
  EXPECT_EQ(all->itemByName("Bolt:2"), occurrence("Sub:1+Bolt:2"));
  EXPECT_EQ(root->occurrences()->itemByName("Bolt:3"), occurrence("Bolt:3"));
  for (const char* none : {"", "Bolt", "bolt:2", "Sub:1+Bolt:2", "Bolt:4"}) {
    EXPECT_FALSE(all->itemByName(none)) << none;
  }
  EXPECT_FALSE(root->occurrences()->itemByName("Bolt:1")) << "not at the top level";
}

TEST_F(DesignListsTest, BodiesAndFacesAreListedInOrder) {
  const auto bodies = occurrence("Sub:1+Bolt:1")->bRepBodies();
  ASSERT_EQ(bodies->count(), 2u);
  EXPECT_EQ(bodies->item(0)->name(), "Head");
  EXPECT_EQ(bodies->item(1)->name(), "Shaft");
  EXPECT_EQ(bodies->itemByName("Shaft"), bodies->item(1));
  EXPECT_FALSE(bodies->itemByName("head"));
  const auto faces = bodies->item(0)->faces();
  ASSERT_EQ(faces->count(), 2u);
  EXPECT_NE(faces->item(0), faces->item(1));
  EXPECT_EQ(root->bRepBodies()->count(), 1u);
  EXPECT_EQ(occurrence("Sub:1")->bRepBodies()->count(), 0u);
}

TEST_F(DesignListsTest, ABadIndexGivesNothing) {
  const auto bodies = root->bRepBodies();
  for (const size_t index : {size_t{100}, static_cast<size_t>(-1)}) {
    EXPECT_FALSE(root->occurrences()->item(index));
    EXPECT_FALSE(root->allOccurrences()->item(index));
    EXPECT_FALSE(bodies->item(index));
    EXPECT_FALSE(bodies->item(0)->faces()->item(index));
  }
  EXPECT_FALSE(bodies->item(1));
  EXPECT_FALSE(bodies->item(0)->faces()->item(1));
}

TEST_F(DesignListsTest, AListIsTheSameHoweverItIsWalked) {
  size_t count = 0;
  for (const auto& body : occurrence("Bolt:3")->bRepBodies()) {
    EXPECT_EQ(body, occurrence("Bolt:3")->bRepBodies()->item(count));
    ++count;
  }
  EXPECT_EQ(count, 2u);
}

TEST_F(DesignListsTest, DeepChainsAreWalkedInOneList) {
  constexpr size_t depth = 10'000;
  model::Design chain("Chain");
  model::Component* outer = &chain.root();
  for (size_t i = 0; i < depth; ++i) {
    model::Component& inner = chain.addComponent("Link");
    outer->addInstance(inner);
    outer = &inner;
  }
  outer->addBody("Last").addFace();
  EntityStore chainStore(chain, history, *materials, profile);
  const auto all = chainStore.design()->rootComponent()->allOccurrences();
  ASSERT_EQ(all->count(), depth);
  for (size_t i = 0; i + 1 < depth; ++i) {
    ASSERT_EQ(all->item(i)->childOccurrences()->item(0), all->item(i + 1));
  }
  EXPECT_TRUE(all->item(0)->appearance(green));
  EXPECT_EQ(all->item(depth - 1)->bRepBodies()->item(0)->appearance(), green);
}

}  // namespace
}  // namespace headless
