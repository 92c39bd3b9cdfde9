#include "host/cli/progress_line.h"

#include <cstdio>
#include <iostream>

#include "host/cli/platform.h"

namespace headless::cli {

namespace {

// What is over sooner needs no line that flickers by.
constexpr double secondsBeforeDrawing = 0.3;

}  // namespace

ProgressStyle progressStyle(bool isQuiet) {
  if (isQuiet) {
    return ProgressStyle::Silent;
  }
  return isTerminal(Stream::Error) ? ProgressStyle::Terminal : ProgressStyle::Lines;
}

ProgressLine::ProgressLine(ProgressStyle progressStyle, const std::string& doing, const std::string& fileName)
    : style(progressStyle), subject(doing + " " + fileName) {
  // What was printed so far comes first, also where both streams end in one file.
  std::cout.flush();
  if (style == ProgressStyle::Lines) {
    std::fprintf(stderr, "%s\n", subject.c_str());
  }
}

ProgressLine::~ProgressLine() {
  if (isDrawn) {
    std::fputs("\r\x1b[K", stderr);
  }
}

files::Progress ProgressLine::reporter() {
  if (style != ProgressStyle::Terminal) {
    return {};
  }
  return [this](const std::string& phase, double fraction) { show(phase, fraction); };
}

void ProgressLine::show(const std::string& phase, double fraction) {
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  if (!isDrawn && seconds < secondsBeforeDrawing) {
    return;
  }
  isDrawn = true;
  std::fprintf(stderr, "\r\x1b[K%s: %s %3.0f %%", subject.c_str(), phase.c_str(), 100 * fraction);
}

}  // namespace headless::cli
