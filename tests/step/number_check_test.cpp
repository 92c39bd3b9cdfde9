#include "host/step/number_check.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/tables.h"

namespace headless::step {
namespace {

struct Numbers {
  const char* name;
  std::string text;
  const char* damage;
};

class NumberChecks : public ::testing::Test, public tests::WithRow<Numbers> {};

TABLE(NumberCheck, NumberChecks, tests::byName,
      {{"Sound", "#1=CARTESIAN_POINT('',(0.,-1.5E+002,2.E-300));", ""},
       {"Infinite", "#1=DIRECTION('',(1.,0.));\n#23 = CARTESIAN_POINT('',(0.,1.E999,1.E998));", "#23 (1.E999)"},
       {"Negative", "#1=LINE(#2, -1.E+0200 ,#3);", "#1 (-1.E+0200)"},
       {"AlmostNone", "#1=LINE(1.E-999);", ""},
       {"ManyDigits", "#1=LINE(1" + std::string(200, '0') + ".);", nullptr},
       {"ManyDecimals", "#1=LINE(0." + std::string(200, '3') + ");", ""},
       {"InATyped", "#1=(LENGTH_MEASURE(1.E200)NAMED_UNIT(*));", "#1 (1.E200)"},
       {"Names", "#1=AP203E999('1.E999',B1E999,.E999.,#2);", ""},
       {"Apostrophe", "#1=A('it''s 1.E999',1.);", ""},
       {"Comment", "#1=A(/* it's 1.E999 */2.);/*/ 3.E999 /**/#2=B(1.E999);", "#2 (1.E999)"}});

TABLE_TEST(NumberChecks, FindTheFirstThatIsTooLarge) {
  const std::string expected = row().damage != nullptr ? row().damage : "#1 (1" + std::string(200, '0') + ".)";
  NumberCheck whole;
  whole.take(row().text);
  EXPECT_EQ(whole.firstDamage(), expected);
  NumberCheck inPieces;
  for (const char character : row().text) {
    inPieces.take({&character, 1});
  }
  EXPECT_EQ(inPieces.firstDamage(), expected);
}

}  // namespace
}  // namespace headless::step
