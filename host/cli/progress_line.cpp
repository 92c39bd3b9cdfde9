#include "host/cli/progress_line.h"

#include <cmath>
#include <iomanip>

#include "host/cli/platform.h"

namespace headless::cli {

namespace {

// Back to the first column, and away with what stands there.
constexpr const char* fresh = "\r\x1b[K";

}  // namespace

ProgressStyle progressStyle(bool isQuiet) {
  if (isQuiet) {
    return ProgressStyle::Silent;
  }
  return isTerminal(Stream::Error) ? ProgressStyle::Terminal : ProgressStyle::Lines;
}

ProgressLine::ProgressLine(ProgressStyle progressStyle, const std::string& doing, const std::string& fileName,
                           std::ostream& errorStream, Clock::duration patienceBeforeDrawing)
    : style(progressStyle), subject(doing + " " + fileName), stream(errorStream), patience(patienceBeforeDrawing) {
  // What was printed so far comes first, also where both streams end in one file.
  std::cout.flush();
  if (style == ProgressStyle::Lines) {
    stream << subject << "\n";
  }
}

ProgressLine::~ProgressLine() {
  if (isDrawn) {
    stream << fresh << std::flush;
  }
}

files::Progress ProgressLine::reporter() {
  if (style != ProgressStyle::Terminal) {
    return {};
  }
  return [this](const std::string& phase, double fraction) { show(phase, fraction); };
}

void ProgressLine::show(const std::string& phase, double fraction) {
  if (!isDrawn && Clock::now() - start < patience) {
    return;
  }
  isDrawn = true;
  stream << fresh << subject << ": " << phase << " " << std::setw(3) << std::lround(100 * fraction) << " %"
         << std::flush;
}

}  // namespace headless::cli
