// How far a long operation got, on the error stream: a line that is drawn over on a terminal, one line for each
// finished operation elsewhere.
#pragma once

#include <chrono>
#include <string>

#include "host/files/progress.h"

namespace headless::cli {

/// Who is told about progress.
enum class ProgressStyle { Silent, Terminal, Lines };

/// The style for the error stream as it is; Silent when `isQuiet`.
ProgressStyle progressStyle(bool isQuiet);

/// One operation on one file. On a terminal it shows up once it takes longer than 0.3 s and disappears at its end;
/// elsewhere one line at its beginning says what the program is at.
class ProgressLine {
 public:
  /// `doing` is such as "Reading".
  ProgressLine(ProgressStyle progressStyle, const std::string& doing, const std::string& fileName);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  /// Clears the terminal's line.
  ~ProgressLine();

  /// To be handed to the operation; this object must outlive it.
  files::Progress reporter();

 private:
  using Clock = std::chrono::steady_clock;

  void show(const std::string& phase, double fraction);

  ProgressStyle style;
  std::string subject;
  Clock::time_point start = Clock::now();
  bool isDrawn = false;
};

}  // namespace headless::cli
