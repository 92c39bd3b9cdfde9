#include "library_builder/progress.h"

#include <exception>

#include "library_builder/failure.h"
#include "library_builder/messages.h"

namespace library_builder {

namespace {

[[noreturn]] void failToShow() {
  throw Failure(
      "The progress dialog cannot be shown.",
      "No appearance was made. Close dialogs that are open and run the library builder again; an empty design "
      "that it has opened is not needed.");
}

}  // namespace

Progress::Progress(const adsk::core::Ptr<adsk::core::UserInterface>& ui) : dialog(ui->createProgressDialog()) {
  if (!dialog) {
    failToShow();
  }
}

Progress::~Progress() {
  try {
    dialog->hide();
  } catch (const std::exception&) {
    // There is nothing left to take away.
  }
}

void Progress::start(int steps) {
  // Without the button the work can still be done.
  dialog->isCancelButtonShown(true);
  // The number of steps is only shown right for a range that begins at 0.
  if (!dialog->show(messageTitle, "Making RAL appearances: %v of %m", 0, steps)) {
    failToShow();
  }
}

void Progress::advanceTo(int done) {
  dialog->progressValue(done);
  adsk::doEvents();
}

}  // namespace library_builder
