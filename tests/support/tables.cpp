#include "tests/support/tables.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <set>
#include <stdexcept>

namespace tests {

namespace {

/// With a line where there is a character that has a meaning in names of tests.
std::string asPartOfAName(std::string text) {
  for (char& c : text) {
    c = std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
  }
  return text;
}

/// Journals are named after tests, and some systems take letters of both cases in names of files for the same.
bool hasEqualNames(std::vector<std::string> names) {
  for (std::string& name : names) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  }
  return std::set<std::string>(names.begin(), names.end()).size() < names.size();
}

}  // namespace

const void*& rowOfNextTest() {
  static const void* row = nullptr;
  return row;
}

bool Table::addTest(const char* name, const char* file, int line, ::testing::Test* (*make)()) const {
  std::vector<std::string> names;
  for (const std::string& rowName : names_) {
    names.push_back(asPartOfAName(rowName));
  }
  if (names.empty()) {
    throw std::logic_error("the table of " + suite_ + " has no rows");
  }
  if (hasEqualNames(names)) {
    throw std::logic_error("two rows of the table of " + suite_ + " have the same name");
  }
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const std::string test = std::string(name) + "/" + names[i];
    ::testing::RegisterTest(suite_.c_str(), test.c_str(), nullptr, nullptr, file, line, [make, row = rows_[i]] {
      rowOfNextTest() = row;
      return make();
    });
  }
  return true;
}

std::vector<std::size_t> numbersBelow(std::size_t end) {
  std::vector<std::size_t> numbers(end);
  std::iota(numbers.begin(), numbers.end(), std::size_t{0});
  return numbers;
}

}  // namespace tests
