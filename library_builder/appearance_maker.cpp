#include "library_builder/appearance_maker.h"

#include <cstdlib>
#include <exception>
#include <string>

#include "library_builder/failure.h"
#include "library_builder/source_appearance.h"

namespace library_builder {

namespace core = adsk::core;
using core::Ptr;

namespace {

/// Between mirror (0) and matt (1): a satin paint.
constexpr double paintRoughness = 0.3;

/// A copy that is not finished: deleted again unless it is kept.
class UnfinishedCopy {
 public:
  explicit UnfinishedCopy(const Ptr<core::Appearance>& made) : copy(made) {}
  UnfinishedCopy(const UnfinishedCopy&) = delete;
  UnfinishedCopy& operator=(const UnfinishedCopy&) = delete;
  ~UnfinishedCopy() {
    try {
      discard();
    } catch (const std::exception&) {
      // Something was raised already, and says more than this.
    }
  }

  const Ptr<core::Appearance>& appearance() const { return copy; }
  void keep() { copy = nullptr; }
  /// Deletes it; false when the host does not.
  bool discard() {
    const Ptr<core::Appearance> deleted = copy;
    copy = nullptr;
    return !deleted || deleted->deleteMe();
  }

 private:
  Ptr<core::Appearance> copy;
};

/// Hosts may keep colours as fractions, so that a channel may come back one off.
bool isNear(short a, short b) {
  return std::abs(a - b) <= 1;
}

/// Gives the copy its colour. What is wrong, as the end of a sentence; empty when all is well.
std::string colourProblem(const Ptr<core::Appearance>& copy, const RalColour& wanted) {
  if (copy->name() != wanted.name) {
    return "the CAD program gave it another name";
  }
  const Ptr<core::ColorProperty> property = colourOf(copy);
  if (!property) {
    return "the copy has no colour property";
  }
  const Ptr<core::Color> colour = core::Color::create(wanted.red, wanted.green, wanted.blue, 255);
  if (!colour || !property->value(colour)) {
    return "its colour was refused";
  }
  const Ptr<core::Color> shown = property->value();
  const bool isShown = shown && isNear(shown->red(), wanted.red) && isNear(shown->green(), wanted.green) &&
                       isNear(shown->blue(), wanted.blue);
  return isShown ? "" : "it does not show the colour that it was given";
}

bool setGloss(const Ptr<core::Appearance>& copy) {
  const Ptr<core::Properties> properties = copy->appearanceProperties();
  const Ptr<core::FloatProperty> roughness = properties ? properties->itemById(roughnessProperty) : nullptr;
  return roughness && roughness->value(paintRoughness);
}

}  // namespace

Outcome makeAppearance(const Ptr<core::Appearances>& appearances, const Ptr<core::Appearance>& source,
                       const RalColour& colour) {
  if (appearances->itemByName(colour.name)) {
    return Outcome::wasThere;
  }
  const std::string advice =
      "Run the library builder again while this design is open: it goes on with what is missing.";
  const std::string cannotBeMade = "\"" + std::string(colour.name) + "\" cannot be made: ";
  UnfinishedCopy copy(appearances->addByCopy(source, colour.name));
  if (!copy.appearance()) {
    throw Failure(cannotBeMade + "the base appearance could not be copied into the design.", advice);
  }
  const std::string problem = colourProblem(copy.appearance(), colour);
  if (!problem.empty()) {
    const bool isDeleted = copy.discard();
    throw Failure(cannotBeMade + problem + ".",
                  isDeleted ? advice
                            : "It could not be deleted either: delete the appearance of that name from this design by "
                              "hand. " +
                                  advice);
  }
  const bool hasGloss = setGloss(copy.appearance());
  copy.keep();
  return hasGloss ? Outcome::made : Outcome::madeWithOtherGloss;
}

}  // namespace library_builder
