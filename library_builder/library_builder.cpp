// A script for the CAD program: makes the RAL Classic colours as appearances of a design, from which the user makes the
// library that Tintora looks for. No API call writes a library, so that this last step stays the user's. Everything
// happens inside `run`, on the host's user-interface thread; nothing is left behind when it returns.
#include <Core/CoreAll.h>

#include <exception>
#include <optional>
#include <string>

#include "library_builder/appearance_maker.h"
#include "library_builder/failure.h"
#include "library_builder/messages.h"
#include "library_builder/progress.h"
#include "library_builder/ral_table.h"
#include "library_builder/source_appearance.h"
#include "library_builder/target_design.h"

namespace library_builder {

namespace {

namespace core = adsk::core;
using core::Ptr;

void count(Outcome outcome, Tally& tally) {
  switch (outcome) {
    case Outcome::wasThere:
      ++tally.wereThere;
      break;
    case Outcome::madeWithOtherGloss:
      ++tally.withOtherGloss;
      [[fallthrough]];
    case Outcome::made:
      ++tally.made;
      break;
  }
}

/// Makes them one by one; false when the user cancelled before the last one. Raises Failure.
bool makeAll(const TargetDesign& target, const Ptr<core::Appearance>& source, Progress& progress, Tally& tally) {
  const int steps = static_cast<int>(ralColours().size());
  progress.start(steps);
  int done = 0;
  for (const RalColour& colour : ralColours()) {
    count(makeAppearance(target.appearances, source, colour), tally);
    progress.advanceTo(++done);
    if (!target.design->isValid()) {
      tally = {};
      throw Failure("The design was closed before all RAL appearances were made in it.",
                    "Run the library builder again and leave the design open until it is done.");
    }
    if (done < steps && progress.isCancelled()) {
      return false;
    }
  }
  return true;
}

/// Makes what is missing, until it is there or the user cancels. `tally` says what was done also when something is
/// raised.
void build(const Ptr<core::Application>& app, const Ptr<core::UserInterface>& ui, Tally& tally) {
  const Ptr<core::Appearance> source = findSourceAppearance(app);
  bool isComplete = false;
  {
    Progress progress(ui);
    const std::optional<TargetDesign> target = chooseDesign(app, ui);
    if (!target) {
      return;
    }
    isComplete = makeAll(*target, source, progress, tally);
  }
  if (isComplete) {
    tellCompletion(ui, tally);
  } else {
    tellCancellation(ui, tally);
  }
}

}  // namespace

}  // namespace library_builder

/// False when something went wrong, which the user was told unless there is no user interface.
extern "C" XI_EXPORT bool run(const char* /*context*/) {
  using namespace library_builder;

  const Ptr<core::Application> app = core::Application::get();
  const Ptr<core::UserInterface> ui = app ? app->userInterface() : nullptr;
  if (!ui) {
    return false;
  }
  Tally tally;
  try {
    build(app, ui, tally);
    return true;
  } catch (const Failure& failure) {
    tellFailure(ui, failure, tally);
  } catch (const std::exception& error) {
    tellFailure(ui,
                Failure(std::string("The library builder was interrupted: ") + error.what() + ".",
                        "Run it again while the design is open: it goes on with what is missing."),
                tally);
  }
  return false;
}
