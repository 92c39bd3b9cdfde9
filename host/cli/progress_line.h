// How far a long operation got, on the error stream: a line that is drawn over on a terminal, one line for each
// finished operation elsewhere.
#pragma once

#include <chrono>
#include <iostream>
#include <string>

#include "host/files/progress.h"

namespace headless::cli {

/// Who is told about progress.
enum class ProgressStyle { Silent, Terminal, Lines };

/// The style for the error stream as it is; Silent when `isQuiet`.
ProgressStyle progressStyle(bool isQuiet);

/// One operation on one file. On a terminal it shows up once it takes longer than `patience` and disappears at its end;
/// elsewhere one line at its beginning says what the program is at.
class ProgressLine {
 public:
  using Clock = std::chrono::steady_clock;

  // What is over sooner needs no line that flickers by.
  static constexpr Clock::duration usualPatience = std::chrono::milliseconds(300);

  /// `doing` is such as "Reading". The stream must outlive this object.
  ProgressLine(ProgressStyle progressStyle, const std::string& doing, const std::string& fileName,
               std::ostream& errorStream = std::cerr, Clock::duration patienceBeforeDrawing = usualPatience);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  /// Clears the terminal's line.
  ~ProgressLine();

  /// To be handed to the operation; this object must outlive it.
  files::Progress reporter();

 private:
  void show(const std::string& phase, double fraction);

  ProgressStyle style;
  std::string subject;
  std::ostream& stream;
  Clock::duration patience;
  Clock::time_point start = Clock::now();
  bool isDrawn = false;
};

}  // namespace headless::cli
