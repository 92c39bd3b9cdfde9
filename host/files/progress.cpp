#include "host/files/progress.h"

#include <algorithm>
#include <utility>

namespace headless::files {

namespace {

constexpr double smallestStep = 0.01;

}  // namespace

Phase::Phase(const Progress& report, std::string phaseName) : progress(report), name(std::move(phaseName)) {
  reached(0.0);
}

void Phase::reached(double fraction) {
  const double clamped = std::clamp(fraction, 0.0, 1.0);
  const bool isStep = clamped >= last + smallestStep || (clamped == 1.0 && last < 1.0);
  if (!progress || !isStep) {
    return;
  }
  last = clamped;
  progress(name, clamped);
}

void Phase::finish() {
  reached(1.0);
}

}  // namespace headless::files
