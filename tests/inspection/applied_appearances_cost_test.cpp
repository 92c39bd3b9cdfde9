// What the inventory costs: each object is asked once, calls grow with the design and no faster, and no depth is too
// deep, neither for the inventory nor for the walks of Apply and Remove.
#include <algorithm>
#include <functional>

#include "tests/inspection/inventory_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::Pickable;
using headless::PickKind;
using headless::model::Body;
using headless::model::Component;
using headless::model::Design;
using headless::model::Occurrence;

/// Bolt, the only component with a body, is used fifty times: five in each bracket, three brackets in each of two arms,
/// five more in each arm, and ten at the top.
std::unique_ptr<Design> deepReuseDesign() {
  auto design = std::make_unique<Design>("Reuse");
  Component& bolt = design->addComponent("Bolt");
  Component& bracket = design->addComponent("Bracket");
  Component& arm = design->addComponent("Arm");
  bolt.addBody("Shank").addFace();
  const auto place = [](Component& parent, Component& child, int times) {
    for (int i = 0; i < times; ++i) {
      parent.addInstance(child);
    }
  };
  place(bracket, bolt, 5);
  place(arm, bracket, 3);
  place(arm, bolt, 5);
  place(design->root(), arm, 2);
  place(design->root(), bolt, 10);
  return design;
}

struct DesignCase {
  const char* name;
  std::function<std::unique_ptr<Design>()> make;
};

class VisitedOnce : public InventoryTest, public WithRow<DesignCase> {
 protected:
  void SetUp() override {
    load();
    session().openDesign(row().make());
    for (const Occurrence* each : design().root().allOccurrences()) {
      ++occurrences;
      for (const auto& seen : each->component().bodies) {
        ++bodies;
        faces += seen->faces.size();
      }
    }
  }

  void expectEachAskedOnce() {
    EXPECT_EQ(callsOf("Occurrence.appearance"), occurrences);
    EXPECT_EQ(callsOf("Occurrence.childOccurrences"), occurrences);
    EXPECT_EQ(callsOf("Occurrence.bRepBodies"), occurrences);
    EXPECT_EQ(callsOf("BRepBody.appearanceSourceType"), bodies);
    EXPECT_EQ(callsOf("BRepBody.faces"), bodies);
    EXPECT_EQ(callsOf("BRepFace.appearanceSourceType"), faces);
  }

  std::size_t occurrences = 0;
  std::size_t bodies = 0;
  std::size_t faces = 0;
};

TABLE(Designs, VisitedOnce, byName,
      {{"Machine", machine},
       {"DeepReuse", deepReuseDesign},
       {"Flat100", [] { return flatDesign(100); }},
       {"Chain100", [] { return chainDesign(100); }}});

TABLE_TEST(VisitedOnce, UnderTheRootComponent) {
  startCounting();
  collect({root()});
  expectEachAskedOnce();
}

TABLE_TEST(VisitedOnce, WhenEveryOccurrenceIsSelectedToo) {
  std::vector<Selected> selection{root()};
  for (Occurrence* each : design().root().allOccurrences()) {
    selection.push_back({nullptr, {"", each, nullptr, nullptr}});
  }
  startCounting();
  collect(selection);
  expectEachAskedOnce();
  std::reverse(selection.begin(), selection.end());
  startCounting();
  collect(selection);
  expectEachAskedOnce();
}

TABLE_TEST(VisitedOnce, WhenBodiesAndFacesAreSelectedToo) {
  std::vector<Selected> selection{root()};
  for (const PickKind kind : {PickKind::Body, PickKind::Face}) {
    for (const Pickable& pickable : headless::pickablesOf(design(), kind)) {
      const bool isUnderAnOccurrence = pickable.occurrence != nullptr;
      if (isUnderAnOccurrence) {
        selection.push_back({nullptr, pickable});
      }
    }
  }
  startCounting();
  collect(selection);
  expectEachAskedOnce();
  std::reverse(selection.begin(), selection.end());
  startCounting();
  collect(selection);
  expectEachAskedOnce();
}

using Inventory = InventoryTest;

TEST_F(Inventory, ReusedBodyIsAnObjectOfItsOwnInEachPlace) {
  load();
  session().openDesign(deepReuseDesign());
  body("Bolt", "Shank").appearance = look("Red");
  collect({root()});
  EXPECT_EQ(taken().bodies.size(), 50U);
}

struct GrowthCase {
  const char* name;
  std::unique_ptr<Design> (*make)(std::size_t);
};

class CallsPerObject : public InspectionTest, public WithRow<GrowthCase> {
 protected:
  std::size_t callsToRefresh(std::size_t count) {
    session().openDesign(row().make(count));
    openDialog();
    letEverythingThrough();
    const Entity root = entities().component(design().root());
    startCounting();
    session().pick(root);
    return host().gate().callCount();
  }
};

TABLE(Designs, CallsPerObject, byName, {{"Flat", flatDesign}, {"Chain", chainDesign}});

TABLE_TEST(CallsPerObject, AreConstantAsTheDesignGrows) {
  start();
  const std::size_t calls10 = callsToRefresh(10);
  const std::size_t calls100 = callsToRefresh(100);
  const std::size_t calls400 = callsToRefresh(400);
  EXPECT_EQ((calls400 - calls100) % 300, 0U);
  EXPECT_EQ((calls100 - calls10) / 90, (calls400 - calls100) / 300);
  EXPECT_LE((calls400 - calls100) / 300, 20U);
}

/// The deeper one would overflow the stack if anything went down it by calling itself; of the other one the names,
/// which are paths, are short enough to write down each call.
class DeepChain : public InspectionTest, public WithRow<std::size_t> {
 protected:
  static constexpr std::size_t depthOfJournal = 300;

  void SetUp() override {
    hasJournal = row() <= depthOfJournal;
    start(chainDesign(row()));
    // Looks at both ends, so that there is something to find and to put back.
    deepest().appearance = look("Deepest");
    deepest().component().bodies.front()->faces.front()->appearance = look("Face");
    deepest().component().bodies.front()->appearance = look("Body");
    openDialog();
    pickOnly("Component");
    session().pick(Entity(entities().occurrence(*design().root().occurrences().front())));
  }

  Occurrence& deepest() { return *design().root().allOccurrences().back(); }
  Body& deepestBody() { return *deepest().component().bodies.front(); }
};

TABLE(Depths, DeepChain, [](std::size_t depth) { return std::to_string(depth); }, {300, 10'000});

TABLE_TEST(DeepChain, IsTakenStockOf) {
  EXPECT_TRUE(isRemoveEnabled());
  EXPECT_EQ(appearanceText(), "Selected componet has appearance by assigned material.");
}

TABLE_TEST(DeepChain, GetsAMaterialAndItsLooksBack) {
  session().expand("idGroupAppearance", false);
  session().click("idBtnApply");
  EXPECT_EQ(deepestBody().material->name, "Steel 37");
  EXPECT_EQ(ownLook(deepestBody()), "Body");
  EXPECT_EQ(ownLook(deepest()), "Deepest");
}

TABLE_TEST(DeepChain, GetsAnAppearanceAndLosesTheOthersBelow) {
  session().expand("idGroupMaterial", false);
  session().answerNext(adsk::core::DialogYes);
  session().click("idBtnApply");
  EXPECT_EQ(ownLook(*design().root().occurrences().front()), "RAL 1000 Green beige");
  EXPECT_EQ(ownLook(deepestBody()), "");
  EXPECT_EQ(ownLook(deepest()), "");
}

TABLE_TEST(DeepChain, IsCleared) {
  session().click("idRemoveAssignAppearance");
  EXPECT_EQ(ownLook(deepestBody()), "");
  EXPECT_EQ(ownLook(*deepestBody().faces.front()), "");
  EXPECT_EQ(ownLook(deepest()), "");
}

}  // namespace
}  // namespace tests
