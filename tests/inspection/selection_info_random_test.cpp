// The texts of random selections in random assemblies against texts worked out on the design itself.
#include <algorithm>
#include <map>

#include "tests/inspection/inspection_fixture.h"
#include "tests/inspection/random_assembly.h"
#include "tests/support/seed.h"

namespace tests {
namespace {

using headless::Pickable;
using headless::model::densityOf;
using headless::model::Design;
using headless::model::Look;
using headless::model::lookOf;
using headless::model::makeMaterial;
using headless::model::materialOf;
using headless::model::Occurrence;
using headless::model::Source;

/// The texts worked out on the design itself.
class PlainTexts {
 public:
  PlainTexts(const Design& picked, std::size_t filterMode) : design(picked), filter(filterMode) {}

  std::string appearance(const Pickable& pickable) const {
    if (pickable.body == nullptr) {
      return appearance(*pickable.occurrence);
    }
    const Look look = pickable.face != nullptr ? lookOf(*pickable.face, pickable.occurrence)
                                               : lookOf(*pickable.body, pickable.occurrence);
    const std::map<Source, std::string> words = {
        {Source::Material, "appearance by assigned material."},
        {Source::Body, filter == 2 ? "appearance by parent body." : "overriden appearance."},
        {Source::Occurrence, "appearance by some parent occurence."},
        {Source::Face, "overriden appearance."}};
    return "<b>" + look.appearance->name + "</b> - " + words.at(look.source);
  }

  std::string material(const Pickable& pickable) const {
    const auto material =
        pickable.body != nullptr ? pickable.body->material : materialOf(pickable.occurrence->component());
    if (!material) {
      return "Physical material: <b>various";
    }
    const auto density = static_cast<long long>(*densityOf(*material));
    return "Physical material: <b>" + material->name + "</b>;  Density: " + std::to_string(density) +
           " kg.m<sup>-3</sup>";
  }

 private:
  std::string appearance(const Occurrence& occurrence) const {
    if (occurrence.appearance) {
      return "<b>" + occurrence.appearance->name + "</b> - overriden appearance.";
    }
    for (const Occurrence* parent = occurrence.parent; parent != nullptr; parent = parent->parent) {
      const Occurrence& found = firstNamed(parent->name());
      if (found.appearance) {
        return "<b>" + found.appearance->name + "</b> - appearance by some parent occurence";
      }
    }
    return "Selected componet has appearance by assigned material.";
  }

  const Occurrence& firstNamed(const std::string& name) const {
    const auto& all = design.root().allOccurrences();
    return **std::find_if(all.begin(), all.end(), [&](const Occurrence* each) { return each->name() == name; });
  }

  const Design& design;
  std::size_t filter;
};

class RandomSelectionInfo : public InspectionTest {
 protected:
  void mixMaterials(Dice& dice) {
    const auto brass = makeMaterial("Brass", 8500, headless::model::defaultMaterial()->appearance);
    for (const auto& component : design().components) {
      for (const auto& each : component->bodies) {
        each->material = dice.once(4) ? brass : each->material;
      }
    }
  }

  static void fold(std::string& text, const std::string& next, const std::string& textIfDifferent) {
    text = text.empty() || text == next ? next : textIfDifferent;
  }
};

TEST_F(RandomSelectionInfo, TextsAreThoseWorkedOutOnTheDesign) {
  const unsigned seed = seedOfThisRun();
  start();
  std::size_t compared = 0;
  for (unsigned round = 0; round < 100; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    Dice dice(seed + round);
    auto assembly = randomAssembly(dice);
    paintAtRandom(*assembly, dice, false);
    session().openDesign(std::move(assembly));
    mixMaterials(dice);
    openDialog();
    const std::size_t filter = dice.below(3);
    session().choose("idFilterSelect", filter);
    std::vector<Pickable> candidates = headless::pickablesOf(design(), static_cast<headless::PickKind>(filter));
    const PlainTexts plain(design(), filter);
    std::string appearance;
    std::string material;
    for (std::size_t count = std::min<std::size_t>(4, candidates.size()); count > 0; --count) {
      const std::size_t chosen = dice.below(candidates.size());
      const Pickable pickable = candidates[chosen];
      candidates.erase(candidates.begin() + static_cast<std::ptrdiff_t>(chosen));
      session().pick(pickable);
      fold(appearance, plain.appearance(pickable), "Various");
      fold(material, plain.material(pickable), "Physical material: Various");
      ASSERT_EQ(appearanceText(), appearance) << pickable.path;
      ASSERT_EQ(materialText(), material) << pickable.path;
      ++compared;
    }
  }
  EXPECT_GT(compared, 100U);
}

}  // namespace
}  // namespace tests
