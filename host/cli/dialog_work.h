// What is done in the add-in's dialog, as a person does it: set the filter, pick, choose, tick, click.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/cli/picking.h"
#include "host/cli/sitting.h"

namespace headless::cli {

/// What to pick.
struct Picks {
  PickKind kind = PickKind::Body;
  std::vector<std::string> patterns;
};

/// An item of a library's list; an empty library is the one that the dialog shows.
struct ItemChoice {
  std::string library;
  std::string name;
};

/// What to assign; at least one of the two. With `setsAppearanceByMaterial`, which goes with a material, nothing that
/// was applied before is put back.
struct Assignment {
  std::optional<ItemChoice> appearance;
  std::optional<ItemChoice> material;
  bool setsAppearanceByMaterial = false;
};

/// What came of it.
struct WorkDone {
  std::vector<Pickable> picked;
  /// False when everything was so before.
  bool hasChanged = false;
  /// Paths of picked objects that do not have the chosen appearance afterwards.
  std::vector<std::string> otherLook;
};

/// How the dialog is to be filled in, in this order; what is empty stays as the dialog has it.
struct DialogState {
  bool setsAppearanceByMaterial = false;
  /// Ids of groups to close.
  std::vector<std::string> closedGroups;
  std::string appearanceFilter;
  std::string appearance;
  std::string materialFilter;
  std::string material;
};

/// Fills in the open dialog. Raises Failure when a list has no such item.
void bringDialogInto(Sitting& sitting, const DialogState& state);

/// Paths of those objects to which an appearance was applied themselves.
std::vector<std::string> withOwnLook(const std::vector<Pickable>& objects);

/// Sets the filter and picks. Raises Failure when a pattern matches nothing.
std::vector<Pickable> pickInDialog(Sitting& sitting, const Picks& picks);

/// Who answers the add-in's questions: always that answer, or, without one, whoever sits at the terminal.
void prepareAnswers(Sitting& sitting, std::optional<bool> answer);

/// Picks, chooses and presses Apply in the open dialog; twice where an appearance goes with a material that sets the
/// appearance, as the dialog does not let both be chosen at a time. Raises Failure when something is not there or Apply
/// cannot be pressed, saying why, and when a question stayed unanswered; what Apply did by then is not to be saved.
WorkDone applyInDialog(Sitting& sitting, const Picks& picks, const Assignment& assignment);

/// Picks and presses the button that removes applied appearances. Nothing is changed when it is greyed out, which means
/// that there is nothing to remove.
WorkDone clearInDialog(Sitting& sitting, const Picks& picks);

}  // namespace headless::cli
