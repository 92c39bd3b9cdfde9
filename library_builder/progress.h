// The progress dialog, for as long as the work goes on.
#pragma once

#include <Core/CoreAll.h>

namespace library_builder {

/// Hides the dialog at its end, however that comes about.
class Progress {
 public:
  /// Nothing is shown yet. Raises Failure when there is no such dialog.
  explicit Progress(const adsk::core::Ptr<adsk::core::UserInterface>& ui);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// Shows the dialog, at none of so many steps. Raises Failure when it cannot be shown.
  void start(int steps);
  /// Shows how many steps are done and lets the user act, after which the design may be closed.
  void advanceTo(int done);
  /// True once the user pressed Cancel.
  bool isCancelled() const { return dialog->wasCancelled(); }

 private:
  adsk::core::Ptr<adsk::core::ProgressDialog> dialog;
};

}  // namespace library_builder
