// Tests that run once for each row of a table:
//
//   class Halves : public ::testing::Test, public WithRow<Division> {};
//
//   TABLE(Numbers, Halves, byName, {{"Even", 4, 2}, {"Odd", 5, 2}});
//
//   TABLE_TEST(Halves, AreRoundedDown) { EXPECT_EQ(half(row().whole), row().half); }
//
// runs Numbers/Halves.AreRoundedDown/Even and .../Odd. Googletest's own tests with parameters do the same, but for each
// table make compilers build several hundred functions: half of all the time that building the tests took.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// The row that the next test is made for; set before its fixture is.
const void*& rowOfNextTest();

/// To be inherited by a fixture, beside what else it is.
template <typename RowType>
class WithRow {
 public:
  using Row = RowType;

 protected:
  /// What the running test is about. The table owns it.
  const Row& row() const { return *row_; }

 private:
  const Row* row_ = static_cast<const Row*>(rowOfNextTest());
};

/// For tables whose rows need no names: tests are told apart by the row's number.
struct ByNumber {};
inline constexpr ByNumber byNumber;
/// Names tests after the member `name` of their rows.
inline constexpr auto byName = [](const auto& row) { return std::string(row.name); };
/// Names tests after their rows, which are texts of any kind.
inline constexpr auto byText = [](const auto& row) { return std::string(row); };

/// The rows of a table, whatever they are, with the names of the tests that they make.
class Table {
 public:
  /// The rows stay with the caller.
  template <typename Row, typename NameOf>
  Table(std::string suite, const std::vector<Row>& rows, const NameOf& nameOf) : suite_(std::move(suite)) {
    for (const Row& row : rows) {
      rows_.push_back(&row);
      names_.push_back(nameOf(row));
    }
  }
  template <typename Row>
  Table(std::string suite, const std::vector<Row>& rows, ByNumber /*names*/)
      : Table(std::move(suite), rows, [&](const Row& row) { return std::to_string(&row - rows.data()); }) {}

  /// Makes a test for each row known to googletest. Gives true, so that it can be called where variables are defined.
  /// Raises std::logic_error where there are no rows, or two of one name, in whatever case: there would be fewer tests
  /// or journals.
  bool addTest(const char* name, const char* file, int line, ::testing::Test* (*make)()) const;

 private:
  std::string suite_;
  std::vector<const void*> rows_;
  std::vector<std::string> names_;
};

/// The numbers below that one, as rows.
std::vector<std::size_t> numbersBelow(std::size_t end);

/// Every one of the first with every one of the second, as rows.
template <typename First, typename Second>
std::vector<std::pair<First, Second>> everyPair(const std::vector<First>& firsts, const std::vector<Second>& seconds) {
  std::vector<std::pair<First, Second>> pairs;
  for (const First& first : firsts) {
    for (const Second& second : seconds) {
      pairs.emplace_back(first, second);
    }
  }
  return pairs;
}

}  // namespace tests

/// The rows that the tests of a fixture run for; nameOf takes a row. Stands before the tests.
#define TABLE(Prefix, Fixture, nameOf, ...)                                             \
  const ::tests::Table& tableOf##Fixture() {                                            \
    static const std::vector<Fixture::Row> rows = __VA_ARGS__;                          \
    static const ::tests::Table table(std::string(#Prefix "/" #Fixture), rows, nameOf); \
    return table;                                                                       \
  }                                                                                     \
  static_assert(true)

/// A test that runs for each row of its fixture's table. SetUpTestSuite of the fixture is not called.
#define TABLE_TEST(Fixture, Name)                                                                   \
  class Fixture##_##Name##_Test : public Fixture {                                                  \
    void TestBody() override;                                                                       \
  };                                                                                                \
  [[maybe_unused]] const bool Fixture##_##Name##_isKnown = tableOf##Fixture().addTest(              \
      #Name, __FILE__, __LINE__, []() -> ::testing::Test* { return new Fixture##_##Name##_Test; }); \
  void Fixture##_##Name##_Test::TestBody()
