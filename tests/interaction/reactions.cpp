#include "tests/interaction/reactions.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "tests/inspection/stand_ins.h"

namespace tests {

using headless::InputView;
using headless::Session;

namespace {

constexpr const char* answerMark = " -> ";

bool startsWith(const std::string& line, const std::string& start) {
  return line.compare(0, start.size(), start) == 0;
}

bool isEdit(const std::string& line) {
  constexpr const char* entities[] = {"BRepBody(", "BRepFace(", "Occurrence(", "Component("};
  const bool isOfEntity = std::any_of(std::begin(entities), std::end(entities),
                                      [&](const char* entity) { return startsWith(line, entity); });
  return isOfEntity &&
         (line.find(").material=(") != std::string::npos || line.find(").appearance=(") != std::string::npos);
}

void describe(const std::vector<InputView>& inputs, const std::string& indent, std::ostream& text) {
  for (const InputView& input : inputs) {
    text << indent << input.id << " enabled:" << input.isEnabled << " ticked:" << input.isTicked
         << " open:" << input.isExpanded << " text:\"" << input.content << '|' << input.text
         << "\" picked:" << input.selection.size();
    for (const auto& item : input.items) {
      text << (item.isSelected ? " [" : " ") << item.name << (item.isSelected ? "]" : "");
    }
    for (const std::string& filter : input.filters) {
      text << " filter:" << filter;
    }
    text << '\n';
    describe(input.children, indent + "  ", text);
  }
}

}  // namespace

Lines traceOf(Session& session, const std::function<void()>& action) {
  headless::CallGate& gate = session.host().gate();
  gate.startTrace();
  action();
  gate.stopTrace();
  std::istringstream text(gate.traceText());
  Lines lines;
  for (std::string line; std::getline(text, line);) {
    lines.push_back(line);
  }
  return lines;
}

Lines reactionTo(const std::string& inputId, const Lines& trace) {
  const auto event = std::find(trace.begin(), trace.end(), "# event inputChanged(" + inputId + ")");
  if (event == trace.end()) {
    throw std::out_of_range("no change of " + inputId + " was reported");
  }
  const auto end = std::find_if(event + 1, trace.end(), [](const std::string& line) { return startsWith(line, "#"); });
  Lines calls;
  std::copy_if(event + 1, end, std::back_inserter(calls),
               [](const std::string& line) { return !startsWith(line, " "); });
  return calls;
}

Lines editsIn(const Lines& trace) {
  Lines edits;
  for (const std::string& line : trace) {
    const std::string call = line.substr(std::min(line.find_first_not_of(' '), line.size()));
    if (isEdit(call)) {
      edits.push_back(call.substr(0, call.rfind(answerMark)));
    }
  }
  return edits;
}

Lines containing(const std::string& text, const Lines& lines) {
  Lines found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
               [&](const std::string& line) { return line.find(text) != std::string::npos; });
  return found;
}

std::string materialSet(const std::string& entity, const std::string& material) {
  return entity + ".material=(Material(" + material + "))";
}

std::string lookSet(const std::string& entity, const std::string& appearance) {
  return entity + ".appearance=(Appearance(" + appearance + "))";
}

std::string lookCleared(const std::string& entity) {
  return entity + ".appearance=(none)";
}

void raiseChangeOf(Session& session, const std::string& inputId) {
  headless::CommandRunner& runner = session.host().ui().runner();
  runner.changedByUser(*runner.active()->findInput(inputId));
}

void pickComponent(Session& session, headless::model::Component& component) {
  session.host().ui().runner().active()->selectionInput()->clearSelectionFilter();
  session.pick(session.host().document()->entities->component(component));
}

void pickAnotherKind(Session& session) {
  session.host().ui().runner().active()->selectionInput()->clearSelectionFilter();
  session.pick(headless::makeObject<Impostor>("adsk::fusion::ConstructionPlane"));
}

void assignAppearancesOnly(Session& session) {
  session.expand("idGroupMaterial", false);
}

void assignMaterialsOnly(Session& session) {
  session.expand("idGroupAppearance", false);
}

void pickAll(Session& session, const std::string& filter, const std::vector<std::string>& paths) {
  session.choose("idFilterSelect", filter);
  for (const std::string& path : paths) {
    session.pick(path);
  }
}

std::string screenText(const headless::DialogView& dialog) {
  std::ostringstream text;
  describe(dialog.inputs, "", text);
  return text.str();
}

}  // namespace tests
