// Counts the guards that are alive.
#include "shell/echo_guard.h"

namespace tintora {

namespace {

int guardCount = 0;

}  // namespace

EchoGuard::EchoGuard() {
  ++guardCount;
}

EchoGuard::~EchoGuard() {
  --guardCount;
}

bool EchoGuard::active() {
  return guardCount > 0;
}

}  // namespace tintora
