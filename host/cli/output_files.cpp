#include "host/cli/output_files.h"

#include <algorithm>
#include <cctype>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "host/cli/failure.h"
#include "host/cli/text_layout.h"
#include "host/step/glb_writer.h"
#include "host/step/writer.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

bool isSameFile(const fs::path& a, const fs::path& b) {
  std::error_code isMissing;
  return fs::equivalent(a, b, isMissing) || fs::weakly_canonical(a, isMissing) == fs::weakly_canonical(b, isMissing);
}

void requireEnding(const char* option, const fs::path& file, const std::vector<std::string>& endings) {
  std::string ending = file.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(), [](unsigned char c) { return std::tolower(c); });
  if (std::find(endings.begin(), endings.end(), ending) == endings.end()) {
    throw UsageError(std::string(option) + " " + file.string() + ": the name must end in " +
                     listed(endings, endings.size()));
  }
}

}  // namespace

void requireOtherFile(const fs::path& input, const fs::path& output) {
  if (isSameFile(input, output)) {
    throw UsageError("\"" + output.string() + "\" is the file that is read, which is never changed: name another one");
  }
}

void checkOutputs(const fs::path& input, const OutputFiles& outputs) {
  if (!outputs.step.empty()) {
    requireEnding("--save", outputs.step, {".step", ".stp", ".p21"});
    requireOtherFile(input, outputs.step);
  }
  if (!outputs.glb.empty()) {
    requireEnding("--glb", outputs.glb, {".glb"});
    requireOtherFile(input, outputs.glb);
  }
}

void writeOutputs(const model::Design& design, const OutputFiles& outputs, ProgressStyle progress) {
  const auto writeOne = [&](const fs::path& file, const auto& write) {
    if (file.empty()) {
      return;
    }
    {
      ProgressLine line(progress, "Writing", file.string());
      write(line.reporter());
    }
    std::cout << "Saved " << file.string() << "\n";
  };
  writeOne(outputs.step, [&](const step::Progress& report) { step::write(design, outputs.step, report); });
  writeOne(outputs.glb, [&](const step::Progress& report) { step::writeGlb(design, outputs.glb, report); });
}

}  // namespace headless::cli
