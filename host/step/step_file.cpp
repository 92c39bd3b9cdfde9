#include "host/step/step_file.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "host/step/error.h"

namespace headless::step {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view firstWords = "ISO-10303-21";
constexpr std::string_view lastWords = "END-ISO-10303-21";
constexpr std::size_t blockSize = std::size_t{1} << 16u;

std::string partOf(std::ifstream& input, std::uintmax_t from, std::uintmax_t length) {
  std::string text(static_cast<std::size_t>(length), '\0');
  input.seekg(static_cast<std::streamoff>(from));
  input.read(text.data(), static_cast<std::streamsize>(length));
  text.resize(static_cast<std::size_t>(input.gcount()));
  return text;
}

}  // namespace

bool isStepFile(const fs::path& file) {
  std::error_code error;
  std::ifstream input(file, std::ios::binary);
  return fs::is_regular_file(file, error) && partOf(input, 0, blockSize).find(firstWords) != std::string::npos;
}

void failReading(const fs::path& file, const std::string& why, const std::string& help) {
  throw Error("Cannot read \"" + file.u8string() + "\": " + why + ". " + help);
}

void checkStepFile(const fs::path& file) {
  std::error_code error;
  if (!fs::exists(file, error)) {
    if (error) {
      failReading(file, "it cannot be looked for (" + error.message() + ")",
                  "Check the name and that you may enter its folder.");
    }
    failReading(file, "there is no such file", "Check the name and the folder.");
  }
  if (!fs::is_regular_file(file, error)) {
    failReading(file, "that is not a file", "Give the name of a STEP file.");
  }
  std::ifstream input(file, std::ios::binary);
  const std::uintmax_t size = fs::file_size(file, error);
  if (!input || error) {
    failReading(file, "it cannot be opened", "Check that you may read it.");
  }
  if (size == 0) {
    failReading(file, "the file is empty", "Export it again.");
  }
  const std::uintmax_t length = std::min<std::uintmax_t>(size, blockSize);
  if (!isStepFile(file)) {
    failReading(file, "this is not a STEP file, it does not begin with " + std::string(firstWords),
                "Export the assembly as STEP AP203, AP214 or AP242; unpack it first when it is compressed.");
  }
  if (partOf(input, size - length, length).find(lastWords) == std::string::npos) {
    failReading(file, "the file ends early, " + std::string(lastWords) + " is missing",
                "Copy or export it again, it is incomplete.");
  }
}

ReportingBuffer::ReportingBuffer(const fs::path& file, Phase& shownPhase)
    : input(file, std::ios::binary),
      block(blockSize),
      size(static_cast<double>(fs::file_size(file))),
      phase(shownPhase) {}

ReportingBuffer::int_type ReportingBuffer::underflow() {
  input.read(block.data(), static_cast<std::streamsize>(block.size()));
  const std::streamsize count = input.gcount();
  if (count <= 0) {
    return traits_type::eof();
  }
  consumed += static_cast<double>(count);
  phase.reached(consumed / size);
  numberCheck.take({block.data(), static_cast<std::size_t>(count)});
  setg(block.data(), block.data(), block.data() + count);
  return traits_type::to_int_type(*gptr());
}

}  // namespace headless::step
