#include "host/cli/dialog_work.h"

#include <algorithm>
#include <iostream>
#include <map>

#include "host/cli/dialog_ids.h"
#include "host/cli/dialog_text.h"
#include "host/cli/failure.h"
#include "host/cli/platform.h"
#include "host/cli/text_layout.h"
#include "host/model/resolution.h"

namespace headless::cli {

namespace {

/// The inputs of one of the two groups that assign something.
struct AssignmentInputs {
  const char* what;
  const char* group;
  const char* libraries;
  const char* items;
  const char* filter;
};

constexpr AssignmentInputs appearanceInputs = {"appearance", ids::appearanceGroup, ids::appearanceLibraries,
                                               ids::appearances, ids::appearanceFilter};
constexpr AssignmentInputs materialInputs = {"material", ids::materialGroup, ids::materialLibraries, ids::materials,
                                             ids::materialFilter};

// What a list shows in place of items, when the library or the filter leaves none.
constexpr const char* placeholder = "nothing found";

/// The items; without the placeholder.
std::vector<std::string> namesIn(const InputView& list) {
  std::vector<std::string> names;
  for (const ItemView& item : list.items) {
    if (item.name != placeholder) {
      names.push_back(item.name);
    }
  }
  return names;
}

std::string choiceFrom(const std::vector<std::string>& names) {
  return names.empty() ? "; the list is empty" : "; there are " + listed(names, 5);
}

void choose(Sitting& sitting, const std::string& inputId, const std::string& name, const std::string& missing) {
  Session& session = sitting.session();
  const std::vector<std::string> names = namesIn(session.input(inputId));
  if (std::find(names.begin(), names.end(), name) == names.end()) {
    const std::string near = didYouMean(name, names);
    throw Failure(sitting.file().u8string() + ": " + missing + " \"" + name + "\"" +
                  (near.empty() ? choiceFrom(names) : near));
  }
  session.choose(inputId, name);
}

void chooseItem(Sitting& sitting, const AssignmentInputs& inputs, const std::string& name) {
  const std::string library = sitting.session().input(inputs.libraries).selectedName();
  const std::string filter = sitting.session().input(inputs.filter).text;
  choose(sitting, inputs.items, name,
         (filter.empty() ? "" : "under the filter \"" + filter + "\" ") + "the library " + library + " has no " +
             inputs.what);
}

void fillIn(Sitting& sitting, const AssignmentInputs& inputs, const std::string& filter, const std::string& item) {
  if (!filter.empty()) {
    sitting.session().type(inputs.filter, filter);
  }
  if (!item.empty()) {
    chooseItem(sitting, inputs, item);
  }
}

/// Opens the group and chooses in it, or closes it: Apply works on the groups that are open.
void setUp(Sitting& sitting, const AssignmentInputs& inputs, const std::optional<ItemChoice>& choice) {
  Session& session = sitting.session();
  session.expand(inputs.group, choice.has_value());
  if (!choice) {
    return;
  }
  session.tick(inputs.group, true);
  const std::string what = inputs.what;
  if (!choice->library.empty()) {
    choose(sitting, inputs.libraries, choice->library, "there is no library of " + what + "s called");
  }
  chooseItem(sitting, inputs, choice->name);
}

std::string whyApplyIsOff(const Session& session) {
  if (session.picked().empty()) {
    return "nothing is picked";
  }
  for (const AssignmentInputs& inputs : {appearanceInputs, materialInputs}) {
    if (namesIn(session.input(inputs.items)).empty()) {
      return "the list of " + std::string(inputs.what) + "s of the library " +
             session.input(inputs.libraries).selectedName() + " is empty";
    }
  }
  return "the add-in keeps it so";
}

void requireAnswers(const std::vector<MessageBox>& boxes) {
  for (const MessageBox& box : boxes) {
    if (box.answer == adsk::core::DialogError) {
      throw Failure("The add-in asks \"" + box.text +
                    "\" and nobody answered. Answer with --answer yes or --answer no. Nothing was saved.");
    }
  }
}

void printAnswers(const std::vector<MessageBox>& boxes) {
  std::map<std::string, std::size_t> times;
  for (const MessageBox& box : boxes) {
    ++times["\"" + box.text + "\" " + answerText(box.answer)];
  }
  for (const auto& [questionAndAnswer, count] : times) {
    std::cout << "Asked" << (count > 1 ? " " + std::to_string(count) + " times" : "") << ": " << questionAndAnswer
              << "\n";
  }
}

std::shared_ptr<const model::Appearance> ownLook(const Pickable& object) {
  if (object.face != nullptr) {
    return object.face->appearance;
  }
  if (object.body != nullptr) {
    return object.body->appearance;
  }
  const model::Occurrence* carrier = lookCarrier(*object.occurrence);
  return carrier == nullptr ? nullptr : carrier->appearance;
}

std::vector<std::string> withOtherLook(const std::vector<Pickable>& objects, const std::string& name) {
  std::vector<std::string> paths;
  for (const Pickable& object : objects) {
    const auto look = ownLook(object);
    if (look == nullptr || look->name != name) {
      paths.push_back(object.path);
    }
  }
  return paths;
}

/// Clicks a button that changes the design; true when it did.
bool clickAndSee(Sitting& sitting, const char* button, const std::string& doing) {
  Session& session = sitting.session();
  const std::size_t boxesBefore = session.messageBoxes().size();
  const std::size_t revision = session.host().document()->history.revision();
  session.click(button);
  sitting.requireNoErrors(doing);
  const auto& shown = session.messageBoxes();
  const std::vector<MessageBox> boxes(shown.begin() + static_cast<std::ptrdiff_t>(boxesBefore), shown.end());
  requireAnswers(boxes);
  printAnswers(boxes);
  return session.host().document()->history.revision() != revision;
}

adsk::core::DialogResults askAtTerminal(const MessageBox& box) {
  for (std::string reply;;) {
    std::cerr << box.title << ": " << box.text << " [y/n] " << std::flush;
    if (!std::getline(std::cin, reply)) {
      return adsk::core::DialogError;
    }
    if (reply == "y" || reply == "yes") {
      return adsk::core::DialogYes;
    }
    if (reply == "n" || reply == "no") {
      return adsk::core::DialogNo;
    }
  }
}

}  // namespace

std::vector<std::string> withOwnLook(const std::vector<Pickable>& objects) {
  std::vector<std::string> paths;
  for (const Pickable& object : objects) {
    if (ownLook(object) != nullptr) {
      paths.push_back(object.path);
    }
  }
  return paths;
}

void bringDialogInto(Sitting& sitting, const DialogState& state) {
  Session& session = sitting.session();
  if (state.setsAppearanceByMaterial) {
    session.tick(ids::appearanceByMaterial, true);
  }
  for (const std::string& group : state.closedGroups) {
    session.expand(group, false);
  }
  fillIn(sitting, appearanceInputs, state.appearanceFilter, state.appearance);
  fillIn(sitting, materialInputs, state.materialFilter, state.material);
  sitting.requireNoErrors("the dialog was being filled in");
}

std::vector<Pickable> pickInDialog(Sitting& sitting, const Picks& picks) {
  Session& session = sitting.session();
  std::vector<Pickable> objects = matching(session.design(), sitting.file(), picks.kind, picks.patterns);
  session.choose(ids::filterRow, static_cast<std::size_t>(picks.kind));
  session.clearPicks();
  session.pickAll(objects);
  sitting.requireNoErrors(countedKind(objects.size(), picks.kind) + " were being picked");
  return objects;
}

void prepareAnswers(Sitting& sitting, std::optional<bool> answer) {
  Session& session = sitting.session();
  if (answer) {
    session.answerAlways(*answer ? adsk::core::DialogYes : adsk::core::DialogNo);
  } else if (isTerminal(Stream::Input) && isTerminal(Stream::Error)) {
    session.host().ui().boxes().askBy(askAtTerminal);
  }
}

namespace {

/// One press of Apply.
WorkDone applyOnce(Sitting& sitting, const Picks& picks, const Assignment& assignment) {
  Session& session = sitting.session();
  setUp(sitting, appearanceInputs, assignment.appearance);
  setUp(sitting, materialInputs, assignment.material);
  if (assignment.material) {
    session.tick(ids::appearanceByMaterial, assignment.setsAppearanceByMaterial);
  }
  sitting.requireNoErrors("the dialog was being filled in");
  WorkDone work;
  work.picked = pickInDialog(sitting, picks);
  if (!session.input(ids::applyButton).isEnabled) {
    throw Failure("Apply is greyed out: " + whyApplyIsOff(session) + ". Nothing was saved.");
  }
  work.hasChanged = clickAndSee(sitting, ids::applyButton, "Apply was at work");
  if (assignment.appearance) {
    work.otherLook = withOtherLook(work.picked, assignment.appearance->name);
  }
  return work;
}

}  // namespace

// Ticking "Set Appearance by Material" makes the list of appearances begin with its first item again and puts it out of
// reach, and opening its group again unticks the box. So whoever wants both presses Apply twice.
WorkDone applyInDialog(Sitting& sitting, const Picks& picks, const Assignment& assignment) {
  if (!assignment.appearance || !assignment.setsAppearanceByMaterial) {
    return applyOnce(sitting, picks, assignment);
  }
  const WorkDone material = applyOnce(sitting, picks, {std::nullopt, assignment.material, true});
  WorkDone work = applyOnce(sitting, picks, {assignment.appearance, std::nullopt, false});
  work.hasChanged = work.hasChanged || material.hasChanged;
  return work;
}

WorkDone clearInDialog(Sitting& sitting, const Picks& picks) {
  // In a closed group, as settings that were kept may leave it, the button is out of reach.
  sitting.session().expand(appearanceInputs.group, true);
  sitting.session().tick(appearanceInputs.group, true);
  WorkDone work;
  work.picked = pickInDialog(sitting, picks);
  if (sitting.session().input(ids::removeButton).isEnabled) {
    work.hasChanged = clickAndSee(sitting, ids::removeButton, "applied appearances were being removed");
  }
  return work;
}

}  // namespace headless::cli
