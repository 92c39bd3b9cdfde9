// Every kind of call that the library builder makes fails once, by answering nothing and by raising: nothing crashes or
// is left half-made, the user is told, and running it again makes the rest.
#include <map>

#include "tests/library_builder/builder_fixture.h"

namespace tests {
namespace {

using headless::FaultAnswer;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;

/// Two runs: one that is cancelled after a few colours, and one that is to complete them.
class LibraryBuilderFaultSweep : public LibraryBuilderTest, public testing::WithParamInterface<FaultAnswer> {
 protected:
  using CallCounts = std::map<std::string, std::size_t>;

  CallCounts faultless() {
    start();
    host().gate().resetCounts();
    EXPECT_TRUE(buildAndCancelAfter(3));
    return host().gate().countsByName();
  }

  /// The colours are those of the table, in its order, as far as there are any.
  void expectNothingHalfMade() {
    const std::vector<RalRow> made = appearances();
    EXPECT_EQ(made, firstRows(made.size()));
  }

  void sweep(const std::string& call, std::size_t nth) {
    SCOPED_TRACE(call + " number " + std::to_string(nth));
    start();
    host().gate().setFault({nth, GetParam(), call});
    const bool isDone = buildAndCancelAfter(3);
    EXPECT_TRUE(host().gate().faultStruck());
    expectNothingHalfMade();
    expectTold(isDone, call);
    EXPECT_FALSE(session().isProgressShown());
    EXPECT_THAT(host().gate().misuses(), IsEmpty());
    EXPECT_THAT(host().inconsistencies(), IsEmpty());

    host().gate().clearFault();
    session().answerAlways(adsk::core::DialogYes);
    EXPECT_TRUE(build());
    EXPECT_EQ(appearances(), ralTable());
  }

  /// A message, unless it is the way to the user that failed.
  void expectTold(bool isDone, const std::string& call) {
    std::vector<std::string> errors = takeErrors();
    // Without a user interface nobody can be told; what is raised on the way to it, the host tells.
    if (call == "Application.get" || call == "Application.userInterface") {
      EXPECT_FALSE(isDone);
      EXPECT_THAT(messages(), IsEmpty());
      EXPECT_EQ(errors.size(), GetParam() == FaultAnswer::Exception ? 1U : 0U);
      return;
    }
    // Nobody knows whether a message that answers nothing was shown; one that raises is told as an interruption.
    if (call == "UserInterface.messageBox" && GetParam() == FaultAnswer::Nothing) {
      EXPECT_THAT(messages(), IsEmpty());
      EXPECT_THAT(errors, IsEmpty());
      return;
    }
    // A dialog that could not be hidden is taken away by the host, which says so.
    if (call == "ProgressDialog.hide") {
      EXPECT_THAT(errors,
                  testing::ElementsAre("run: the script left its progress dialog behind: Tintora library builder"));
    } else {
      EXPECT_THAT(errors, IsEmpty());
    }
    ASSERT_EQ(messages().size(), 1U);
    if (isDone) {
      EXPECT_THAT(messages()[0], HasSubstr(" of 216 RAL appearances are in the design"));
    } else {
      EXPECT_THAT(messages()[0], AnyOf(HasSubstr("un the library builder"), HasSubstr("un it again")));
    }
  }
};

TEST_P(LibraryBuilderFaultSweep, LeavesNothingBroken) {
  const CallCounts counts = faultless();
  EXPECT_GT(counts.size(), 30U);
  for (const auto& [call, count] : counts) {
    sweep(call, 1);
    if (count > 1) {
      sweep(call, count);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Answers, LibraryBuilderFaultSweep,
                         testing::Values(FaultAnswer::Nothing, FaultAnswer::Exception),
                         [](const auto& info) { return info.param == FaultAnswer::Nothing ? "Nothing" : "Exception"; });

}  // namespace
}  // namespace tests
