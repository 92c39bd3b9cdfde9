// How long the add-in takes, and how many host calls it makes for each object that it has to look at. The counter
// "calls_per_object" must not grow with the size of the design or library.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "host/runtime/session.h"
#include "tests/support/addin_folder.h"
#include "tests/support/designs.h"
#include "tests/support/libraries.h"

namespace {

using headless::Session;

// An open dialog of an add-in with an appearance library of that many names.
class Bench {
 public:
  Bench(std::size_t colours, std::unique_ptr<headless::model::Design> design) : session(profile()) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < colours; ++i) {
      names.push_back("RAL " + std::to_string(1000 + i) + " Colour");
    }
    folder.write(tests::appearancesFolder / "RAL_COLORS.adsklib", tests::appearanceLibrary("RAL_COLORS", names));
    folder.write(tests::materialsFolder / "Metals.adsklib", tests::materialLibrary("Metals", {{"Steel", 7850}}));
    session.answerAlways(adsk::core::DialogYes);
    session.openDesign(std::move(design));
    session.loadAddIn(folder.module());
    session.runAddIn();
    session.press("idAssetsMatMng");
  }

  ~Bench() { session.stopAddIn(); }
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  // The dialog's filters never let the root component through; without filters anything may be picked.
  void pickRoot() {
    session.host().ui().runner().active()->selectionInput()->clearSelectionFilter();
    session.pick(session.host().document()->entities->component(session.design().root()));
  }

  std::size_t calls() { return session.host().gate().callCount(); }

  tests::AddInFolder folder;
  Session session;

 private:
  // Selections stay, so that an iteration does not have to pick again.
  static headless::Profile profile() { return headless::lenientProfile(); }
};

// Takes something out of the measured time.
class Pause {
 public:
  explicit Pause(benchmark::State& measured) : state(measured) { state.PauseTiming(); }
  ~Pause() { state.ResumeTiming(); }
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

 private:
  benchmark::State& state;
};

void reportCalls(benchmark::State& state, std::size_t calls, std::size_t objects) {
  state.counters["objects"] = static_cast<double>(objects);
  state.counters["calls_per_object"] =
      static_cast<double>(calls) / static_cast<double>(state.iterations()) / static_cast<double>(objects);
}

void buildDialog(benchmark::State& state) {
  const auto colours = static_cast<std::size_t>(state.range(0));
  Bench bench(colours, tests::machine());
  const std::size_t before = bench.calls();
  for (auto _ : state) {
    bench.session.pressCancel();
    bench.session.press("idAssetsMatMng");
  }
  reportCalls(state, bench.calls() - before, colours);
}
BENCHMARK(buildDialog)->Arg(216)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

void typeOneKey(benchmark::State& state) {
  const auto colours = static_cast<std::size_t>(state.range(0));
  Bench bench(colours, tests::machine());
  std::size_t calls = 0;
  for (auto _ : state) {
    {
      const Pause pause(state);
      bench.session.type("idFilterAppearance", "ra");
    }
    const std::size_t before = bench.calls();
    // Every name matches, so that the whole list is built again.
    bench.session.type("idFilterAppearance", "ral");
    calls += bench.calls() - before;
    const Pause pause(state);
    bench.session.type("idFilterAppearance", "");
  }
  reportCalls(state, calls, colours);
}
BENCHMARK(typeOneKey)->Arg(216)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);

// An occurrence, its body and the body's face.
constexpr std::size_t objectsPerOccurrence = 3;

void selectRoot(benchmark::State& state, std::unique_ptr<headless::model::Design> (*makeDesign)(std::size_t)) {
  const auto occurrences = static_cast<std::size_t>(state.range(0));
  Bench bench(216, makeDesign(occurrences));
  const std::size_t before = bench.calls();
  for (auto _ : state) {
    bench.pickRoot();
    bench.session.clearPicks();
  }
  reportCalls(state, bench.calls() - before, occurrences * objectsPerOccurrence);
}
// Deep chains cost the headless host more: what an object shows is looked for in all occurrences above it.
BENCHMARK_CAPTURE(selectRoot, flat, tests::flatDesign)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(selectRoot, chain, tests::chainDesign)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

void applyToRoot(benchmark::State& state, std::unique_ptr<headless::model::Design> (*makeDesign)(std::size_t)) {
  const auto occurrences = static_cast<std::size_t>(state.range(0));
  Bench bench(216, makeDesign(occurrences));
  std::size_t calls = 0;
  for (auto _ : state) {
    {
      const Pause pause(state);
      bench.session.clearPicks();
      bench.pickRoot();
    }
    const std::size_t before = bench.calls();
    bench.session.click("idBtnApply");
    calls += bench.calls() - before;
  }
  reportCalls(state, calls, occurrences * objectsPerOccurrence);
}
BENCHMARK_CAPTURE(applyToRoot, flat, tests::flatDesign)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(applyToRoot, chain, tests::chainDesign)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
