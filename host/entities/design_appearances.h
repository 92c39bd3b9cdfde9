// The appearances that belong to an open design: copied into it, edited and deleted through its history.
#pragma once

#include <Core/CoreAll.h>

#include <memory>
#include <string>
#include <unordered_map>

#include "host/entities/lifetime.h"
#include "host/entities/material_store.h"
#include "host/model/design.h"
#include "host/model/history.h"

namespace headless {

/// One for each open design; everything that it is given must outlive it. When it goes, the handles to the appearances
/// answer with nothing.
class DesignAppearances {
 public:
  /// The collections that it gives out end with `designLifetime`.
  DesignAppearances(model::Design& openDesign, model::History& designHistory, MaterialStore& materialStore,
                    Lifetime& designLifetime);
  DesignAppearances(const DesignAppearances&) = delete;
  DesignAppearances& operator=(const DesignAppearances&) = delete;
  ~DesignAppearances();

  /// The API's collection of them.
  adsk::core::Ptr<adsk::core::Appearances> collection();

  /// Copies an appearance into the design; empty when there is nothing to copy or the name is empty.
  adsk::core::Ptr<adsk::core::Appearance> copy(const adsk::core::Ptr<adsk::core::Appearance>& source,
                                               const std::string& name);
  /// Deletes one; false while it is used, or when it is not in the design (any more).
  bool remove(const model::Appearance& appearance);
  bool isUsed(const model::Appearance& appearance) const { return design.uses(appearance); }

  /// Gives one a colour in place of its colour or texture; false when it is not in the design.
  bool setColour(const model::Appearance& appearance, const model::Colour& colour);
  /// False when it is not in the design, has no roughness, or the number is outside of 0 to 1.
  bool setRoughness(const model::Appearance& appearance, double roughness);

  /// What the handles of one of them end with.
  Lifetime& lifetimeOf(const model::Appearance& appearance);

 private:
  /// An appearance that is, or once was, in the design, so that its address stands for nothing else.
  struct Owned {
    std::shared_ptr<model::Appearance> data;
    std::unique_ptr<Lifetime> lifetime;
  };

  void own(const std::shared_ptr<model::Appearance>& appearance);
  model::Appearance* find(const model::Appearance& appearance) const;

  model::Design& design;
  model::History& history;
  MaterialStore& materials;
  Lifetime& lifetime;
  std::unordered_map<const model::Appearance*, Owned> everOwned;
};

}  // namespace headless
