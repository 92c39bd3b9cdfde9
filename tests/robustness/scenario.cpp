#include "tests/robustness/scenario.h"

#include <utility>

#include "tests/robustness/painted_machine.h"
#include "tests/robustness/undo_watch.h"

namespace tests {

using headless::Session;
using headless::model::Design;

namespace {

struct Step {
  const char* name;
  std::function<void(Session&)> carryOut;
  bool movesInHistory = false;
};

const std::vector<Step>& steps() {
  static const std::vector<Step> all = {
      {"press the button", [](Session& session) { session.press("idAssetsMatMng"); }},
      // From here on every choice is made, whatever the settings of an earlier sitting brought back.
      {"choose bodies", [](Session& session) { session.choose("idFilterSelect", "Body"); }},
      {"open the appearance group", [](Session& session) { session.expand("idGroupAppearance", true); }},
      {"tick the appearance group", [](Session& session) { session.tick("idGroupAppearance", true); }},
      {"open the material group", [](Session& session) { session.expand("idGroupMaterial", true); }},
      {"tick the material group", [](Session& session) { session.tick("idGroupMaterial", true); }},
      {"keep looks", [](Session& session) { session.tick("idKeepAppearance", false); }},
      {"filter the materials", [](Session& session) { session.type("idFilterMaterial", "st"); }},
      {"pick a painted body", [](Session& session) { session.pick("Frame:1+Plate:1/Plate1"); }},
      {"pick a second body", [](Session& session) { session.pick("Base"); }},
      {"filter the appearances", [](Session& session) { session.type("idFilterAppearance", "30"); }},
      {"apply both, clearing faces", [](Session& session) { session.click("idBtnApply"); }},
      {"choose components", [](Session& session) { session.choose("idFilterSelect", "Component"); }},
      {"pick an occurrence", [](Session& session) { session.pick("Frame:2"); }},
      {"close the material group", [](Session& session) { session.expand("idGroupMaterial", false); }},
      {"apply the appearance", [](Session& session) { session.click("idBtnApply"); }},
      {"pick a painted occurrence", [](Session& session) { session.pick("Frame:1"); }},
      {"remove", [](Session& session) { session.click("idRemoveAssignAppearance"); }},
      {"open the material group again", [](Session& session) { session.expand("idGroupMaterial", true); }},
      {"let the material give the look", [](Session& session) { session.tick("idKeepAppearance", true); }},
      {"list all materials", [](Session& session) { session.type("idFilterMaterial", ""); }},
      {"choose a material", [](Session& session) { session.choose("idMaterialList", "Foam"); }},
      {"choose faces", [](Session& session) { session.choose("idFilterSelect", "Face"); }},
      {"pick a face", [](Session& session) { session.pick("Bolt:2/Head/Face1"); }},
      {"apply the material", [](Session& session) { session.click("idBtnApply"); }},
      {"close", [](Session& session) { session.pressCancel(); }},
      {"undo", [](Session& session) { session.undo(); }, true},
      {"redo", [](Session& session) { session.redo(); }, true},
      {"open the guide", [](Session& session) { session.press("idOpenHelpOnTools"); }},
      {"press the button again", [](Session& session) { session.press("idAssetsMatMngOnTools"); }},
      {"close again", [](Session& session) { session.pressCancel(); }},
  };
  return all;
}

std::vector<std::string> looksOf(const Design& design) {
  std::vector<std::string> names;
  const auto add = [&names](const auto& named) { names.push_back(named ? named->name : "-"); };
  for (const auto& component : design.components) {
    add(component->material);
    for (const auto& body : component->bodies) {
      add(body->material);
      add(body->appearance);
      for (const auto& face : body->faces) {
        add(face->appearance);
      }
    }
  }
  for (const auto* occurrence : design.root().allOccurrences()) {
    add(occurrence->appearance);
  }
  return names;
}

class PlayedSitting {
 public:
  PlayedSitting(const std::filesystem::path& module, const headless::Profile& profile,
                const std::function<void(headless::Host&)>& prepare)
      : session(profile) {
    session.openDesign(paintedMachine());
    session.answerAlways(adsk::core::DialogYes);
    prepare(session.host());
    session.loadAddIn(module);
  }

  Outcome play() {
    if (!session.runAddIn()) {
      outcome.impossible.emplace_back("run");
    }
    UndoWatch watch(session);
    for (const Step& step : steps()) {
      carryOut(step);
      note(step.name, step.movesInHistory ? watch.afterUndoOrRedo() : watch.afterAction());
    }
    if (session.isDialogOpen()) {
      session.pressCancel();
    }
    note("the end", watch.toTheStartAndBack());
    stop();
    conclude();
    return std::move(outcome);
  }

 private:
  void carryOut(const Step& step) {
    try {
      step.carryOut(session);
    } catch (const headless::UserError&) {
      outcome.impossible.emplace_back(step.name);
    }
  }

  void stop() {
    const bool struckBefore = session.host().gate().faultStruck();
    const bool isStopped = session.stopAddIn();
    const bool struckInStop = !struckBefore && session.host().gate().faultStruck();
    if (struckInStop) {
      session.stopAddIn();
      return;
    }
    // What a failing host would not delete may be left; a host that failed earlier leaves nothing.
    if (!isStopped) {
      note("stop", {"stop did not succeed"});
    }
    if (!session.toolbar().empty()) {
      note("stop", {"buttons are left in the toolbar"});
    }
  }

  void conclude() {
    outcome.looks = looksOf(session.design());
    outcome.undoSteps = session.host().document()->history.undoSteps();
    for (const headless::MessageBox& box : session.messageBoxes()) {
      outcome.messages.push_back(box.text);
    }
    outcome.callsByName = session.host().gate().countsByName();
    outcome.faultStruck = session.host().gate().faultStruck();
    for (const headless::Misuse& misuse : session.host().gate().misuses()) {
      outcome.misuses.push_back(misuse.call + ": " + misuse.reason);
    }
    session.unloadAddIn();
    outcome.journal = session.host().gate().journalText();
    note("unload", session.host().inconsistencies());
    if (session.host().ui().terminatedHandlerCount() != 0) {
      note("unload", {"a handler is left behind"});
    }
    outcome.errors = session.takeErrors();
  }

  void note(const std::string& step, const std::vector<std::string>& findings) {
    for (const std::string& finding : findings) {
      outcome.findings.push_back(step + ": " + finding);
    }
  }

  Session session;
  Outcome outcome;
};

}  // namespace

Outcome playScenario(const std::filesystem::path& module, const headless::Profile& profile,
                     const std::function<void(headless::Host&)>& prepare) {
  return PlayedSitting(module, profile, prepare).play();
}

}  // namespace tests
