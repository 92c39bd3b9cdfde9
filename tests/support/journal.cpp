#include "tests/support/journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "host/runtime/call_gate.h"

namespace tests {

namespace fs = std::filesystem;

namespace {

const char* journalFolder() {
  return std::getenv("TINTORA_JOURNALS");
}

void replaceAll(std::string& text, const std::string& part, const std::string& replacement) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + replacement.size())) {
    text.replace(at, part.size(), replacement);
  }
}

std::string comparable(std::string calls, const fs::path& addInFolder) {
  if (addInFolder.empty()) {
    return calls;
  }
  const std::string folder = addInFolder.generic_u8string();
  std::string slashed = calls;
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  // Paths of icons begin below the folder. A path ends with its text.
  for (const std::string& start : {folder, std::string("\"resources/")}) {
    std::size_t end = 0;
    for (std::size_t at = slashed.find(start); at != std::string::npos; at = slashed.find(start, end)) {
      end = std::min(slashed.find_first_of("\"\n", at + start.size()), slashed.size());
      calls.replace(at, end - at, slashed, at, end - at);
    }
  }
  replaceAll(calls, folder, "<add-in>");
  return calls;
}

class Journal {
 public:
  explicit Journal(const std::string& testName)
      : test(testName), file(fs::u8path(journalFolder()) / (testName + ".txt")) {
    fs::create_directories(file.parent_path());
    stream.open(file, std::ios::binary);
  }

  bool isOf(const std::string& testName) const { return test == testName; }

  void add(const std::string& calls, const std::string& about) {
    stream << "=sitting " << ++sittings << (about.empty() ? "" : ", ") << about << "\n";
    for (std::size_t at = 0; at < calls.size();) {
      const std::size_t end = std::min(calls.find('\n', at), calls.size());
      addLine(calls.substr(at, end - at));
      at = end + 1;
    }
    endRun();
    if (!stream.flush()) {
      throw std::runtime_error("cannot write " + file.u8string());
    }
  }

 private:
  void addLine(std::string line) {
    const auto [known, isNew] = numbers.try_emplace(std::move(line), numbers.size() + 1);
    const std::size_t number = known->second;
    if (isNew) {
      endRun();
      stream << "+" << known->first << "\n";
    } else if (runLast != 0 && number == runLast + 1) {
      runLast = number;
    } else {
      endRun();
      runFirst = runLast = number;
    }
  }

  /// Writes the known lines in a row that were not written yet.
  void endRun() {
    if (runLast != 0) {
      stream << runFirst;
      if (runLast != runFirst) {
        stream << "-" << runLast;
      }
      stream << "\n";
    }
    runFirst = runLast = 0;
  }

  std::string test;
  fs::path file;
  std::ofstream stream;
  std::size_t sittings = 0;
  std::unordered_map<std::string, std::size_t> numbers;
  std::size_t runFirst = 0;
  std::size_t runLast = 0;
};

Journal& journalOfThisTest() {
  static std::optional<Journal> journal;
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(test.test_suite_name()) + "." + test.name();
  std::replace(name.begin(), name.end(), '/', '.');
  if (!journal || !journal->isOf(name)) {
    journal.emplace(name);
  }
  return *journal;
}

}  // namespace

bool keepsJournals() {
  return journalFolder() != nullptr;
}

void keepJournal(std::string calls, const fs::path& addInFolder, const std::string& about) {
  EXPECT_EQ(calls.find(headless::CallGate::orderIsLost), std::string::npos) << "this journal cannot be compared";
  journalOfThisTest().add(comparable(std::move(calls), addInFolder), about);
}

}  // namespace tests
