#include "tests/support/tables.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace tests {
namespace {

struct Spelling {
  const char* name;
  const char* inTheTest;
};

class Spellings : public ::testing::Test, public WithRow<Spelling> {};

TABLE(Texts, Spellings, byName, {{"plain", "plain"}, {"A 1", "A_1"}, {"a.b=", "a_b_"}, {"adsk::Color", "adsk__Color"}});

TABLE_TEST(Spellings, EachRowHasATestOfItsName) {
  const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
  EXPECT_STREQ(test.test_suite_name(), "Texts/Spellings");
  EXPECT_EQ(test.name(), std::string("EachRowHasATestOfItsName/") + row().inTheTest);
}

class Numbers : public ::testing::Test, public WithRow<std::size_t> {};

TABLE(Some, Numbers, byNumber, numbersBelow(3));

TABLE_TEST(Numbers, AreThoseOfTheirRows) {
  const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
  EXPECT_EQ(test.name(), "AreThoseOfTheirRows/" + std::to_string(row()));
}

::testing::Test* noTest() {
  return nullptr;
}

TEST(Tables, WithoutRowsAreAMistake) {
  const std::vector<std::string> none;
  EXPECT_THROW(Table("Some/Fixture", none, byText).addTest("Test", "file", 1, noTest), std::logic_error);
}

TEST(Tables, WhoseTestsWouldHaveTheSameNameAreAMistake) {
  for (const char* alike : {"a b", "A.B"}) {
    const std::vector<std::string> rows = {"a.b", "c", alike};
    EXPECT_THROW(Table("Some/Fixture", rows, byText).addTest("Test", "file", 1, noTest), std::logic_error) << alike;
  }
}

TEST(Tables, OfPairsHaveEveryOneWithEveryOther) {
  EXPECT_THAT(everyPair(std::vector<int>{1, 2}, std::vector<char>{'a', 'b'}),
              ::testing::ElementsAre(std::pair(1, 'a'), std::pair(1, 'b'), std::pair(2, 'a'), std::pair(2, 'b')));
}

}  // namespace
}  // namespace tests
