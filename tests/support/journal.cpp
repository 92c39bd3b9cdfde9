#include "tests/support/journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

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

/// A name that no journal has yet: a test may open several sessions.
fs::path nextJournal() {
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(test.test_suite_name()) + "." + test.name();
  std::replace(name.begin(), name.end(), '/', '.');
  for (int number = 1;; ++number) {
    const fs::path file = fs::u8path(journalFolder()) / (name + "." + std::to_string(number) + ".txt");
    if (!fs::exists(file)) {
      return file;
    }
  }
}

}  // namespace

bool keepsJournals() {
  return journalFolder() != nullptr;
}

void keepJournal(std::string journal, const fs::path& addInFolder) {
  std::replace(journal.begin(), journal.end(), '\\', '/');
  replaceAll(journal, addInFolder.generic_u8string(), "<add-in>");
  const fs::path file = nextJournal();
  std::ofstream stream(file, std::ios::binary);
  stream << journal;
  if (!stream.flush()) {
    throw std::runtime_error("cannot write " + file.u8string());
  }
}

}  // namespace tests
