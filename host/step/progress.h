// Progress of the geometry kernel as that of a phase.
#pragma once

#include <Message_ProgressIndicator.hxx>

#include "host/files/progress.h"

namespace headless::step {

using files::Phase;
using files::Progress;

/// Hands the kernel's own progress to a phase. The phase must outlive it.
class KernelProgress : public Message_ProgressIndicator {
 public:
  explicit KernelProgress(Phase& shownPhase) : phase(shownPhase) {}

 protected:
  void Show(const Message_ProgressScope& scope, Standard_Boolean isForced) override;

 private:
  Phase& phase;
};

}  // namespace headless::step
