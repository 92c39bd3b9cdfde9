// What the library builder tells and asks the user.
#pragma once

#include <Core/CoreAll.h>

#include <cstddef>
#include <string>

#include "library_builder/failure.h"

namespace library_builder {

/// Title of every message and of the progress dialog.
inline constexpr const char* messageTitle = "Tintora library builder";

/// How many appearances were made, and how many of them with another gloss, and how many were there before.
struct Tally {
  std::size_t made = 0;
  std::size_t withOtherGloss = 0;
  std::size_t wereThere = 0;
};

/// Asks whether the open design, which holds `present` of the appearances, is to be completed: Yes, No (a new one is
/// wanted) or Cancel; DialogError when there is no answer.
adsk::core::DialogResults askWhetherToGoOn(const adsk::core::Ptr<adsk::core::UserInterface>& ui,
                                           const std::string& designName, std::size_t present);

/// Tells that all are there, and how they become a library.
void tellCompletion(const adsk::core::Ptr<adsk::core::UserInterface>& ui, const Tally& tally);
/// Tells what there is after Cancel, and how to go on.
void tellCancellation(const adsk::core::Ptr<adsk::core::UserInterface>& ui, const Tally& tally);
/// Tells what went wrong, what there is, and what to do.
void tellFailure(const adsk::core::Ptr<adsk::core::UserInterface>& ui, const Failure& failure, const Tally& tally);

}  // namespace library_builder
