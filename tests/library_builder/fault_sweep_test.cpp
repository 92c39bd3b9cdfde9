// Every kind of call that the library builder makes while all goes well fails once, by answering nothing and by
// raising: nothing crashes or is left half-made, the user is told, and running it again makes the rest. Calls that it
// only makes upon a failure are made to fail in failures_test.cpp.
#include <map>
#include <tuple>

#include "tests/library_builder/builder_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;

/// What the run finds in which a call fails.
enum class Open { Nothing, UnfinishedDesign };

/// A run that is cancelled after a few colours and has a failing call, and one that is to complete them.
class LibraryBuilderFaultSweep : public LibraryBuilderTest, public WithRow<std::pair<Open, FaultAnswer>> {
 protected:
  using CallCounts = std::map<std::string, std::size_t>;

  bool goesOn() const { return std::get<Open>(row()) == Open::UnfinishedDesign; }
  FaultAnswer answer() const { return std::get<FaultAnswer>(row()); }

  /// A fresh host, with what is to be open; whether to go on with it is answered with yes.
  void prepare() {
    start();
    if (goesOn()) {
      EXPECT_TRUE(buildAndCancelAfter(3));
      session().answerAlways(adsk::core::DialogYes);
    }
    messagesBefore = messages().size();
  }

  bool buildAFew() { return buildAndCancelAfter(goesOn() ? 6 : 3); }

  CallCounts faultless() {
    prepare();
    host().gate().resetCounts();
    EXPECT_TRUE(buildAFew());
    return host().gate().countsByName();
  }

  /// The colours are those of the table, in its order, as far as there are any.
  void expectNothingHalfMade() {
    const std::vector<RalRow> made = appearances();
    EXPECT_EQ(made, firstRows(made.size()));
  }

  void sweep(const std::string& call, std::size_t nth) {
    SCOPED_TRACE(call + " number " + std::to_string(nth));
    prepare();
    about = call + " number " + std::to_string(nth);
    host().gate().setFault({nth, answer(), call});
    const bool isDone = buildAFew();
    EXPECT_TRUE(host().gate().faultStruck());
    expectNothingHalfMade();
    expectTold(isDone, call, nth);
    EXPECT_FALSE(session().isProgressShown());
    EXPECT_THAT(host().gate().misuses(), IsEmpty());
    EXPECT_THAT(host().inconsistencies(), IsEmpty());

    host().gate().clearFault();
    session().answerAlways(adsk::core::DialogYes);
    EXPECT_TRUE(build());
    EXPECT_EQ(appearances(), ralTable());
  }

  /// A message at the end, unless it is the way to the user that failed.
  void expectTold(bool isDone, const std::string& call, std::size_t nth) {
    const std::vector<std::string> errors = takeErrors();
    // Without a user interface nobody can be told; what is raised on the way to it, the host tells.
    if (call == "Application.get" || call == "Application.userInterface") {
      EXPECT_FALSE(isDone);
      EXPECT_EQ(messages().size(), messagesBefore);
      EXPECT_EQ(errors.size(), answer() == FaultAnswer::Exception ? 1U : 0U);
      return;
    }
    // A dialog that could not be hidden is taken away by the host, which says so.
    if (call == "ProgressDialog.hide") {
      EXPECT_THAT(errors,
                  testing::ElementsAre("run: the script left its progress dialog behind: Tintora library builder"));
    } else {
      EXPECT_THAT(errors, IsEmpty());
    }
    // Nobody knows whether a closing message that answers nothing was shown; one that raises is told as an
    // interruption, and a question that answers nothing as one without an answer.
    const bool isQuestion = goesOn() && nth == 1;
    if (call == "UserInterface.messageBox" && !isQuestion && answer() == FaultAnswer::Nothing) {
      EXPECT_EQ(messages().size(), messagesBefore + (goesOn() ? 1U : 0U));
      return;
    }
    ASSERT_GT(messages().size(), messagesBefore);
    EXPECT_LE(messages().size(), messagesBefore + (goesOn() ? 2U : 1U));
    if (isDone) {
      EXPECT_THAT(lastMessage().text, HasSubstr(" of 216 RAL appearances are in the design"));
    } else {
      EXPECT_THAT(lastMessage().text, AnyOf(HasSubstr("un the library builder"), HasSubstr("un it again")));
    }
  }

  std::size_t messagesBefore = 0;
};

TABLE(
    Answers, LibraryBuilderFaultSweep,
    [](const auto& row) {
      const bool raises = std::get<FaultAnswer>(row) == FaultAnswer::Exception;
      const bool goesOn = std::get<Open>(row) == Open::UnfinishedDesign;
      return std::string(goesOn ? "GoingOn" : "Anew") + (raises ? "Exception" : "Nothing");
    },
    everyPair(std::vector{Open::Nothing, Open::UnfinishedDesign},
              std::vector{FaultAnswer::Nothing, FaultAnswer::Exception}));

TABLE_TEST(LibraryBuilderFaultSweep, LeavesNothingBroken) {
  const CallCounts counts = faultless();
  EXPECT_GT(counts.size(), 30U);
  EXPECT_EQ(counts.count("Documents.add"), goesOn() ? 0U : 1U);
  EXPECT_EQ(counts.count("Component.name"), goesOn() ? 1U : 0U);
  for (const auto& [call, count] : counts) {
    sweep(call, 1);
    if (count > 1) {
      sweep(call, count);
    }
  }
}

}  // namespace
}  // namespace tests
