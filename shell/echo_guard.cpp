// Counts the guards that are alive.
#include "shell/echo_guard.h"

namespace tintora {

namespace {

int guardCount = 0;
int selectionGuardCount = 0;

}  // namespace

EchoGuard::EchoGuard(Echoes echoes) : kind_(echoes) {
  ++guardCount;
  if (kind_ == Echoes::all) {
    ++selectionGuardCount;
  }
}

EchoGuard::~EchoGuard() {
  --guardCount;
  if (kind_ == Echoes::all) {
    --selectionGuardCount;
  }
}

bool EchoGuard::takesInputs() {
  return guardCount > 0;
}

bool EchoGuard::takesSelection() {
  return selectionGuardCount > 0;
}

}  // namespace tintora
