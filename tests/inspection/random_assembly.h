// Random assemblies with random looks, and the inventory of applied looks taken the plain way: every rule carried out
// as it is worded, on the design itself, however often that reaches the same object.
#pragma once

#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "host/model/design.h"
#include "host/runtime/pickable.h"

namespace tests {

/// Numbers that are the same for one seed with every standard library.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine(seed) {}

  /// 0 to `count` less one.
  std::size_t below(std::size_t count) { return engine() % count; }
  /// True once in `times` on average.
  bool once(std::size_t times) { return below(times) == 0; }
  template <class T>
  const T& oneOf(const std::vector<T>& values) {
    return values[below(values.size())];
  }

 private:
  std::mt19937 engine;
};

/// Up to a dozen components with up to three bodies of up to three faces, placed in one another several times; some
/// thousand occurrences at most.
std::unique_ptr<headless::model::Design> randomAssembly(Dice& dice);

/// Paints some occurrences, bodies and faces, each with a look of its own name. With `nativeTrees`, occurrences as seen
/// from sub-assemblies too.
void paintAtRandom(headless::model::Design& design, Dice& dice, bool nativeTrees);

/// Something selected: a component, or what a pickable stands for.
struct Selected {
  headless::model::Component* component = nullptr;
  headless::Pickable pickable = {};
};

/// An entity by its data and the occurrence through which it is seen.
using EntityKey = std::pair<const void*, const void*>;

/// The names of the looks that are applied to the selected entities and below, by entity.
struct PlainInventory {
  std::map<EntityKey, std::string> occurrences;
  std::map<EntityKey, std::string> bodies;
  std::map<EntityKey, std::string> faces;

  friend bool operator==(const PlainInventory& a, const PlainInventory& b) {
    return a.occurrences == b.occurrences && a.bodies == b.bodies && a.faces == b.faces;
  }
};

PlainInventory plainInventory(const std::vector<Selected>& selection);

}  // namespace tests
