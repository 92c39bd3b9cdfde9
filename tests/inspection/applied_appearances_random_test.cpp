// The inventory of random selections in random assemblies against the plain walk, taken directly and as seen from what
// Apply puts back.
#include <algorithm>

#include "tests/inspection/inventory_fixture.h"
#include "tests/support/seed.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::Pickable;
using headless::PickKind;
using headless::model::Body;
using headless::model::Face;
using headless::model::Occurrence;

class RandomInventory : public InventoryTest {
 protected:
  Selected any(Dice& dice) {
    if (dice.once(4)) {
      return {dice.oneOf(design().components).get(), {}};
    }
    const auto kind = static_cast<PickKind>(dice.below(3));
    const std::vector<Pickable> candidates = headless::pickablesOf(design(), kind);
    return candidates.empty() ? root() : Selected{nullptr, dice.oneOf(candidates)};
  }

  std::vector<Selected> someOf(Dice& dice) {
    std::vector<Selected> selection;
    for (std::size_t count = 1 + dice.below(5); count > 0; --count) {
      selection.push_back(any(dice));
    }
    return selection;
  }
};

TEST_F(RandomInventory, OfRandomSelectionsInRandomAssembliesIsThatOfThePlainWalk) {
  const unsigned seed = seedOfThisRun();
  load();
  std::size_t entries = 0;
  for (unsigned round = 0; round < 300; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    Dice dice(seed + round);
    auto assembly = randomAssembly(dice);
    paintAtRandom(*assembly, dice, dice.once(3));
    session().openDesign(std::move(assembly));
    const std::vector<Selected> selection = someOf(dice);
    collect(selection);
    const PlainInventory expected = plainInventory(selection);
    ASSERT_EQ(taken(), expected);
    entries += expected.occurrences.size() + expected.bodies.size() + expected.faces.size();
  }
  EXPECT_GT(entries, 1500U);
}

TEST_F(RandomInventory, DoesNotDependOnTheOrderOfTheSelection) {
  const unsigned seed = seedOfThisRun();
  load();
  for (unsigned round = 0; round < 50; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    Dice dice(seed + round);
    auto assembly = randomAssembly(dice);
    paintAtRandom(*assembly, dice, false);
    session().openDesign(std::move(assembly));
    std::vector<Selected> selection = someOf(dice);
    collect(selection);
    const PlainInventory forwards = taken();
    std::reverse(selection.begin(), selection.end());
    collect(selection);
    ASSERT_EQ(taken(), forwards);
  }
}

/// What Apply puts back, seen in the design: the looks of what was recorded stay, those of bodies that got a material
/// without having been recorded go.
class PutBack : public InspectionTest, public WithRow<std::string> {
 protected:
  struct Looks {
    std::vector<std::string> occurrences;
    std::map<const Body*, std::string> bodies;
    std::map<const Face*, std::string> faces;
  };

  Looks looks() {
    Looks all;
    for (const Occurrence* each : design().root().allOccurrences()) {
      all.occurrences.push_back(ownLook(*each));
    }
    for (const auto& component : design().components) {
      for (const auto& each : component->bodies) {
        all.bodies[each.get()] = ownLook(*each);
        for (const auto& face : each->faces) {
          all.faces[face.get()] = ownLook(*face);
        }
      }
    }
    return all;
  }

  static void clearBelow(const Occurrence& occurrence, Looks& expected) {
    for (const auto& each : occurrence.component().bodies) {
      expected.bodies[each.get()].clear();
    }
    for (const Occurrence* child : occurrence.children) {
      clearBelow(*child, expected);
    }
  }

  static Looks afterApply(Looks expected, const std::vector<Selected>& selection) {
    const Looks before = expected;
    for (const Selected& each : selection) {
      if (each.pickable.body != nullptr) {
        expected.bodies[each.pickable.body].clear();
      } else {
        clearBelow(*each.pickable.occurrence, expected);
      }
    }
    for (const auto& [key, name] : plainInventory(selection).bodies) {
      expected.bodies[static_cast<const Body*>(key.first)] = name;
    }
    return expected;
  }

  /// The first few of a random choice, under the filter that lets them through.
  std::vector<Selected> pickSome(Dice& dice) {
    const std::size_t filter = dice.below(3);
    session().choose("idFilterSelect", filter);
    const std::vector<Pickable> candidates = headless::pickablesOf(design(), static_cast<PickKind>(filter));
    std::vector<Selected> selection;
    for (std::size_t count = candidates.empty() ? 0 : 1 + dice.below(4); count > 0; --count) {
      const Pickable& pickable = dice.oneOf(candidates);
      const bool isPicked = std::any_of(selection.begin(), selection.end(),
                                        [&](const Selected& each) { return each.pickable.path == pickable.path; });
      if (!isPicked) {
        session().pick(pickable);
        selection.push_back({nullptr, pickable});
      }
    }
    return selection;
  }
};

TABLE_OF_PROFILES(PutBack);

TABLE_TEST(PutBack, LooksOfRandomAssembliesAreThoseOfThePlainWalk) {
  const unsigned seed = seedOfThisRun();
  start(headless::profileNamed(row()));
  std::size_t applied = 0;
  for (unsigned round = 0; round < 30; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    Dice dice(seed + round);
    auto assembly = randomAssembly(dice);
    paintAtRandom(*assembly, dice, false);
    session().openDesign(std::move(assembly));
    openDialog();
    session().expand("idGroupMaterial", true);
    session().tick("idKeepAppearance", false);
    session().expand("idGroupAppearance", false);
    const std::vector<Selected> selection = pickSome(dice);
    if (selection.empty()) {
      continue;
    }
    const Looks before = looks();
    const Looks expected = afterApply(before, selection);
    session().click("idBtnApply");
    const Looks after = looks();
    ASSERT_EQ(after.occurrences, expected.occurrences);
    ASSERT_EQ(after.bodies, expected.bodies);
    ASSERT_EQ(after.faces, expected.faces);
    ++applied;
  }
  EXPECT_GT(applied, 15U);
}

}  // namespace
}  // namespace tests
