// Counts the guards that are alive.
#include "shell/echo_guard.h"

namespace tintora {

namespace {

int guardCount = 0;
int selectionGuardCount = 0;

}  // namespace

EchoGuard::EchoGuard(Echoes echoes) : kind(echoes) {
  ++guardCount;
  if (kind == Echoes::All) {
    ++selectionGuardCount;
  }
}

EchoGuard::~EchoGuard() {
  --guardCount;
  if (kind == Echoes::All) {
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
