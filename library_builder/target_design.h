// The design that the appearances are made in.
#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <optional>

namespace library_builder {

/// A design and its own appearances; neither is empty.
struct TargetDesign {
  adsk::core::Ptr<adsk::fusion::Design> design;
  adsk::core::Ptr<adsk::core::Appearances> appearances;
};

/// A new design or, when the user wants to go on with it, the open one, which must hold some of the RAL appearances to
/// be asked about. Nothing when the user cancels. Raises Failure when no design can be made.
std::optional<TargetDesign> chooseDesign(const adsk::core::Ptr<adsk::core::Application>& app,
                                         const adsk::core::Ptr<adsk::core::UserInterface>& ui);

}  // namespace library_builder
