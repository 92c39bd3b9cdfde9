// Identity of handles, what setters take and refuse, steps of the history, and the end of an open design.
#include "host/entities/entity_store.h"

#include <algorithm>
#include <functional>

#include "tests/entities/design_fixture.h"

namespace headless {
namespace {

using adsk::core::Appearance;
using adsk::core::Base;
using adsk::core::Ptr;

struct EntityStoreTest : DesignFixture {
  using Names = std::vector<std::string>;
};

TEST_F(EntityStoreTest, AnEntityHasOneHandleForEachContext) {
  EXPECT_EQ(store->design(), store->design());
  EXPECT_EQ(store->design()->rootComponent(), root);
  EXPECT_EQ(occurrence("Sub:1"), root->occurrences()->itemByName("Sub:1"));
  EXPECT_EQ(occurrence("Sub:1")->component(), occurrence("Sub:2")->component());

  const auto body = headOf("Sub:1+Bolt:1");
  EXPECT_EQ(headOf("Sub:1+Bolt:1"), body);
  EXPECT_EQ(body->faces()->item(0), headOf("Sub:1+Bolt:1")->faces()->item(0));
  EXPECT_NE(headOf("Sub:2+Bolt:1"), body);
  EXPECT_NE(body->parentComponent()->bRepBodies()->item(0), body);
  EXPECT_NE(headOf("Sub:2+Bolt:1")->faces()->item(0), body->faces()->item(0));
}

TEST_F(EntityStoreTest, AHandleStaysTheSameWhenNobodyKeepsIt) {
  const void* address = headOf("Bolt:3").get();
  for (int i = 0; i < 100; ++i) {
    headOf("Sub:1+Bolt:1");
  }
  EXPECT_EQ(headOf("Bolt:3").get(), address);
}

TEST_F(EntityStoreTest, IdentityTellsEntitiesAndContextsApart) {
  const auto body = headOf("Sub:1+Bolt:1");
  const Ptr<Base> same = headOf("Sub:1+Bolt:1");
  EXPECT_TRUE(isSameEntity(body, same));
  EXPECT_FALSE(isSameEntity(body, headOf("Sub:2+Bolt:1")));
  EXPECT_FALSE(isSameEntity(body, body->parentComponent()->bRepBodies()->item(0)));
  EXPECT_FALSE(isSameEntity(body, body->faces()->item(0)));
  EXPECT_FALSE(isSameEntity(occurrence("Sub:1"), occurrence("Sub:2")));
  EXPECT_FALSE(isSameEntity(body, nullptr));
}

TEST_F(EntityStoreTest, EveryCallMayGiveANewHandle) {
  profile.freshWrappers = true;
  open();
  const std::pair<Ptr<Base>, Ptr<Base>> pairs[] = {
      {store->design()->rootComponent(), store->design()->rootComponent()},
      {occurrence("Sub:1"), occurrence("Sub:1")},
      {headOf("Sub:1+Bolt:1"), headOf("Sub:1+Bolt:1")},
      {headOf("Sub:1+Bolt:1")->faces()->item(0), headOf("Sub:1+Bolt:1")->faces()->item(0)},
  };
  for (const auto& [one, other] : pairs) {
    EXPECT_NE(one, other) << one->objectType();
    EXPECT_TRUE(isSameEntity(one, other)) << one->objectType();
  }
  headOf("Sub:1+Bolt:1")->appearance(green);
  EXPECT_EQ(headOf("Sub:1+Bolt:1")->appearance()->name(), green->name());
}

TEST_F(EntityStoreTest, NewHandlesHaveRisingAddressesWhileAJournalIsKept) {
  gate.startJournal();
  profile.freshWrappers = true;
  open();
  std::vector<const void*> addresses;
  for (int i = 0; i < 100; ++i) {
    addresses.push_back(headOf("Bolt:3").get());
    addresses.push_back(headOf("Bolt:3")->faces()->item(0).get());
    gate.startJournal();
  }
  EXPECT_EQ(std::adjacent_find(addresses.begin(), addresses.end(), std::greater_equal<>()), addresses.end());
}

TEST_F(EntityStoreTest, ALibraryAppearanceIsTakenAsItIs) {
  const auto red = libraryAppearance("Red");
  const auto body = headOf("Bolt:3");
  EXPECT_TRUE(body->appearance(red));
  EXPECT_EQ(body->appearance(), red);
}

TEST_F(EntityStoreTest, ALibraryAppearanceMayBeCopied) {
  profile.libraryAppearance = LibraryAppearance::Copied;
  const auto red = libraryAppearance("Red");
  const auto body = headOf("Bolt:3");
  EXPECT_TRUE(body->appearance(red));
  const auto copy = body->appearance();
  EXPECT_NE(copy, red);
  EXPECT_EQ(copy->name(), "Red");
  EXPECT_NE(copy->id(), red->id());

  EXPECT_TRUE(occurrence("Sub:1")->appearance(red));
  EXPECT_EQ(occurrence("Sub:1")->appearance(), copy) << "one copy for the design";
  EXPECT_TRUE(body->faces()->item(0)->appearance(copy));
  EXPECT_EQ(body->faces()->item(0)->appearance(), copy) << "the copy is the design's own";
  EXPECT_TRUE(body->appearance(green));
  EXPECT_EQ(body->appearance(), green);
}

TEST_F(EntityStoreTest, ALibraryAppearanceMayBeRefused) {
  profile.libraryAppearance = LibraryAppearance::Refused;
  const auto red = libraryAppearance("Red");
  const auto body = headOf("Bolt:3");
  EXPECT_FALSE(body->appearance(red));
  EXPECT_FALSE(body->faces()->item(0)->appearance(red));
  EXPECT_FALSE(occurrence("Bolt:3")->appearance(red));
  EXPECT_EQ(body->appearanceSourceType(), 0);
  EXPECT_FALSE(occurrence("Bolt:3")->appearance());
  EXPECT_TRUE(history.undoSteps().empty());
  EXPECT_TRUE(body->appearance(green)) << "the design's own are not refused";
  EXPECT_TRUE(body->appearance(nullptr));
}

TEST_F(EntityStoreTest, WhatWasDeletedIsRefused) {
  const auto body = headOf("Bolt:3");
  Ptr<Appearance> gone;
  Ptr<adsk::core::Material> goneMaterial;
  {
    MaterialStore closed(profile);
    gone = closed.appearance(model::makeColourAppearance({1, 2, 3}));
    goneMaterial = closed.material(model::defaultMaterial());
  }
  EXPECT_FALSE(body->appearance(gone));
  EXPECT_FALSE(occurrence("Bolt:3")->appearance(gone));
  EXPECT_FALSE(body->material(goneMaterial));
  EXPECT_FALSE(root->material(goneMaterial));
  EXPECT_TRUE(history.undoSteps().empty());
}

TEST_F(EntityStoreTest, OneCallIsOneStepOutsideATransaction) {
  headOf("Bolt:3")->appearance(green);
  occurrence("Bolt:3")->component()->material(lead);
  EXPECT_EQ(history.undoSteps(), (Names{"Edit", "Edit"}));
  history.undo();
  EXPECT_EQ(occurrence("Bolt:3")->component()->material()->name(), "Steel");
  history.undo();
  EXPECT_EQ(headOf("Bolt:3")->appearanceSourceType(), 0);
  history.redo();
  EXPECT_EQ(headOf("Bolt:3")->appearance(), green);
}

TEST_F(EntityStoreTest, ChangesBelongToTheTransactionThatIsOpen) {
  history.begin();
  headOf("Bolt:3")->appearance(green);
  occurrence("Sub:1")->appearance(green);
  occurrence("Sub:1")->appearance(nullptr);
  root->material(lead);
  EXPECT_TRUE(history.isOpen());
  history.rollback();
  EXPECT_EQ(headOf("Bolt:3")->appearanceSourceType(), 0);
  EXPECT_EQ(root->material()->name(), "Steel");
  EXPECT_TRUE(history.undoSteps().empty());
}

TEST_F(EntityStoreTest, RemovingWhatIsNotThereIsNoStep) {
  EXPECT_TRUE(headOf("Bolt:3")->appearance(nullptr));
  EXPECT_TRUE(headOf("Bolt:3")->faces()->item(0)->appearance(nullptr));
  EXPECT_TRUE(occurrence("Bolt:3")->appearance(nullptr));
  EXPECT_TRUE(history.undoSteps().empty());
}

TEST_F(EntityStoreTest, HandlesAreInvalidOnceTheDesignIsClosed) {
  for (const bool fresh : {false, true}) {
    profile.freshWrappers = fresh;
    open();
    const auto body = headOf("Sub:1+Bolt:1");
    const auto part = occurrence("Sub:1");
    const Ptr<Base> all[] = {store->design(),    root, root->occurrences(), root->allOccurrences(), part,
                             part->bRepBodies(), body, body->faces(),       body->faces()->item(0)};
    const auto misusesBefore = gate.misuses().size();
    store.reset();
    for (const auto& each : all) {
      EXPECT_FALSE(each->isValid()) << each->objectType();
    }
    EXPECT_EQ(part->name(), "");
    EXPECT_FALSE(part->appearance());
    EXPECT_FALSE(part->appearance(green));
    EXPECT_FALSE(body->faces());
    EXPECT_FALSE(root->material(lead));
    EXPECT_GT(gate.misuses().size(), misusesBefore);
  }
}

TEST_F(EntityStoreTest, ACallThatIsMadeToFailChangesNothing) {
  const auto body = headOf("Bolt:3");
  gate.setFault({1, FaultAnswer::Nothing, "BRepBody.appearance="});
  EXPECT_FALSE(body->appearance(green));
  EXPECT_TRUE(gate.faultStruck());
  EXPECT_EQ(body->appearanceSourceType(), 0);
  gate.setFault({1, FaultAnswer::Exception, "BRepBody.faces"});
  EXPECT_ANY_THROW(body->faces());
}

}  // namespace
}  // namespace headless
