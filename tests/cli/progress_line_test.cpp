#include "host/cli/progress_line.h"

#include <gtest/gtest.h>

#include <sstream>

namespace headless::cli {
namespace {

constexpr ProgressLine::Clock::duration none = ProgressLine::Clock::duration::zero();
constexpr ProgressLine::Clock::duration anHour = std::chrono::hours(1);

/// What the stream was given while a file was read, as told by the reader, and afterwards.
struct Shown {
  std::string meanwhile;
  std::string inTheEnd;
};

Shown shownFor(ProgressStyle style, ProgressLine::Clock::duration patience) {
  std::ostringstream stream;
  Shown shown;
  {
    ProgressLine line(style, "Reading", "pump.step", stream, patience);
    if (const files::Progress report = line.reporter()) {
      report("reading", 0.0);
      report("reading", 0.504);
      report("translating", 1.0);
    }
    shown.meanwhile = stream.str();
  }
  shown.inTheEnd = stream.str().substr(shown.meanwhile.size());
  return shown;
}

TEST(ProgressLine, InATerminalIsDrawnOverAndGoneInTheEnd) {
  const Shown shown = shownFor(ProgressStyle::Terminal, none);
  EXPECT_EQ(shown.meanwhile,
            "\r\x1b[KReading pump.step: reading   0 %"
            "\r\x1b[KReading pump.step: reading  50 %"
            "\r\x1b[KReading pump.step: translating 100 %");
  EXPECT_EQ(shown.inTheEnd, "\r\x1b[K");
}

TEST(ProgressLine, InATerminalStaysAwayFromWhatIsSoonOver) {
  const Shown shown = shownFor(ProgressStyle::Terminal, anHour);
  EXPECT_EQ(shown.meanwhile, "");
  EXPECT_EQ(shown.inTheEnd, "");
}

TEST(ProgressLine, ElsewhereIsOneLineAtTheBeginning) {
  const Shown shown = shownFor(ProgressStyle::Lines, none);
  EXPECT_EQ(shown.meanwhile, "Reading pump.step\n");
  EXPECT_EQ(shown.inTheEnd, "");
}

TEST(ProgressLine, IsNotThereWhenQuiet) {
  const Shown shown = shownFor(ProgressStyle::Silent, none);
  EXPECT_EQ(shown.meanwhile, "");
  EXPECT_EQ(shown.inTheEnd, "");
}

TEST(ProgressLine, QuietIsQuietWhateverTheStreamIs) {
  EXPECT_EQ(progressStyle(true), ProgressStyle::Silent);
  EXPECT_NE(progressStyle(false), ProgressStyle::Silent);
}

}  // namespace
}  // namespace headless::cli
