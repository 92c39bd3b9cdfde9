#include "tests/support/journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <utility>

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

std::string comparable(std::string journal, const fs::path& addInFolder) {
  std::replace(journal.begin(), journal.end(), '\\', '/');
  if (!addInFolder.empty()) {
    replaceAll(journal, addInFolder.generic_u8string(), "<add-in>");
  }
  return journal;
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
  const fs::path file = nextJournal();
  std::ofstream stream(file, std::ios::binary);
  stream << comparable(std::move(journal), addInFolder);
  if (!stream.flush()) {
    throw std::runtime_error("cannot write " + file.u8string());
  }
}

// FNV-1a, as what the standard library offers need not be the same everywhere.
std::uint64_t digestOfJournal(std::string journal, const fs::path& addInFolder) {
  std::uint64_t digest = 0xcbf29ce484222325U;
  for (const char byte : comparable(std::move(journal), addInFolder)) {
    digest = (digest ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
  }
  return digest;
}

}  // namespace tests
