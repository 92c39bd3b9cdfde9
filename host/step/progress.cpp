#include "host/step/progress.h"

namespace headless::step {

void KernelProgress::Show(const Message_ProgressScope&, Standard_Boolean) {
  phase.reached(GetPosition());
}

}  // namespace headless::step
