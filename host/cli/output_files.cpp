#include "host/cli/output_files.h"

#include <algorithm>
#include <cctype>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "host/cli/design_files.h"
#include "host/cli/failure.h"
#include "host/cli/geometry.h"
#include "host/cli/text_layout.h"
#include "host/files/atomic_file.h"

namespace headless::cli {

namespace fs = std::filesystem;

namespace {

bool isSameFile(const fs::path& a, const fs::path& b) {
  std::error_code isMissing;
  // A relative path of which nothing is there yet stays relative, unless it is made absolute first.
  const auto plain = [&](const fs::path& file) { return fs::weakly_canonical(fs::absolute(file), isMissing); };
  return fs::equivalent(a, b, isMissing) || plain(a) == plain(b);
}

void requireEnding(const NamedOutput& output) {
  std::string name = output.file.filename().u8string();
  std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
  const auto endsIn = [&](const std::string& ending) {
    return name.size() > ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
  };
  if (!output.endings.empty() && std::none_of(output.endings.begin(), output.endings.end(), endsIn)) {
    throw UsageError(std::string(output.option) + " " + output.file.u8string() + ": the name must end in " +
                     listed(output.endings, output.endings.size()));
  }
}

/// What the names alone tell. Gives the outputs that have a file.
std::vector<NamedOutput> checkNames(const fs::path& input, const std::vector<NamedOutput>& outputs) {
  std::vector<NamedOutput> named;
  for (const NamedOutput& output : outputs) {
    if (output.file.empty()) {
      continue;
    }
    if (isSameFile(input, output.file)) {
      throw UsageError("\"" + output.file.u8string() +
                       "\" is the file that is read, which is never changed: name another one");
    }
    for (const NamedOutput& other : named) {
      if (isSameFile(other.file, output.file)) {
        throw UsageError("\"" + output.file.u8string() + "\" is the file of both " + other.option + " and " +
                         output.option + ": name another one");
      }
    }
    named.push_back(output);
  }
  std::for_each(named.begin(), named.end(), requireEnding);
  return named;
}

}  // namespace

void checkDestinations(const fs::path& input, const std::vector<NamedOutput>& outputs) {
  for (const NamedOutput& output : checkNames(input, outputs)) {
    // The only sure way to learn whether the folder can be written.
    const files::AtomicFile rehearsal(output.file);
  }
}

void checkOutputs(const fs::path& input, const OutputFiles& outputs, const std::vector<NamedOutput>& others,
                  const char* designOption) {
  std::vector<NamedOutput> all = {{designOption, outputs.design, designEndings()}, {"--glb", outputs.glb, {".glb"}}};
  all.insert(all.end(), others.begin(), others.end());
  checkNames(input, all);
  for (const fs::path& file : {outputs.design, outputs.glb}) {
    if (!file.empty()) {
      requireGeometryFor(input, file);
    }
  }
  checkDestinations(input, all);
}

void writeOutputs(const model::Design& design, const OutputFiles& outputs, ProgressStyle progress) {
  const auto writeOne = [&](const fs::path& file, const auto& write) {
    if (file.empty()) {
      return;
    }
    {
      ProgressLine line(progress, "Writing", file.u8string());
      write(line.reporter());
    }
    std::cout << "Saved " << file.u8string() << "\n";
  };
  writeOne(outputs.design, [&](const files::Progress& report) { writeDesign(design, outputs.design, report); });
  writeOne(outputs.glb, [&](const files::Progress& report) { writeGlb(design, outputs.glb, report); });
}

}  // namespace headless::cli
