// A person without any plan uses the add-in for a long time, under each kind of host.
#include "tests/robustness/random_user.h"

#include <algorithm>
#include <numeric>
#include <sstream>

#include "tests/robustness/shortest_failing.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/journal.h"
#include "tests/support/seed.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::Session;

class RandomUserTest : public AddInTest {
 protected:
  RandomUserTest() {
    addAppearanceLibrary("Woods.adsklib", "Woods", {"Oak", "Walnut"});
    addMaterialLibrary("Plastics.adsklib", "Plastics", {{"ABS", 1040}, {"Käse", 1100}});
    if (keepsJournals()) {
      folder.listLibrariesByName();
    }
  }
};

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

class RandomUserUnderProfile : public RandomUserTest, public WithRow<std::string> {};

TABLE_OF_PROFILES(RandomUserUnderProfile);

TABLE_TEST(RandomUserUnderProfile, DoesNoHarm) {
  constexpr unsigned sittings = 12;
  constexpr std::size_t actionsEach = 300;
  const unsigned seed = seedOfThisRun();
  const RandomUser user(folder.module(), headless::profileNamed(row()));
  for (unsigned sitting = 0; sitting < sittings; ++sitting) {
    const std::vector<UserAction> actions = randomActions(seed + sitting, actionsEach);
    if (!user.troubleWith(actions).empty()) {
      FAIL() << "sitting " << sitting << " of seed " << seed << "; the shortest way to the trouble:\n"
             << user.explain(actions);
    }
  }
}

TEST_F(RandomUserTest, SeesTroubleAndTellsTheShortestWayToIt) {
  const Check facePicked = [](Session& session) -> std::vector<std::string> {
    if (session.isDialogOpen() && session.input("idFilterSelect").selectedName() == "Face" &&
        !session.picked().empty()) {
      return {"a face is picked"};
    }
    return {};
  };
  const RandomUser user(folder.module(), headless::documentedProfile(), facePicked);
  const std::vector<UserAction> actions = randomActions(1, 400);
  ASSERT_FALSE(user.troubleWith(actions).empty());
  const std::string text = user.explain(actions);
  EXPECT_THAT(linesOf(text), testing::ElementsAre(
                                 testing::StartsWith("  press idAssetsMatMng"),
                                 testing::AllOf(testing::StartsWith("  pick "), testing::EndsWith("under its filter")),
                                 "trouble: a face is picked"));
}

TEST_F(RandomUserTest, SeesAnExceptionOfTheAddIn) {
  const RandomUser user(folder.module(), headless::documentedProfile(), [](Session& session) {
    session.host().gate().setFault({1, headless::FaultAnswer::Exception, "BRepBody.material"});
    return std::vector<std::string>();
  });
  EXPECT_THAT(user.explain(randomActions(1, 400)), testing::HasSubstr("BRepBody.material was made to fail"));
}

TEST(ShortestFailing, KeepsWhatIsNeededInItsOrder) {
  std::vector<int> items(100);
  std::iota(items.begin(), items.end(), 0);
  const auto fails = [](const std::vector<int>& some) {
    const auto three = std::find(some.begin(), some.end(), 3);
    return std::find(three, some.end(), 70) != some.end() && std::find(some.begin(), some.end(), 71) != some.end();
  };
  EXPECT_EQ(shortestFailing<int>(items, fails), (std::vector<int>{3, 70, 71}));
}

TEST(ShortestFailing, MayNeedNothingAtAll) {
  EXPECT_TRUE(shortestFailing<int>({1, 2, 3}, [](const std::vector<int>& /*some*/) { return true; }).empty());
}

TEST(ShortestFailing, MayNeedEverything) {
  const auto fails = [](const std::vector<int>& some) { return some.size() == 3; };
  EXPECT_EQ(shortestFailing<int>({1, 2, 3}, fails).size(), 3U);
}

}  // namespace
}  // namespace tests
