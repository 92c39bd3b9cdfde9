// What can be said about a STEP file without understanding it.
#pragma once

#include <filesystem>
#include <fstream>
#include <streambuf>
#include <string>
#include <vector>

#include "host/step/number_check.h"
#include "host/step/progress.h"

namespace headless::step {

/// Raises Error for reading `file`: "Cannot read "file": why. help".
[[noreturn]] void failReading(const std::filesystem::path& file, const std::string& why, const std::string& help);

/// True for a file that can be read and begins as STEP files do.
bool isStepFile(const std::filesystem::path& file);

/// Raises Error when the file is missing, no file, unreadable, empty, no STEP file, or ends early.
void checkStepFile(const std::filesystem::path& file);

/// Reads a file for a stream, tells a phase how far that went, and looks at the numbers.
class ReportingBuffer : public std::streambuf {
 public:
  ReportingBuffer(const std::filesystem::path& file, Phase& shownPhase);

  /// Of what was read so far.
  const NumberCheck& numbers() const { return numberCheck; }

 protected:
  int_type underflow() override;

 private:
  std::ifstream input;
  std::vector<char> block;
  double size;
  double consumed = 0;
  Phase& phase;
  NumberCheck numberCheck;
};

}  // namespace headless::step
