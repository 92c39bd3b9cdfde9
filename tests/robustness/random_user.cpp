#include "tests/robustness/random_user.h"

#include <memory>
#include <optional>
#include <random>
#include <sstream>
#include <utility>

#include "tests/robustness/painted_machine.h"
#include "tests/robustness/shortest_failing.h"
#include "tests/robustness/undo_watch.h"
#include "tests/support/journal.h"

namespace tests {

using headless::Session;

namespace {

using Names = std::vector<std::string>;

const Names commands = {"idAssetsMatMng", "idAssetsMatMngOnTools"};
const Names filterModes = {"Component", "Body", "Face"};

struct Thing {
  std::string path;
  std::string filterMode;
};

const std::vector<Thing> things = {{"Frame:1", "Component"},
                                   {"Frame:1+Plate:1", "Component"},
                                   {"Frame:1+Bolt:1", "Component"},
                                   {"Frame:2", "Component"},
                                   {"Bolt:2", "Component"},
                                   {"Base", "Body"},
                                   {"Frame:1+Plate:1/Plate1", "Body"},
                                   {"Frame:2+Plate:1/Plate1", "Body"},
                                   {"Bolt:2/Shank", "Body"},
                                   {"Bolt:2/Head", "Body"},
                                   {"Base/Face1", "Face"},
                                   {"Frame:1+Plate:1/Plate1/Face2", "Face"},
                                   {"Bolt:2/Head/Face1", "Face"}};
const Names lists = {"idLibAssets", "idLibMaterials", "idAppearanceList", "idMaterialList"};
const Names filters = {"idFilterAppearance", "idFilterMaterial"};
const Names filterTexts = {"", "", "30", "ral", "al", "no such name", "Käs"};
const Names groups = {"idGroupSelect", "idGroupAppearance", "idGroupMaterial"};
const Names ticks = {"idGroupAppearance", "idGroupMaterial", "idKeepAppearance", "idKeepAppearance"};
const Names buttons = {"idBtnApply", "idBtnApply", "idRemoveAssignAppearance"};

class ActionDice {
 public:
  explicit ActionDice(unsigned seed) : engine(seed) {}

  UserAction roll() {
    switch (below(24)) {
      case 0:
      case 1:
      case 2:
        return with("press", oneOf(commands), [](Session& session, const std::string& id) { session.press(id); });
      case 3:
        return with("choose filter", oneOf(filterModes),
                    [](Session& session, const std::string& mode) { session.choose("idFilterSelect", mode); });
      case 4:
      case 5:
      case 6:
      case 7:
      case 8:
        return pickUnderItsFilter(oneOf(things));
      case 9:
        return with("pick", oneOf(things).path, [](Session& session, const std::string& path) { session.pick(path); });
      case 10:
        return {"let go of everything", [](Session& session) { session.clearPicks(); }};
      case 11:
      case 12:
        return chooseInAList();
      case 13:
        return typeIntoAFilter();
      case 14:
        return onOff("tick", oneOf(ticks), &Session::tick);
      case 15:
        return onOff("expand", oneOf(groups), &Session::expand);
      case 16:
      case 17:
      case 18:
        return with("click", oneOf(buttons), [](Session& session, const std::string& id) { session.click(id); });
      case 19:
        return answer();
      case 20:
      case 21:
        return {"undo", [](Session& session) { session.undo(); }, Effect::MovesBetweenSteps};
      case 22:
        return {"redo", [](Session& session) { session.redo(); }, Effect::MovesBetweenSteps};
      default:
        return rare();
    }
  }

 private:
  std::size_t below(std::size_t count) { return engine() % count; }
  template <class Item>
  const Item& oneOf(const std::vector<Item>& items) {
    return items[below(items.size())];
  }

  static UserAction with(const std::string& verb, const std::string& object,
                         const std::function<void(Session&, const std::string&)>& carryOut) {
    return {verb + " " + object, [=](Session& session) { carryOut(session, object); }};
  }

  static UserAction pickUnderItsFilter(const Thing& thing) {
    return {"pick " + thing.path + " under its filter", [=](Session& session) {
              session.choose("idFilterSelect", thing.filterMode);
              session.pick(thing.path);
            }};
  }

  // Numbers are drawn one by one, as compilers work out arguments in different orders.
  UserAction chooseInAList() {
    const std::string& list = oneOf(lists);
    const std::size_t index = below(4);
    return {"choose item " + std::to_string(index) + " in " + list,
            [=](Session& session) { session.choose(list, index); }};
  }

  UserAction typeIntoAFilter() {
    const std::string& input = oneOf(filters);
    const std::string& text = oneOf(filterTexts);
    return {"type \"" + text + "\" into " + input, [=](Session& session) { session.type(input, text); }};
  }

  UserAction onOff(const std::string& verb, const std::string& input, void (Session::*set)(const std::string&, bool)) {
    const bool value = below(3) != 0;
    return {verb + " " + input + (value ? " on" : " off"), [=](Session& session) { (session.*set)(input, value); }};
  }

  UserAction answer() {
    const bool isYes = below(2) == 0;
    return {isYes ? "answer yes from now on" : "answer no from now on",
            [=](Session& session) { session.answerAlways(isYes ? adsk::core::DialogYes : adsk::core::DialogNo); }};
  }

  UserAction rare() {
    switch (below(7)) {
      case 0:
        return {"close the dialog", [](Session& session) { session.pressCancel(); }};
      case 1:
        return {"press Escape", [](Session& session) { session.pressEscape(); }};
      case 2:
        return {"press OK", [](Session& session) { session.pressOk(); }};
      case 3:
        return {"open the machine anew", [](Session& session) { session.openDesign(paintedMachine()); },
                Effect::OpensDocument};
      case 4:
        return {"open the guide", [](Session& session) { session.press("idOpenHelp"); }};
      case 5:
        // Whoever opens the host's list of add-ins leaves the dialog.
        return {"stop and run again", [](Session& session) {
                  session.pressEscape();
                  session.stopAddIn();
                  session.runAddIn();
                }};
      default:
        return {"close the document, press the button, open the machine",
                [](Session& session) {
                  session.closeDocument();
                  session.press("idAssetsMatMng");
                  session.openDesign(paintedMachine());
                },
                Effect::OpensDocument};
    }
  }

  std::mt19937 engine;
};

class WatchedSitting {
 public:
  WatchedSitting(const std::filesystem::path& module, const headless::Profile& profile)
      : session(profile), folder(module.parent_path()) {
    if (keepsJournals()) {
      session.host().gate().startJournal();
    }
    session.openDesign(paintedMachine());
    session.answerAlways(adsk::core::DialogYes);
    session.loadAddIn(module);
    session.runAddIn();
    watch.emplace(session);
  }

  Names troubleAfter(const UserAction& action) {
    try {
      action.carryOut(session);
    } catch (const headless::UserError&) {
      // A person cannot do everything all the time.
    }
    if (action.effect == Effect::OpensDocument) {
      watch.emplace(session);
    }
    Names trouble = action.effect == Effect::MovesBetweenSteps ? watch->afterUndoOrRedo() : watch->afterAction();
    addCommonTrouble(trouble);
    return trouble;
  }

  Names troubleAtTheEnd() {
    session.pressEscape();
    Names trouble = watch->toTheStartAndBack();
    if (!session.stopAddIn()) {
      trouble.emplace_back("stop did not succeed");
    }
    session.unloadAddIn();
    if (keepsJournals()) {
      keepJournal(session.host().gate().journalText(), folder);
    }
    addCommonTrouble(trouble);
    return trouble;
  }

  Session session;

 private:
  std::filesystem::path folder;
  void addCommonTrouble(Names& trouble) {
    for (const headless::BoundaryError& error : session.takeErrors()) {
      trouble.push_back(error.where + ": " + error.kind + ": " + error.what);
    }
    const auto& misuses = session.host().gate().misuses();
    for (; seenMisuses < misuses.size(); ++seenMisuses) {
      trouble.push_back(misuses[seenMisuses].call + ": " + misuses[seenMisuses].reason);
    }
    const Names found = session.host().inconsistencies();
    trouble.insert(trouble.end(), found.begin(), found.end());
  }

  std::optional<UndoWatch> watch;
  std::size_t seenMisuses = 0;
};

/// Settings of a sitting would make the next one another one.
void forgetSettings(const std::filesystem::path& module) {
  for (const auto& entry : std::filesystem::directory_iterator(module.parent_path())) {
    if (entry.path().extension() == ".txt") {
      std::filesystem::remove(entry.path());
    }
  }
}

}  // namespace

std::vector<UserAction> randomActions(unsigned seed, std::size_t count) {
  ActionDice dice(seed);
  std::vector<UserAction> actions;
  actions.reserve(count);
  while (actions.size() < count) {
    actions.push_back(dice.roll());
  }
  return actions;
}

RandomUser::RandomUser(std::filesystem::path moduleFile, headless::Profile hostProfile, Check extraCheck)
    : module(std::move(moduleFile)), profile(std::move(hostProfile)), check(std::move(extraCheck)) {}

Names RandomUser::troubleWith(const std::vector<UserAction>& actions) const {
  forgetSettings(module);
  WatchedSitting sitting(module, profile);
  for (const UserAction& action : actions) {
    Names trouble = sitting.troubleAfter(action);
    if (check && trouble.empty()) {
      trouble = check(sitting.session);
    }
    if (!trouble.empty()) {
      return trouble;
    }
  }
  return sitting.troubleAtTheEnd();
}

std::string RandomUser::explain(const std::vector<UserAction>& actions) const {
  const std::vector<UserAction> shortest = shortestFailing<UserAction>(
      actions, [this](const std::vector<UserAction>& fewer) { return !troubleWith(fewer).empty(); });
  std::ostringstream text;
  for (const UserAction& action : shortest) {
    text << "  " << action.name << "\n";
  }
  for (const std::string& trouble : troubleWith(shortest)) {
    text << "trouble: " << trouble << "\n";
  }
  return text.str();
}

}  // namespace tests
