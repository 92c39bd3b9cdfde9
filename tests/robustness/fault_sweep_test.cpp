// Calls that the add-in makes of the host fail once each, by answering nothing and by raising: nothing may crash, get
// lost or stay behind.
//
// A sitting makes some 1,200 calls of 130 names. The first and the last call of each name fail, and a sample of all
// others; TINTORA_SWEEP_STRIDE=1 makes the sample complete.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <set>

#include "tests/robustness/scenario.h"
#include "tests/support/addin_fixture.h"
#include "tests/support/journal.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using headless::BoundaryError;
using headless::Fault;
using headless::FaultAnswer;
using headless::Host;

class FaultSweep : public AddInTest {
 protected:
  FaultSweep() {
    // Few names, as each one costs several calls.
    removeLibraries("Appearances");
    removeLibraries("Materials");
    addAppearanceLibrary("RAL_COLORS.adsklib", "RAL_COLORS", {"RAL 1000 Green beige", "RAL 3000 Flame red"});
    addMaterialLibrary("Metals.adsklib", "Metals", {{"Steel 37", 7850}, {"Foam", 999.99}});
  }

  void useProfile(const headless::Profile& used) {
    profile = used;
    folder.remove(settingsFile());
    faultless = play("without faults");
    settingsTried.clear();
  }

  Outcome play(
      const std::string& about, const std::function<void(Host&)>& prepare = [](Host& /*host*/) {}) const {
    const Outcome outcome = playScenario(folder.module(), profile, [&](Host& host) {
      prepare(host);
      if (keepsJournals()) {
        host.gate().startJournal();
      }
    });
    if (keepsJournals()) {
      keepJournal(outcome.journal, folder.path(), profile.name + ", " + about);
    }
    return outcome;
  }

  void sweep(const Fault& fault) {
    const std::string name = fault.call + " number " + std::to_string(fault.nth);
    SCOPED_TRACE(name);
    folder.remove(settingsFile());
    const Outcome failed = play(name + (fault.answer == FaultAnswer::Nothing ? " answers nothing" : " raises"),
                                [&](Host& host) { host.gate().setFault(fault); });
    EXPECT_TRUE(failed.faultStruck);
    EXPECT_THAT(failed.findings, testing::IsEmpty());
    expectHarmless(failed.errors, fault);
    // A dialog that the host broke off in the making leaves the handles to the inputs of the one before.
    EXPECT_THAT(failed.misuses, testing::Each(testing::HasSubstr("CommandInput.")));
    // All that a sitting hands to the next one is the settings file: each one that comes of a fault is tried once.
    if (settingsTried.insert(folder.has(settingsFile()) ? folder.read(settingsFile()) : "none").second) {
      expectSameAsFaultless(play("with the settings of the one before"));
    }
  }

  /// What comes out is what a missing object, a missing name or the failed call itself raises.
  static void expectHarmless(const std::vector<BoundaryError>& errors, const Fault& fault) {
    std::size_t raised = 0;
    for (const BoundaryError& error : errors) {
      const bool isTheFault = error.what == fault.call + " was made to fail";
      EXPECT_THAT(error.kind, testing::AnyOf("std::exception", "std::out_of_range",
                                             isTheFault ? "std::runtime_error" : "std::exception"))
          << error.where << ": " << error.what;
      raised += isTheFault ? 1 : 0;
    }
    EXPECT_EQ(raised, fault.answer == FaultAnswer::Exception ? 1U : 0U);
  }

  /// For a sitting in a fresh session, with the settings that an earlier one left.
  void expectSameAsFaultless(const Outcome& outcome) const {
    EXPECT_THAT(outcome.errors, testing::IsEmpty());
    EXPECT_THAT(outcome.findings, testing::IsEmpty());
    EXPECT_THAT(outcome.misuses, testing::IsEmpty());
    EXPECT_EQ(outcome.impossible, faultless.impossible);
    EXPECT_EQ(outcome.messages, faultless.messages);
    EXPECT_EQ(outcome.undoSteps, faultless.undoSteps);
    EXPECT_EQ(outcome.looks, faultless.looks);
  }

  headless::Profile profile = headless::documentedProfile();
  Outcome faultless;

 private:
  std::set<std::string> settingsTried;
};

TEST_F(FaultSweep, SittingWithoutFaultsUsesEverything) {
  useProfile(headless::documentedProfile());
  EXPECT_THAT(faultless.errors, testing::IsEmpty());
  EXPECT_THAT(faultless.findings, testing::IsEmpty());
  EXPECT_THAT(faultless.misuses, testing::IsEmpty());
  EXPECT_THAT(faultless.impossible, testing::IsEmpty());
  EXPECT_EQ(faultless.undoSteps.size(), 4U);
  EXPECT_THAT(faultless.messages, testing::ElementsAre("Remove appearances applied to faces?",
                                                       "Remove appearances applied to bodies & faces?"));
  EXPECT_GT(faultless.callsByName.size(), 100U);
}

class WholeSitting : public FaultSweep, public WithRow<std::string> {
 protected:
  std::string journalOfASitting() {
    folder.remove(settingsFile());
    return play("whole", [](Host& host) { host.gate().startJournal(); }).journal;
  }
};

TABLE_OF_PROFILES(WholeSitting);

TABLE_TEST(WholeSitting, MakesTheSameCallsEveryTime) {
  profile = headless::profileNamed(row());
  const std::string journal = journalOfASitting();
  EXPECT_GT(std::count(journal.begin(), journal.end(), '\n'), 1000);
  EXPECT_EQ(journal, journalOfASitting());
}

/// Which call of each name fails.
enum class Which { First, Last };

struct SweepCase {
  std::string profile;
  FaultAnswer answer = FaultAnswer::Nothing;
  Which which = Which::First;
};

void PrintTo(const SweepCase& value, std::ostream* stream) {
  const char* const ordinal = value.which == Which::First ? "First" : "Last";
  *stream << ordinal << "CallOfEachName" << (value.answer == FaultAnswer::Nothing ? "AnswersNothing" : "Raises") << "_"
          << value.profile;
}

// A lenient host does less than a documented one; the sample of all calls has it as well.
std::vector<SweepCase> sweepCases() {
  std::vector<SweepCase> cases;
  for (const char* profile : {"documented", "hostile"}) {
    for (const FaultAnswer answer : {FaultAnswer::Nothing, FaultAnswer::Exception}) {
      for (const Which which : {Which::First, Which::Last}) {
        cases.push_back({profile, answer, which});
      }
    }
  }
  return cases;
}

class FaultSweepByName : public FaultSweep, public WithRow<SweepCase> {};

TABLE(
    Calls, FaultSweepByName, [](const auto& row) { return testing::PrintToString(row); }, sweepCases());

TABLE_TEST(FaultSweepByName, LeavesNothingBroken) {
  const auto& [profileName, answer, which] = row();
  useProfile(headless::profileNamed(profileName));
  for (const auto& [name, count] : faultless.callsByName) {
    // Each call once: where there is one of a name, the first is also the last.
    if (which == Which::First || count > 1) {
      sweep({which == Which::First ? 1 : count, answer, name});
    }
  }
}

/// How many faults lie between two that are tried: 1 tries each and every one, which takes some minutes.
std::size_t sweepStride() {
  const char* const text = std::getenv("TINTORA_SWEEP_STRIDE");
  return text == nullptr ? 101 : std::stoul(text);
}

TEST_F(FaultSweep, CallsAnywhereInTheSittingLeaveNothingBroken) {
  const std::size_t stride = sweepStride();
  ASSERT_GT(stride, 0U);
  std::size_t number = 0;
  std::size_t tried = 0;
  for (const std::string& profileName : headless::profileNames()) {
    useProfile(headless::profileNamed(profileName));
    for (const auto& [name, count] : faultless.callsByName) {
      for (std::size_t nth = 1; nth <= count; ++nth) {
        for (const FaultAnswer answer : {FaultAnswer::Nothing, FaultAnswer::Exception}) {
          if (number++ % stride == 0) {
            sweep({nth, answer, name});
            ++tried;
          }
        }
      }
    }
  }
  EXPECT_EQ(tried, (number + stride - 1) / stride);
  RecordProperty("faults", std::to_string(number));
}

}  // namespace
}  // namespace tests
