// How far a long operation got, for whoever shows it.
#pragma once

#include <functional>
#include <string>

namespace headless::files {

/// Told the phase ("reading", "translating", "meshing" or "writing") and how much of it is done, from 0 to 1. Each
/// phase begins with 0, ends with 1 and never goes back. May be called from another thread, never from two at once;
/// must not throw. An empty function asks for nothing.
using Progress = std::function<void(const std::string& phase, double fraction)>;

/// One phase: reports 0 when made, then steps of at least a hundredth, and 1 when asked to finish.
class Phase {
 public:
  Phase(const Progress& report, std::string phaseName);

  /// The fraction done so far.
  void reached(double fraction);
  void finish();

 private:
  const Progress& progress;
  std::string name;
  double last = -1.0;
};

}  // namespace headless::files
